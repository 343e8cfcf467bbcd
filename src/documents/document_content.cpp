#include "documents/document_content.h"

#include "store/vat_codes.h"
#include "text/number_text.h"

namespace vantora {

namespace {

using places = std::array<std::size_t, 3>;

std::size_t* free_place(places& in, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        if (in[i] == 0) return &in[i];
    }
    return nullptr;
}

testo_posto left(std::string_view text) {
    return {filtra_stampa(text.substr(0, testo_piu_lungo)), ui::alignment::left};
}

testo_posto right(std::string text) {
    return {std::move(text), ui::alignment::right};
}

/// A text of a line; the line itself is cleaned by printing it.
template <std::size_t N>
testo_posto cleaned(text<N>& of_line) {
    std::string kept = filtra_stampa(of_line.full());
    of_line = kept;
    return {std::move(kept)};
}

/// "10+5" behind the sign's place; a second discount alone stands without it.
std::string discounts(const riga_ordine& line) {
    std::string text;
    if (line.sc1 != 0) text = plain_text_signed(line.sc1);
    if (line.sc1 != 0 && line.sc2 != 0) text += '+';
    if (line.sc2 != 0) text += plain_text(line.sc2);
    return text;
}

/// A line without a quantity counts its price once.
double gross(const riga_ordine& line, const valuta& currency) {
    const double value = line.quantita == 0 ? line.prezzo : line.prezzo * line.quantita;
    return arrotonda_valuta(value, currency);
}

double net(double gross, const riga_ordine& line, const valuta& currency) {
    return arrotonda_valuta(discounted_amount(gross, line.sc1, line.sc2, currency), currency);
}

}  // namespace

riepilogo_stampato::riepilogo_stampato(const riepilogo_iva& from) {
    for (std::size_t code = 1; code <= ultima_aliquota; ++code) {
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

testo_posto contenuto_documento::amount(double value) const {
    return right(formato_importo(value, document_.importi));
}

testo_posto contenuto_documento::vat_field(const campo_documento& field) const {
    const auto& vat = document_.tabelle.iva;
    const auto& amounts = document_.iva;
    switch (field.da) {
        case fonte::imponibile:
            return amount(amounts.imponibile_iva[summary_.rates[field.indice]]);
        case fonte::aliquota: {
            const std::size_t code = summary_.rates[field.indice];
            return left(code == 0 ? std::string_view() : vat.aliquota_iva[code]);
        }
        case fonte::imposta:
            return amount(amounts.imposta_iva[summary_.rates[field.indice]]);
        case fonte::esente:
            return amount(amounts.esente_iva[summary_.exemptions[field.indice]]);
        case fonte::motivo_esente:
            // Without an exemption it is the wording of none, which a company may have set.
            return left(vat.descrizione_iva[summary_.exemptions[field.indice]]);
        case fonte::totale_imponibile:
            return amount(summary_.imponibile);
        case fonte::totale_iva:
            return amount(summary_.iva);
        case fonte::totale:
            return amount(summary_.imponibile + summary_.iva + summary_.esente);
        default:
            return {};
    }
}

testo_posto contenuto_documento::campo(const campo_documento& field, int page) const {
    const auto& head = document_.testata;
    switch (field.da) {
        case fonte::ditta:
            return {std::string(trimmed(document_.tabelle.testi_intestazione[field.indice]))};
        case fonte::text2:
            return left(head.text2[field.indice]);
        case fonte::text3:
            return left(head.text3[field.indice]);
        case fonte::combo1:
            return left(head.combo1[field.indice]);
        case fonte::combo2:
            return left(head.combo2);
        case fonte::letterale:
            return left(field.testo);
        case fonte::partita_iva:
            return left(std::string(trimmed(head.text2[campo_cliente::prefisso_iva])) +
                        std::string(trimmed(head.text2[campo_cliente::partita_iva])));
        case fonte::pagina:
            return left(std::to_string(page));
        case fonte::testo_documenti:
            return left(document_.cliente.testo_documenti.full());
        default:
            return vat_field(field);
    }
}

std::vector<testo_posto> contenuto_documento::riga(int number,
                                                   std::span<const colonna_riga> columns) const {
    riga_ordine& line = document_.righe[number];
    const double lordo = gross(line, document_.importi);
    const auto text_of = [&](colonna_riga column) -> testo_posto {
        switch (column) {
            case colonna_riga::codice:
                return cleaned(line.codice);
            case colonna_riga::descrizione:
                return cleaned(line.descrizione);
            case colonna_riga::quantita:
                return right(line.quantita == 0 ? std::string()
                                                : formato_quantita(plain_text(line.quantita)));
            case colonna_riga::um:
                return cleaned(line.um);
            case colonna_riga::prezzo:
                return right(formato_prezzo(line.prezzo, document_.importi));
            case colonna_riga::lordo:
                return amount(lordo);
            case colonna_riga::netto:
                return amount(net(lordo, line, document_.importi));
            case colonna_riga::sconti:
                return left(discounts(line));
            case colonna_riga::aliquota: {
                const bool has_rate = line.iva >= 1 && line.iva <= ultima_aliquota && lordo != 0;
                if (!has_rate) return {};
                return left(document_.tabelle.iva.aliquota_iva[static_cast<std::size_t>(line.iva)]);
            }
        }
        return {};
    };
    std::vector<testo_posto> texts;
    texts.reserve(columns.size());
    for (const colonna_riga column : columns) texts.push_back(text_of(column));
    return texts;
}

}  // namespace vantora
