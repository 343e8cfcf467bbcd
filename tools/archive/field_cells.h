#pragma once

#include "archive/export_tables.h"
#include "store/record_fields.h"

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
std::string_view without_padding(std::string_view stored);

/// A text as a cell: without what pads it; a control character shows as one.
std::string cell_text(std::string_view stored);
/// The value of a field as it stands; `which` of an array.
cell_value plain_cell(const any_record& one, const record_field& field, std::size_t which = 0);
/// Whether a field says nothing.
bool is_empty(const any_record& one, const record_field& field);

/// How many customers and articles there are for records to refer to.
struct referred {
    std::int16_t customers = 0;
    std::int16_t articles = 0;

    [[nodiscard]] bool has(meaning of, double number) const {
        return number >= 1 && number <= (of == meaning::customer ? customers : articles);
    }
};

inline bool is_reference(const record_field& field) {
    return field.means == meaning::customer || field.means == meaning::article;
}

/// A field by what it stands for: a reference to what isn't there is empty.
cell_value meant_cell(const any_record& one, const record_field& field, const referred& to);

/// The columns of a record that have names; of a row of an order or quote, those of its head or
/// those of its line.
void add_columns(std::vector<table_column>& into, record_table fields, const naming& names,
                 bool head = false);
/// The cells of those columns.
void add_cells(std::vector<cell_value>& into, const any_record& one, const referred& to,
               bool head = false);

}  // namespace vantora::archive
