#pragma once

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>

#include "archive/masters.h"
#include "text/dates.h"

namespace vantora::archive {

using order_rows = std::span<const rec_orc>;

/// The rows of an order or quote without those at the end that repeat an empty one, which have
/// nothing to tell.
template <class Row>
std::span<const Row> without_empty_end(std::span<const Row> rows) {
    const Row& last = rows.back();
    if (last.quantita != 0 || last.prezzo != 0 || last.articolo != 0) return rows;
    if constexpr (requires { last.evaso; }) {
        if (last.evaso != 0) return rows;
    }
    constexpr std::size_t together = 16;
    std::size_t used = rows.size();
    while (used > together + 1 && std::memcmp(&rows[used - 1 - together], &rows[used - together],
                                              together * sizeof last) == 0) {
        used -= together;
    }
    while (used > 1 && std::memcmp(&rows[used - 2], &last, sizeof last) == 0) --used;
    return rows.first(used);
}

/// What the archive is judged by, of each block of orders.
struct block_facts {
    std::uint64_t print = 0;  ///< of all bytes but the marks of deletion
    std::uint64_t saved = 0;  ///< of the moment of the first save, to the second, and the number
    double day_saved = 0;     ///< 0 if it is no date number
    std::uint8_t used = 0;    ///< rows without an empty end
    bool empty = true;        ///< zero bytes, or not read
    bool whole = false;       ///< its rows belong together
    bool deleted = false;
    bool half_deleted = false;  ///< its rows differ in that, and in nothing else
    bool fulfilled = false;
    bool in_use = false;         ///< looks like an order at all
    bool control_bytes = false;  ///< in the texts of its rows

    [[nodiscard]] bool live() const { return in_use && !deleted && !fulfilled; }
};

block_facts facts_of(order_rows order);

/// The first row, from 0, that doesn't belong to the first one's order; the size if all do.
std::size_t first_foreign_row(order_rows order);

/// Whether eight characters of a file are a date.
bool is_stored_date(std::string_view yyyymmdd);

/// "ordine 12 del 03/05/2024, Rossi S.r.l. (registrazione 7)"
template <class Row>
std::string document_named(const char* kind, const Row& head, int registrazione,
                           const masters& known) {
    return std::string(kind) + " " + words_of(head.numero.full()) + " del " +
           without_controls(date_text_of_stored(head.data.full())) + ", " +
           known.customer_named(head.cliente) + " (registrazione " + std::to_string(registrazione) +
           ")";
}

}  // namespace vantora::archive
