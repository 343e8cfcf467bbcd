#include "archive/order_blocks.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "archive/line_check.h"

namespace vantora::archive {

namespace {

/// What every row of an order repeats, but for the mark of deletion.
bool same_head(const rec_orc& one, const rec_orc& other) {
    return one.numero == other.numero && one.data == other.data && one.cliente == other.cliente &&
           one.data_evasione == other.data_evasione && one.impegno == other.impegno;
}

/// Mixes bytes eight at a time: quick, and good enough to tell blocks that are compared anyway.
std::uint64_t mixed(std::uint64_t seed, std::span<const std::byte> bytes) {
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15;
    std::uint64_t sum = seed ^ (bytes.size() * factor);
    while (!bytes.empty()) {
        std::uint64_t word = 0;
        const std::size_t taken = std::min(bytes.size(), sizeof word);
        std::memcpy(&word, bytes.data(), taken);
        sum = (sum ^ word) * factor;
        sum ^= sum >> 29;
        bytes = bytes.subspan(taken);
    }
    return sum;
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
    return yyyymmdd.find_first_not_of("0123456789") == std::string_view::npos &&
           read_date(date_text_of_stored(yyyymmdd)).has_value();
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
        facts.print = mixed(facts.print, std::as_bytes(std::span(&row, 1)).first(before_mark));
        same_mark = same_mark && row.annullato == head.annullato;
    }
    const double saved = head.data_reg;
    if (saved >= 1 && saved <= latest_day) facts.day_saved = std::floor(saved);
    if (facts.day_saved > 0 && saved != facts.day_saved) {
        facts.saved = mixed(mixed(1, std::as_bytes(std::span(&head.data_reg, 1))),
                            std::as_bytes(std::span(&head.numero, 1)));
    }
    facts.half_deleted = !same_mark && first_foreign_row(used) == used.size();
    facts.whole = same_mark && first_foreign_row(used) == used.size();
    facts.deleted = head.annullato == 1;
    facts.fulfilled = head.evaso_flag == 1;
    facts.in_use = head.cliente >= 1 && is_stored_date(head.data.full());
    return facts;
}

}  // namespace vantora::archive
