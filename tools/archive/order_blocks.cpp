#include "archive/order_blocks.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>

#include "archive/line_check.h"
#include "text/digit.h"

namespace vantora::archive {

namespace {

/// What every row of an order repeats, but for the mark of deletion.
bool same_head(const rec_orc& one, const rec_orc& other) {
    return one.numero == other.numero && one.data == other.data && one.cliente == other.cliente &&
           one.data_evasione == other.data_evasione && one.impegno == other.impegno;
}

/// Mixes the bytes of a field or of the beginning of a row into a sum.
template <class Field>
std::uint64_t mixed(std::uint64_t sum, const Field& one, std::size_t bytes = sizeof(Field)) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    const std::string_view all(reinterpret_cast<const char*>(&one), bytes);
    return sum * factor + std::hash<std::string_view>()(all);
}

bool is_zero(const rec_orc& row) {
    const auto bytes = std::as_bytes(std::span(&row, 1));
    return bytes.front() == std::byte{} &&
           std::memcmp(bytes.data(), bytes.data() + 1, bytes.size() - 1) == 0;
}

constexpr double latest_day = 2958465;  ///< 31/12/9999

}  // namespace

std::size_t first_foreign_row(order_rows order) {
    std::size_t row = 1;
    while (row < order.size() && same_head(order.front(), order[row])) ++row;
    return std::min(row, order.size());
}

bool is_stored_date(std::string_view yyyymmdd) {
    if (!std::ranges::all_of(yyyymmdd, is_digit)) return false;
    const auto number = [yyyymmdd](std::size_t at, std::size_t digits) {
        int value = 0;
        for (const char digit : yyyymmdd.substr(at, digits)) value = value * 10 + (digit - '0');
        return value;
    };
    const int year = number(0, 4);
    const int month = number(4, 2);
    const int day = number(6, 2);
    // Programs read a day and a month that can only be meant the other way round.
    return exists({year, month, day}) || exists({year, day, month});
}

block_facts facts_of(order_rows order) {
    constexpr std::size_t before_mark = sizeof(rec_orc) - sizeof(i16le);
    const order_rows used = without_empty_end(order);
    const rec_orc& head = used.front();
    block_facts facts;
    facts.used = static_cast<std::uint8_t>(used.size());
    facts.empty = used.size() == 1 && is_zero(head);
    if (facts.empty) return facts;
    bool same_mark = true;
    for (const rec_orc& row : used) {
        facts.control_bytes = facts.control_bytes || has_controls_in_texts(row);
        facts.print = mixed(facts.print, row, before_mark);
        same_mark = same_mark && row.annullato == head.annullato;
    }
    const double saved = head.data_reg;
    if (saved >= 1 && saved <= latest_day) facts.day_saved = std::floor(saved);
    if (facts.day_saved > 0 && saved != facts.day_saved) {
        facts.saved = mixed(mixed(1, head.data_reg), head.numero);
    }
    const bool together = first_foreign_row(used) == used.size();
    facts.half_deleted = together && !same_mark;
    facts.whole = together && same_mark;
    facts.deleted = head.annullato == 1;
    facts.fulfilled = head.evaso_flag == 1;
    facts.in_use = head.cliente >= 1 && is_stored_date(head.data.full());
    return facts;
}

}  // namespace vantora::archive
