#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "archive/company_files.h"

namespace vantora::archive {

/// What a column of an exported table holds.
enum class content { whole, number, words, date, yes_no };

struct table_column {
    const char* name;
    content of;
    const char* refers_to = nullptr;  ///< table whose `id` it holds, or null
};

/// One table of the export. The first column is `id`, unless there are two key columns.
struct exported_table {
    const char* name;
    std::vector<table_column> columns;
    int key_columns = 1;
};

/// A value of a row: a whole number or yes (1) and no (0), a number, a text (UTF-8; a date as
/// yyyy-mm-dd, empty for none).
using cell_value = std::variant<std::int64_t, double, std::string>;

/// Takes the tables, one after the other.
class table_sink {
 public:
    virtual ~table_sink() = default;
    virtual void begin(const exported_table& table) = 0;
    virtual void row(std::span<const cell_value> values) = 0;
    virtual void end() = 0;
};

/// Hands over customers, articles, orders, order lines, quotes, quote lines, movements and
/// transport documents. Rows of an order that hold nothing are left out; deleted records say so in
/// a column.
void export_tables(company_files& company, table_sink& into);

}  // namespace vantora::archive
