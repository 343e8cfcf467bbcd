#include "register/order_hint.h"

#include <string>

#include "orders/order_rows.h"
#include "orders/stored_lines.h"
#include "orders/totals.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr int righe_raccontate = 6;

std::string line_text(const rec_orc& row) {
    const std::string description = filtra_stampa(description_of(row));
    std::string text;
    if (row.quantita != 0) {
        text = quantity_text(row.quantita) + " " + std::string(row.um.trimmed()) + "  ";
    }
    return text.append(trimmed(description));
}

/// An order's figures over its rows: all of it as its own screen counts it, and what is open.
class somme_ordine {
 public:
    void add(const rec_orc& row) {
        riga_ordine line;
        take_row(row, line);
        tutte_[++righe_] = line;
        if (!is_open(row)) return;
        line.quantita = finite_or_zero(open_quantity(row));
        da_evadere_[righe_] = line;
    }

    [[nodiscard]] int righe() const { return righe_; }
    [[nodiscard]] totali_ordine totali(const valuta& in) const { return sum_lines(tutte_, in); }
    [[nodiscard]] totali_ordine da_evadere(const valuta& in) const {
        return sum_lines(da_evadere_, in);
    }

 private:
    int righe_ = 0;
    righe_ordine tutte_;
    righe_ordine da_evadere_;
};

std::string amount_text(double value, const valuta& in) {
    value = finite_or_zero(value);
    return value == 0 ? "0,00" : formato_importo(value, in);
}

}  // namespace

std::string order_hint(std::span<const rec_orc> block, const valuta& in) {
    somme_ordine sums;
    std::string text;
    for (const rec_orc& one : block) {
        const std::string line = line_text(one);
        if (line.empty() && one.prezzo == 0) continue;
        sums.add(one);
        if (sums.righe() <= righe_raccontate) text += line + "\n";
    }
    if (sums.righe() > righe_raccontate) {
        text += "... in tutto " + std::to_string(sums.righe()) + " righe\n";
    }
    if (block.front().evaso_flag == 1) {
        text += "Evaso";
    } else {
        const totali_ordine open = sums.da_evadere(in);
        const std::string pieces = open.pezzi == 0 ? "0" : quantity_text(open.pezzi);
        text += "Da evadere: " + pieces + " pezzi, " + amount_text(open.imponibile, in);
    }
    return text + "\nValore dell'ordine: " + amount_text(sums.totali(in).imponibile, in);
}

}  // namespace vantora
