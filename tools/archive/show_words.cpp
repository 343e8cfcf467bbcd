#include "archive/show_words.h"

#include <cmath>

#include "archive/csv_text.h"
#include "archive/table_writer.h"
#include "orders/order_lines.h"
#include "orders/stored_lines.h"
#include "orders/totals.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

valuta currency_of(company_files& company) {
    parametri values;
    values.numero_azienda = company.numero_azienda();
    carica_parametri(values, company.files());
    return valuta(values);
}

/// "9/1/2023" as dd/mm/yyyy; what is no date as it stands.
std::string day(std::string_view stored) {
    const std::string shown = date_text_of_stored(stored);
    return read_date(shown) ? shown : "«" + cell_text(stored) + "»";
}

std::string state_of(const rec_orc& head) {
    if (head.annullato == 1) return "eliminato";
    return head.evaso_flag == 1 ? "evaso" : "aperto, consegna " + day(head.data_evasione.full());
}

std::string state_of(const rec_prv& head) {
    return head.annullato != 0 ? "eliminato" : "valido";
}

std::string discounts_of(int first, int second) {
    if (first == 0 && second == 0) return {};
    return ", sconto " + std::to_string(first) + (second == 0 ? "" : "+" + std::to_string(second)) +
           "%";
}

template <class Row>
std::string fulfilled(const Row&) {
    return {};
}
std::string fulfilled(const rec_orc& row) {
    return row.evaso == 0 ? "" : ", evaso " + figure(row.evaso);
}

/// The texts of the head: references, and of an order destination and carrier.
template <class Row>
std::string texts_of(std::span<const Row> rows) {
    constexpr const char* titles[] = {"Riferimenti", "Destinazione", "", "Vettore"};
    const std::size_t with_texts = std::is_same_v<Row, rec_orc> ? 4 : 1;
    std::string all;
    for (std::size_t row = 0; row < with_texts; ++row) {
        std::string line;
        // The last text of row 3 is no text but choices.
        const std::size_t texts = row == 2 ? 2 : 3;
        const std::string each[] = {cell_text(rows[row].testo1.full()),
                                    cell_text(rows[row].testo2.full()),
                                    cell_text(rows[row].testo3.full())};
        for (std::size_t text = 0; text < texts; ++text) {
            if (!each[text].empty()) line += (line.empty() ? "" : ", ") + each[text];
        }
        if (line.empty()) continue;
        all +=
            row == 2 ? "    " + line + "\n" : "  " + std::string(titles[row]) + ": " + line + "\n";
    }
    return all;
}

}  // namespace

std::string figure(double value) {
    if (!std::isfinite(value)) return digits_of(value);
    std::string shown = masked(value, "###,###,###,##0.####0");
    shown.erase(shown.find_last_not_of('0') + 1);
    if (shown.ends_with(',')) shown.pop_back();
    return shown;
}

show_words::show_words(company_files& company)
    : files_(company.records()),
      vat_(read_suite_table(company.files(), company.numero_azienda()).iva),
      currency_(currency_of(company)) {}

std::string show_words::customer(std::int16_t number) const {
    rec_cli one;
    if (number >= 1) files_.cli.read(number, one);
    return std::to_string(number) + " " + cell_text(one.intestazione1.full());
}

std::string show_words::article(std::int16_t number) const {
    rec_art one;
    if (number < 1 || !files_.art.read(number, one)) return {};
    return cell_text(one.codice.full()) + " ";
}

std::string show_words::line(std::int64_t number, const rec_cli& one) const {
    return std::to_string(number) + ": " + cell_text(one.intestazione1.full()) + ", " +
           cell_text(one.indirizzo.full()) + ", " + cell_text(one.cap.full()) + " " +
           cell_text(one.citta.full()) + (one.eliminato == 1 ? " (eliminato)" : "");
}

std::string show_words::line(std::int64_t number, const rec_art& one) const {
    return std::to_string(number) + ": " + cell_text(one.codice.full()) + " " +
           cell_text(one.descrizione.full()) + ": giacenza " + figure(one.giacenza) +
           ", impegnato " + figure(one.impegnato) + ", ordinato " + figure(one.ordinato_clienti) +
           (one.eliminato != 0 ? " (eliminato)" : "");
}

std::string show_words::line(std::int64_t number, const rec_mag& one) const {
    return std::to_string(number) + ": " + day(one.data.full()) + " " +
           cell_text(one.movimento.full()) + " " + cell_text(one.documento.full()) + ": " +
           figure(one.quantita) + " di " + article(one.articolo) + "a " + figure(one.prezzo) +
           ", cliente " + customer(one.cliente);
}

std::string show_words::line(std::int64_t number, const rec_bol& one) const {
    return std::to_string(number) + ": DDT " + std::to_string(one.numero) + " del " +
           day(one.data.full()) + ", cliente " + customer(one.cliente) + ", file b" +
           plain_text(double{float{one.progressivo}}) +
           (one.senza_scarico == 1 ? ", senza scarico" : "");
}

std::string show_words::line(std::int64_t number, const rec_tot& one) const {
    std::string shown = std::to_string(number) + " " + counted_by(static_cast<int>(number)) + ": " +
                        std::to_string(one.quanti) + " in uso";
    if (one.ultimo_numero != 0) {
        shown += ", ultimo numero " + std::to_string(one.ultimo_numero);
    }
    if (one.progressivo != 0) {
        shown += ", progressivo " + plain_text(double{float{one.progressivo}});
    }
    return shown;
}

template <class Row>
std::string show_words::head_line(const char* kind, std::int64_t block, const Row& head) const {
    return kind + cell_text(head.numero.full()) + " del " + day(head.data.full()) +
           " (registrazione " + std::to_string(block) + "), cliente " + customer(head.cliente) +
           ", " + cell_text(head.testo1.full()) + ", " + state_of(head);
}

std::string show_words::line(std::int64_t block, const rec_orc& head) const {
    return head_line("Ordine ", block, head);
}

std::string show_words::line(std::int64_t block, const rec_prv& head) const {
    return head_line("Preventivo ", block, head);
}

template <class Row>
std::string show_words::row_line(std::size_t number, const Row& row) const {
    std::string shown = "  " + std::to_string(number) + ": ";
    if (row.articolo >= 1) shown += article(row.articolo);
    shown += row_description(row);
    if (row.quantita == 0 && row.prezzo == 0) return shown + "\n";
    shown += ": " + figure(row.quantita) + " " + cell_text(row.um.full()) + " a " +
             figure(row.prezzo) + discounts_of(row.sc1, row.sc2) + ", iva " + two_digits(row.iva) +
             fulfilled(row);
    return shown + "\n";
}

template <class Row>
std::string show_words::whole(std::int64_t block, std::span<const Row> rows) const {
    std::string shown = line(block, rows[0]) + "\n" + texts_of(rows);
    righe_ordine lines;
    for (std::size_t row = 0; row < rows.size(); ++row) {
        take_row(rows[row], lines[static_cast<int>(row) + 1]);
        if (is_used(rows[row])) shown += row_line(row + 1, rows[row]);
    }
    const totali_ordine totals = calcola_totali(lines, vat_, currency_);
    return shown + "  Pezzi " + figure(totals.pezzi) + ", imponibile " + figure(totals.imponibile) +
           ", totale " + figure(totals.totale) + "\n";
}

template std::string show_words::whole(std::int64_t, std::span<const rec_orc>) const;
template std::string show_words::whole(std::int64_t, std::span<const rec_prv>) const;

}  // namespace vantora::archive
