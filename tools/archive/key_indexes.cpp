#include "archive/key_indexes.h"

#include <algorithm>

#include "archive/line_check.h"

namespace vantora::archive {

namespace {

unsigned char code_of_capital(char one) {
    return static_cast<unsigned char>(upper(one));
}

template <class Entry>
key_index read_index(const channel<Entry>& from, const char* extension, bool of_customers) {
    constexpr std::int64_t most = 32767;
    key_index index{extension, of_customers, decltype(Entry::chiave)::width, {}, 0, from.is_open()};
    const auto held = static_cast<int>(std::min(most, from.records_held().value_or(0)));
    index.entries.resize(static_cast<std::size_t>(held));
    index.unread = scan(from, held, [&index](std::int64_t position, const Entry& one) {
        index.entries[static_cast<std::size_t>(position) - 1] = {std::string(one.chiave.full()),
                                                                 one.numero, true};
    });
    return index;
}

}  // namespace

std::optional<std::string_view> key_index::key_of(const masters& known, int record) const {
    if (of_customers) {
        const rec_cli* one = known.customer(record);
        return one ? std::optional(one->intestazione1.full()) : std::nullopt;
    }
    const rec_art* one = known.article(record);
    if (!one) return {};
    return extension == std::string_view("sra") ? one->codice.full() : one->codice_barre.full();
}

std::string key_index::record_named(const masters& known, int record) const {
    return of_customers ? "cliente " + known.customer_named(record) : known.article_named(record);
}

bool same_key(std::string_view one, std::string_view other) {
    return std::ranges::equal(trimmed(one), trimmed(other), {}, code_of_capital, code_of_capital);
}

// Some sort by all characters of the key, some by it without the blanks around.
bool out_of_order(std::string_view before, std::string_view key) {
    const auto precedes = [](std::string_view one, std::string_view other) {
        return std::ranges::lexicographical_compare(one, other, {}, code_of_capital,
                                                    code_of_capital);
    };
    return precedes(trimmed(key), trimmed(before)) && precedes(key, before);
}

bool is_lost_key(std::string_view of_record, std::string_view of_entry) {
    const bool damaged = words_of(of_record).empty() || has_controls(of_record);
    return damaged && !words_of(of_entry).empty() && !has_controls(of_entry);
}

std::array<key_index, 3> read_key_indexes(company_files& company) {
    archivi& files = company.records();
    return {read_index(files.src, "src", true), read_index(files.sra, "sra", false),
            read_index(files.srb, "srb", false)};
}

bool fits(const key_index& index, const masters& known, int count) {
    if (static_cast<int>(index.entries.size()) < count) return false;
    std::vector<bool> met(static_cast<std::size_t>(count) + 1);
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        const key_index::entry& one = index.entries[i];
        if (!one.read || one.record < 1 || one.record > count) return false;
        const auto place = static_cast<std::size_t>(one.record);
        const auto key = index.key_of(known, one.record);
        if (met[place] || !key || !same_key(*key, one.key)) return false;
        if (i > 0 && out_of_order(index.entries[i - 1].key, one.key)) return false;
        met[place] = true;
    }
    return true;
}

}  // namespace vantora::archive
