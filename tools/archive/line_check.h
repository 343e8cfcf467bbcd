#pragma once

#include <algorithm>
#include <cmath>

#include "archive/finding.h"
#include "archive/order_blocks.h"
#include "store/vat_codes.h"

namespace vantora::archive {

/// Whether a text field holds bytes that no keyboard gives: control bytes, or zero bytes with
/// something behind them.
inline bool has_controls(std::string_view field) {
    constexpr std::string_view blanks = "        ";
    const std::size_t width = field.size();
    while (field.ends_with(blanks)) field.remove_suffix(blanks.size());
    const bool blank_end = field.size() < width;
    while (!blank_end && field.ends_with('\0')) field.remove_suffix(1);
    return std::ranges::any_of(field, is_control);
}

inline bool any_has_controls(std::initializer_list<std::string_view> fields) {
    return std::ranges::any_of(fields, has_controls);
}

/// Stock and quantities beyond what any shop has, which no mask could show; and what is no number.
inline bool beyond_reason(double figure) {
    return !(std::abs(figure) < 1e9);
}

/// More fulfilled than ordered, or with the other sign: meant, or wrong.
inline bool is_odd(double ordered, double fulfilled) {
    return ordered != 0 && (std::abs(fulfilled) > std::abs(ordered) || ordered * fulfilled < 0);
}

/// Whether a line of an order or a quote has such bytes in its texts.
template <class Row>
bool has_controls_in_texts(const Row& line) {
    return any_has_controls({line.descrizione.full(), line.descrizione2.full(), line.um.full()});
}

inline constexpr const char* no_such_article = "line-no-article";

/// What is wrong in one line of an order or a quote, by itself: tell(gravity, kind, what, advice).
template <class Row, class Tell>
void check_line(const Row& line, int articles, bool articles_known, bool controls, Tell tell) {
    if (!std::isfinite(line.quantita) || !std::isfinite(line.prezzo)) {
        tell(gravity::error, "line-no-number", "la quantità o il prezzo non è un numero",
             "Aprire il documento e riscrivere la riga.");
    } else if (beyond_reason(line.quantita) || beyond_reason(line.prezzo)) {
        tell(gravity::error, "line-absurd", "la quantità o il prezzo è fuori da ogni misura",
             "Aprire il documento e riscrivere la riga.");
    }
    if (articles_known && line.articolo > articles) {
        tell(gravity::error, no_such_article,
             "non c'è l'articolo numero " + std::to_string(line.articolo),
             "Aprire il documento e scegliere di nuovo l'articolo.");
    }
    if (line.iva < 0 || line.iva > ultimo_codice_iva) {
        tell(gravity::warning, "line-vat-code",
             "il codice IVA " + std::to_string(line.iva) + " non esiste (da 1 a 24)",
             "Aprire il documento e scegliere il codice IVA della riga.");
    }
    if (line.sc1 > 100 || line.sc2 > 100 || line.sc1 < -100 || line.sc2 < -100) {
        tell(gravity::warning, "line-discount",
             "lo sconto " + std::to_string(line.sc1) + "+" + std::to_string(line.sc2) +
                 " è oltre il cento per cento",
             "Aprire il documento e riscrivere gli sconti.");
    }
    if (controls) {
        tell(gravity::warning, "line-text", "la descrizione contiene caratteri che non si scrivono",
             "Aprire il documento e riscrivere la descrizione.");
    }
}

}  // namespace vantora::archive
