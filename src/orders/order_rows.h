#pragma once

#include <cstring>
#include <string>

#include "store/records/rec_orc.h"

namespace vantora {

// The rules of an order's rows, each once. Where lists differ, the difference has its name here.

/// The description of a row of an order or a quote, which lies in two fields.
template <class Row>
std::string description_of(const Row& row) {
    return std::string(row.descrizione.full()).append(row.descrizione2.full());
}

/// Whether a field holds nothing but blanks: one at first, and each character as the one before.
template <std::size_t N>
bool is_blank(const text<N>& field) {
    const std::string_view all = field.full();
    return all.front() == ' ' && std::memcmp(all.data(), all.data() + 1, N - 1) == 0;
}

// In use ------------------------------------------------------------------------------------------

/// Whether a row is more than an empty line. A price alone doesn't make it so.
template <class Row>
bool in_use(const Row& row) {
    return row.quantita != 0 || !is_blank(row.descrizione);
}

/// The same where a price alone counts: customer sheets, which show what an order is made of.
template <class Row>
bool in_use_or_priced(const Row& row) {
    return in_use(row) || row.prezzo != 0;
}

/// A row that only says something.
inline bool is_text_row(const rec_orc& row) {
    return row.quantita == 0 && !is_blank(row.descrizione);
}

// Open --------------------------------------------------------------------------------------------

/// What is still to leave.
inline double open_quantity(const rec_orc& row) {
    return row.quantita - row.evaso;
}

/// Whether something of a row is still to leave; a figure that is no number leaves nothing.
inline bool is_open(const rec_orc& row) {
    return row.quantita > row.evaso;
}

/// Whether a row may have something to leave: one with a figure that is no number stands among the
/// open and among the fulfilled rows of the order list.
inline bool may_be_open(const rec_orc& row) {
    return !(row.quantita <= row.evaso);
}

/// Whether a row can leave: text goes along with any fulfilment, whatever was fulfilled of it.
inline bool can_leave(const rec_orc& row) {
    return is_open(row) || is_text_row(row);
}

/// Whether an order, by its row 1, can be fulfilled.
inline bool is_open_order(const rec_orc& head) {
    return head.annullato == 0 && head.evaso_flag == 0;
}

/// What the rows of an order have open in all: what left beyond the quantity of one makes up for
/// the rest of another.
template <class Rows>
double balance_of(const Rows& rows) {
    double rest = 0;
    for (const rec_orc& row : rows) {
        rest += row.quantita;
        rest -= row.evaso;
    }
    return rest;
}

}  // namespace vantora
