#include "orders/totals.h"

#include "errors/run_time_errors.h"
#include "store/vat_codes.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// Net amount of a line: the discounts cascade, each step is rounded.
double net_amount(const riga_ordine& line, bool by_piece, const valuta& currency) {
    double amount = line.prezzo;
    if (by_piece) amount = arrotonda_valuta(amount * line.quantita, currency);
    return discounted_amount(amount, line.sc1, line.sc2, currency);
}

}  // namespace

totali_ordine sum_lines(const righe_ordine& lines, const valuta& currency) {
    totali_ordine sums;
    riepilogo_iva& vat = sums.iva;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        const riga_ordine& line = lines[number];
        const bool by_piece = line.quantita != 0 && line.quantita != quantita_a_corpo;
        if (by_piece) sums.pezzi += line.quantita;
        const double amount = net_amount(line, by_piece, currency);
        const auto code = static_cast<std::size_t>(is_vat_code(line.iva) ? line.iva : 1);
        if (code <= ultima_aliquota) {
            vat.imponibile_iva[code] += amount;
        } else {
            vat.esente_iva[code - ultima_aliquota] += amount;
        }
    }
    for (std::size_t code = 1; code <= ultima_aliquota; ++code) {
        sums.imponibile += vat.imponibile_iva[code] + vat.esente_iva[code];
    }
    return sums;
}

totali_ordine calcola_totali(const righe_ordine& lines, const tabella_iva& rates,
                             const valuta& currency) {
    totali_ordine sums = sum_lines(lines, currency);
    riepilogo_iva& vat = sums.iva;
    for (std::size_t code = 1; code <= ultima_aliquota; ++code) {
        const double rate = number_at_head(rates.aliquota_iva[code]);
        vat.imposta_iva[code] = percentuale_eccesso(vat.imponibile_iva[code], rate, currency);
        sums.totale += vat.imposta_iva[code] + vat.imponibile_iva[code] + vat.esente_iva[code];
    }
    for (const double one : {sums.imponibile, sums.totale, sums.pezzi}) checked(one);
    return sums;
}

std::string weight_text(double weight) {
    const bool whole = weight == integer_part(weight);
    return masked(weight, whole ? "###,###,##0" : "###,###,##0.###");
}

}  // namespace vantora
