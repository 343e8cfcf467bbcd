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

std::string amount_text(double value, const valuta& in) {
    value = finite_or_zero(value);
    return value == 0 ? "0,00" : formato_importo(value, in);
}

}  // namespace

std::string order_hint(std::span<const rec_orc> block, const valuta& in) {
    righe_ordine all;
    righe_ordine open;
    int rows = 0;
    std::string text;
    for (const rec_orc& one : block) {
        const std::string line = line_text(one);
        if (line.empty() && one.prezzo == 0) continue;
        take_row(one, all[++rows]);
        if (is_open(one)) {
            open[rows] = all[rows];
            open[rows].quantita = finite_or_zero(open_quantity(one));
        }
        if (rows <= righe_raccontate) text += line + "\n";
    }
    if (rows > righe_raccontate) text += "... in tutto " + std::to_string(rows) + " righe\n";
    if (block.front().evaso_flag == 1) {
        text += "Evaso";
    } else {
        const totali_ordine left = sum_lines(open, in);
        const std::string pieces = left.pezzi == 0 ? "0" : quantity_text(left.pezzi);
        text += "Da evadere: " + pieces + " pezzi, " + amount_text(left.imponibile, in);
    }
    return text + "\nValore dell'ordine: " + amount_text(sum_lines(all, in).imponibile, in);
}

}  // namespace vantora
