#pragma once

#include <initializer_list>

#include "archive/field_cells.h"

namespace vantora::archive {

/// Puts rows together for a sink and counts them.
class table_writer {
 public:
    table_writer(table_sink& into, bool english, const referred& to, export_progress tell)
        : names{english}, to(to), into_(into), tell_(std::move(tell)) {}

    /// `key_columns` of the columns in front are its key.
    void begin(table_id which, std::vector<table_column> columns, int key_columns = 1) {
        ++tables_;
        table_ = names(which);
        into_.begin({names(which), std::move(columns), key_columns});
    }
    void end() { into_.end(); }

    /// One row: key cells, and what `fill(cells)` adds.
    template <class Fill>
    void row(std::initializer_list<cell_value> key, Fill fill) {
        cells_.assign(key);
        fill(cells_);
        into_.row(cells_);
        if (++rows_ % 1024 == 0 && tell_) tell_(table_, rows_);
    }
    void row(std::initializer_list<cell_value> cells) {
        row(cells, [](auto&) {});
    }

    /// A table of the named fields of all records of a file, with their numbers as `id`.
    template <class Record>
    void records(table_id which, const channel<Record>& from, int count, gaps& missing) {
        std::vector<table_column> columns{{"id", content::whole}};
        add_columns(columns, fields_of(Record{}), names);
        begin(which, std::move(columns));
        const int unread = scan(from, count, [&](std::int64_t number, const Record& one) {
            row({number}, [&](auto& cells) { add_cells(cells, one, to); });
        });
        add_unread(from, unread, missing);
        end();
    }

    [[nodiscard]] std::int64_t tables() const { return tables_; }
    [[nodiscard]] std::int64_t rows() const { return rows_; }

    const naming names;
    const referred to;

 private:
    table_sink& into_;
    export_progress tell_;
    std::string table_;
    std::vector<cell_value> cells_;
    std::int64_t tables_ = 0;
    std::int64_t rows_ = 0;
};

// The tables, a subject each ---------------------------------------------------------------------

/// Orders and quotes with their lines.
void export_orders(company_files& company, table_writer& into, gaps& missing);
/// Transport documents, and their lines from the text files beside the records.
void export_documents(company_files& company, table_writer& into, gaps& missing);
/// VAT codes, payments, causes, aspects, carriers, categories, counters, parameters.
void export_lists(company_files& company, table_writer& into, gaps& missing);
/// What of the records has no column; returns how many references lead nowhere.
std::int64_t export_leftovers(company_files& company, table_writer& into);

/// Whether a row of an order or quote holds a line.
template <class Row>
bool is_used(const Row& row) {
    return row.articolo > 0 || row.quantita != 0 || row.prezzo != 0 ||
           !without_padding(row.descrizione.full()).empty() ||
           !without_padding(row.descrizione2.full()).empty();
}

/// The description of a row, of its two fields.
template <class Row>
std::string row_description(const Row& row) {
    return cell_text(std::string(row.descrizione.full()).append(row.descrizione2.full()));
}

}  // namespace vantora::archive
