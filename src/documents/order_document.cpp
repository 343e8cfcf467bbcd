#include "documents/order_document.h"

#include "documents/background.h"
#include "documents/document_composer.h"
#include "documents/order_fields.h"
#include "store/text/number_text.h"

namespace vantora {

namespace {

constexpr forma_documento forma_ordine{67, 68, 69, 70, 9};

/// The codes in use, each with its place on the document, and the sums over all of them. There is
/// room for three rates and three exemptions: a further rate is in the sums only, a further
/// exemption takes the last place.
struct riepilogo_stampato {
    explicit riepilogo_stampato(const riepilogo_iva& from) {
        for (std::size_t code = 1; code <= 12; ++code) {
            if (from.imponibile_iva[code] != 0) {
                imponibile += from.imponibile_iva[code];
                iva += from.imposta_iva[code];
                if (auto* place = free_place(rates, 3)) *place = code;
            }
            if (from.esente_iva[code] != 0) {
                esente += from.esente_iva[code];
                auto* place = free_place(exemptions, 2);
                *(place ? place : &exemptions[2]) = code;
            }
        }
    }

    std::array<std::size_t, 3> rates{};  ///< 0: nothing in this place
    std::array<std::size_t, 3> exemptions{};
    double imponibile = 0;
    double iva = 0;
    double esente = 0;

 private:
    static std::size_t* free_place(std::array<std::size_t, 3>& places, std::size_t count) {
        for (std::size_t i = 0; i < count; ++i) {
            if (places[i] == 0) return &places[i];
        }
        return nullptr;
    }
};

testo_posto left(std::string_view text) {
    return {filtra_stampa(text), ui::alignment::left};
}

testo_posto right(std::string text) {
    return {std::move(text), ui::alignment::right};
}

/// "10+5" behind the sign's place; a second discount alone stands without it.
std::string discounts(const riga_ordine& line) {
    std::string text;
    if (line.sc1 != 0) text = plain_text_signed(line.sc1);
    if (line.sc1 != 0 && line.sc2 != 0) text += '+';
    if (line.sc2 != 0) text += plain_text(line.sc2);
    return text;
}

class contenuto_ordine final : public contenuto_documento {
 public:
    explicit contenuto_ordine(const ordine_da_stampare& order)
        : order_(order), summary_(order.iva) {}

    testo_posto campo(int number, int page) override {
        const campo_ordine& field = campi_ordine[static_cast<std::size_t>(number)];
        const auto& head = order_.testata;
        const auto& vat = order_.tabelle.iva;
        switch (field.da) {
            case fonte::vuoto:
                return {};
            case fonte::ditta:
                return {std::string(trimmed(order_.tabelle.testi_intestazione[field.indice]))};
            case fonte::text2:
                return left(head.text2[field.indice]);
            case fonte::text3:
                return left(head.text3[field.indice]);
            case fonte::letterale_piccolo:
                return left("Ordine cliente");
            case fonte::letterale_grande:
                return left("ORDINE CLIENTE");
            case fonte::partita_iva:
                return left(std::string(trimmed(head.text2[6])) +
                            std::string(trimmed(head.text2[7])));
            case fonte::pagina:
                return left(std::to_string(page));
            case fonte::pagamento:
                return left(head.pagamento);
            case fonte::testo_documenti:
                return left(order_.cliente.testo_documenti.full());
            case fonte::imponibile:
                return amount(order_.iva.imponibile_iva[summary_.rates[field.indice]]);
            case fonte::aliquota: {
                const std::size_t code = summary_.rates[field.indice];
                return left(code == 0 ? std::string() : vat.aliquota_iva[code]);
            }
            case fonte::imposta:
                return amount(order_.iva.imposta_iva[summary_.rates[field.indice]]);
            case fonte::esente:
                return amount(order_.iva.esente_iva[summary_.exemptions[field.indice]]);
            case fonte::motivo_esente:
                // Without an exemption it is the wording of none, which a company may have set.
                return left(vat.descrizione_iva[summary_.exemptions[field.indice]]);
            case fonte::totale_imponibile:
                return amount(summary_.imponibile);
            case fonte::totale_iva:
                return amount(summary_.iva);
            case fonte::totale:
                return amount(summary_.imponibile + summary_.iva + summary_.esente);
        }
        return {};
    }

    testo_posto colonna(int number, int column) override {
        riga_ordine& line = order_.righe[number];
        switch (column) {
            case 1:
                compute_amounts(line);
                return cleaned(line.codice);
            case 2:
                return cleaned(line.descrizione);
            case 3:
                return right(line.quantita == 0 ? std::string()
                                                : formato_quantita(plain_text(line.quantita)));
            case 4:
                return cleaned(line.um);
            case 5:
                return right(formato_prezzo(line.prezzo, order_.importi));
            case 6:
                return amount(lordo_);
            case 7:
                return amount(netto_);
            case 8:
                return left(discounts(line));
            case 9: {
                const bool has_rate = line.iva >= 1 && line.iva <= 12 && lordo_ != 0;
                const auto code = static_cast<std::size_t>(has_rate ? line.iva : 0);
                return left(has_rate ? order_.tabelle.iva.aliquota_iva[code] : std::string());
            }
            default:
                return {};
        }
    }

 private:
    /// A text of a line; the line itself is cleaned by printing it.
    template <std::size_t N>
    static testo_posto cleaned(text<N>& of_line) {
        std::string kept = filtra_stampa(of_line.full());
        of_line = kept;
        return {std::move(kept)};
    }

    [[nodiscard]] testo_posto amount(double value) const {
        return right(formato_importo(value, order_.importi));
    }

    void compute_amounts(const riga_ordine& line) {
        const valuta& currency = order_.importi;
        lordo_ = line.quantita == 0 ? line.prezzo : line.prezzo * line.quantita;
        lordo_ = arrotonda_valuta(lordo_, currency);
        netto_ = importo_scontato(lordo_, line.sc1, line.sc2, currency);
        netto_ = arrotonda_valuta(netto_, currency);
    }

    const ordine_da_stampare& order_;
    riepilogo_stampato summary_;
    double lordo_ = 0;  ///< of the line at hand
    double netto_ = 0;
};

}  // namespace

bool stampa_ordine(program& app, const ordine_da_stampare& order) {
    if (!app.desk.ask("Iniziare la stampa?", "Stampa ordine")) return false;
    app.desk.set_pointer(ui::pointer::busy);
    contenuto_ordine content(order);
    const paginazione pages = impagina(forma_ordine, order.tabelle, order.righe);
    {
        document_output out(app.desk.printer(), app.files);
        componi_pagine(forma_ordine, order.tabelle, pages, content, out,
                       [&] { disegna_sfondo(app, out, order.sfondo, order.figura); });
        out.end();
    }
    app.desk.set_pointer(ui::pointer::normal);
    return true;
}

}  // namespace vantora
