#pragma once

#include <type_traits>

#include "archive/export_tables.h"

namespace vantora::archive {

// Columns and cells of the records, by the tables of their fields.

/// The names: a shop's, or English ones for programs.
struct naming {
    bool english = false;

    [[nodiscard]] const char* operator()(const char* shop, const char* program) const {
        return english ? program : shop;
    }
    [[nodiscard]] const char* operator()(table_id which) const {
        const table_names& both = names_of_tables[static_cast<std::size_t>(which)];
        return english ? both.program : both.shop;
    }
};

/// A text without what pads it.
inline std::string_view without_padding(std::string_view stored) {
    const auto pads = [](char one) { return one == ' ' || one == '\0'; };
    while (!stored.empty() && pads(stored.back())) stored.remove_suffix(1);
    while (!stored.empty() && pads(stored.front())) stored.remove_prefix(1);
    return stored;
}

/// A text as a cell: without what pads it; a control character shows as one.
std::string cell_text(std::string_view stored);
/// yyyy-mm-dd of a stored date; what is no date stays as it is.
std::string cell_date(std::string_view stored);
/// The date of a date number, with the time if it has one; empty for 0.
std::string cell_day(double days);

namespace detail {
template <class Value>
inline constexpr bool is_text = false;
template <std::size_t N>
inline constexpr bool is_text<text<N>> = true;
}  // namespace detail

/// The value of a field as it stands.
template <class Value>
cell_value plain_cell(const Value& value) {
    if constexpr (detail::is_text<Value>) {
        return cell_text(value.full());
    } else if constexpr (std::is_same_v<Value, i16le>) {
        return std::int64_t{std::int16_t{value}};
    } else if constexpr (std::is_same_v<Value, f32le>) {
        return double{float{value}};
    } else {
        return double{value};
    }
}

template <class Value>
bool is_empty(const Value& value) {
    if constexpr (detail::is_text<Value>) {
        return without_padding(value.full()).empty();
    } else {
        return value == 0;
    }
}

/// How many customers and articles there are for records to refer to.
struct referred {
    std::int16_t customers = 0;
    std::int16_t articles = 0;

    [[nodiscard]] bool has(meaning of, std::int16_t number) const {
        return number >= 1 && number <= (of == meaning::customer ? customers : articles);
    }
};

inline bool is_reference(meaning of) {
    return of == meaning::customer || of == meaning::article;
}

/// A field by what it stands for: a reference to what isn't there is empty.
template <class Field, class Value>
cell_value meant_cell(const Field& field, const Value& value, const referred& to) {
    if constexpr (detail::is_text<Value>) {
        return field.means == meaning::date ? cell_date(value.full()) : cell_text(value.full());
    } else if constexpr (std::is_same_v<Value, i16le>) {
        if (is_reference(field.means) && !to.has(field.means, value)) return std::string();
        return plain_cell(value);
    } else {
        if (field.means == meaning::day) return cell_day(value);
        return plain_cell(value);
    }
}

template <class Field>
table_column column_of(const Field& field, const naming& names) {
    using value = typename Field::value_type;
    table_column column{names(field.column, field.english), content::number};
    if constexpr (detail::is_text<value>) column.of = content::words;
    if constexpr (std::is_same_v<value, i16le>) column.of = content::whole;
    if (field.means == meaning::date || field.means == meaning::day) column.of = content::date;
    if (field.means == meaning::customer) column.refers_to = names(table_id::customers);
    if (field.means == meaning::article) column.refers_to = names(table_id::articles);
    return column;
}

/// The columns of a record that have names; of a row of an order or quote, those of its head or
/// those of its line.
template <class Record>
void add_columns(std::vector<table_column>& into, const naming& names, bool head = false) {
    visit_fields(Record{}, [&](const auto& field, const auto&) {
        if (field.column && field.head == head) into.push_back(column_of(field, names));
    });
}

/// The cells of those columns.
template <class Record>
void add_cells(std::vector<cell_value>& into, const Record& one, const referred& to,
               bool head = false) {
    visit_fields(one, [&](const auto& field, const auto& value) {
        if constexpr (!std::is_array_v<std::remove_cvref_t<decltype(value)>>) {
            if (field.column && field.head == head) into.push_back(meant_cell(field, value, to));
        }
    });
}

}  // namespace vantora::archive
