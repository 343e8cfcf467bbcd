#include "orders/totals.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "errors/run_time_errors.h"

namespace vantora {
namespace {

valuta currency(bool euro) {
    parametri from;
    from.parametri_valuta[valuta_slot::modo_decimali] = euro ? "1" : "0";
    return valuta(from);
}

righe_ordine order_of(const std::vector<riga_ordine>& all) {
    righe_ordine lines;
    int number = 0;
    for (const riga_ordine& one : all) lines[++number] = one;
    return lines;
}

/// The sums, step by step.
struct plain_sums {
    double taxed[25] = {};
    double imponibile = 0, totale = 0, pezzi = 0;

    plain_sums(const std::vector<riga_ordine>& lines, bool euro, const double (&rate)[13]) {
        const auto percent = [&](double value, double of, double bias) {
            return euro ? std::floor(value * of + 0.51) / 100 : std::floor(value * of / 100 + bias);
        };
        for (const riga_ordine& line : lines) {
            double value = line.prezzo;
            if (line.quantita != 0 && line.quantita != -9999) {
                pezzi = pezzi + line.quantita;
                value = value * line.quantita;
                value = euro ? std::floor(value * 100 + 0.51) / 100 : std::floor(value + 0.51);
            }
            value = value - percent(value, line.sc1, 0.51);
            value = value - percent(value, line.sc2, 0.51);
            taxed[line.iva < 1 || line.iva > 24 ? 1 : line.iva] += value;
        }
        for (int code = 1; code <= 12; ++code) {
            const double net = taxed[code] + taxed[code + 12];
            imponibile += net;
            totale += percent(taxed[code], rate[code], 0.99) + taxed[code] + taxed[code + 12];
        }
    }
};

TEST(calcola_totali, AgreesWithAPlainRecomputationOnRandomOrders) {
    std::mt19937 random(11);
    const auto below = [&](int limit) { return static_cast<int>(random()) % limit; };
    const auto upto = [&](int limit) { return std::abs(below(limit)); };
    const double rate_of[13] = {0, 4, 20, 10, 0, 10.5};
    tabella_iva table;
    const char* texts[] = {"", "4", " 20", "10%", "nessuna", "10.5"};
    for (std::size_t code = 1; code <= 5; ++code) table.aliquota_iva[code] = texts[code];
    for (int round = 0; round < 300; ++round) {
        const bool euro = round % 2 == 0;
        std::vector<riga_ordine> lines;
        for (int i = upto(201); i > 0; --i) {
            riga_ordine& line = lines.emplace_back();
            line.quantita = upto(6) == 0   ? 0
                            : upto(9) == 0 ? -9999
                                           : below(4000) / (upto(2) ? 100.0 : 1.0);
            line.prezzo = below(2000000) / (upto(2) ? 1000.0 : 1.0);
            line.sc1 = static_cast<std::int16_t>(upto(3) ? 0 : below(120));
            line.sc2 = static_cast<std::int16_t>(upto(3) ? 0 : below(60));
            line.iva = static_cast<std::int16_t>(upto(27) - 1);
        }
        const plain_sums expected(lines, euro, rate_of);
        const auto sums = calcola_totali(order_of(lines), table, currency(euro));
        ASSERT_DOUBLE_EQ(sums.imponibile, expected.imponibile) << round;
        ASSERT_DOUBLE_EQ(sums.totale, expected.totale) << round;
        ASSERT_DOUBLE_EQ(sums.pezzi, expected.pezzi) << round;
        for (std::size_t code = 1; code <= 12; ++code) {
            ASSERT_EQ(sums.iva.imponibile_iva[code], expected.taxed[code]) << round;
            ASSERT_EQ(sums.iva.esente_iva[code], expected.taxed[code + 12]) << round;
        }
    }
}

TEST(calcola_totali, AmountsBeyondAllNumbersAreAnOverflow) {
    const riga_ordine most{.iva = 14, .prezzo = std::numeric_limits<double>::max()};
    const std::vector<riga_ordine> wrong[] = {
        {{.iva = 14, .quantita = 1e10, .prezzo = 1e308}},
        {most, {.iva = 13, .prezzo = most.prezzo}},
        {{.iva = 14, .prezzo = most.prezzo, .sc1 = 30000}},
        {{.iva = 14, .prezzo = std::nan("")}},
        {{.iva = 14, .quantita = most.prezzo}, {.iva = 14, .quantita = most.prezzo}},
    };
    for (const auto& lines : wrong) {
        EXPECT_THROW(calcola_totali(order_of(lines), {}, currency(true)), overflow_error)
            << lines[0].quantita << " x " << lines[0].prezzo;
    }
    EXPECT_NO_THROW(calcola_totali(order_of({{.iva = 14, .prezzo = 1e300}}), {}, currency(true)));
}

}  // namespace
}  // namespace vantora
