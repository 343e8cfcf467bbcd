#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "archive/gaps.h"

namespace vantora::archive {

/// The tables that an export may hold.
enum class table_id {
    customers,
    articles,
    article_texts,
    orders,
    order_lines,
    quotes,
    quote_lines,
    movements,
    documents,
    document_lines,
    vat_codes,
    payments,
    transport_causes,
    goods_aspects,
    carriers,
    categories,
    counters,
    parameters,
    other_fields,
    missing_references,
    missing,
};

/// What each is called: by a shop, and for programs.
struct table_names {
    const char* shop;
    const char* program;
};

inline constexpr table_names names_of_tables[] = {
    {"clienti", "customers"},
    {"articoli", "articles"},
    {"testi_articoli", "article_texts"},
    {"ordini", "orders"},
    {"righe_ordini", "order_lines"},
    {"preventivi", "quotes"},
    {"righe_preventivi", "quote_lines"},
    {"movimenti", "movements"},
    {"ddt", "transport_documents"},
    {"righe_ddt", "transport_document_lines"},
    {"codici_iva", "vat_codes"},
    {"pagamenti", "payments"},
    {"causali", "transport_causes"},
    {"aspetti", "goods_aspects"},
    {"vettori", "carriers"},
    {"categorie", "categories"},
    {"contatori", "counters"},
    {"parametri", "parameters"},
    {"altri_campi", "other_fields"},
    {"riferimenti_mancanti", "missing_references"},
    {"mancanze", "missing"},
};

/// What a column of an exported table holds.
enum class content { whole, number, words, date };

struct table_column {
    const char* name;
    content of;
    const char* refers_to = nullptr;  ///< table whose `id` it holds, or null
};

/// One table of the export. Its key are the columns in front.
struct exported_table {
    const char* name;
    std::vector<table_column> columns;
    int key_columns = 1;
};

/// A value of a row: a whole number, a number, a text (UTF-8; a date as yyyy-mm-dd, a day with its
/// time as yyyy-mm-dd hh:mm:ss, what is no date as it stands; empty for none).
using cell_value = std::variant<std::int64_t, double, std::string>;

/// Takes the tables, one after the other.
class table_sink {
 public:
    virtual ~table_sink() = default;
    virtual void begin(const exported_table& table) = 0;
    virtual void row(std::span<const cell_value> values) = 0;
    virtual void end() = 0;
    /// Puts all of it in its place. False, with everything there as it was, if anything failed.
    virtual bool finish() = 0;
};

/// What an export wrote.
struct export_outcome {
    gaps missing;  ///< with gaps from the beginning, those that reading met
    std::int64_t tables = 0;
    std::int64_t rows = 0;
    std::int64_t lost_references = 0;
};

/// Where an export is: the table, and all rows so far.
using export_progress = std::function<void(const std::string& table, std::int64_t rows)>;

/// Hands over everything that the program knows of a company: customers, articles and their long
/// texts, orders and quotes with their lines, movements, transport documents with their lines, the
/// suite's tables, counters and parameters. Lines that hold nothing are left out; deleted records
/// say so in a column. What belongs to other programs stands field by field in a table of its own,
/// and so do references to records that there aren't, which are empty where they stood. `missing`:
/// what is known to be missing; if there is anything, a table of it goes along.
export_outcome export_tables(company_files& company, table_sink& into, bool english, gaps missing,
                             export_progress tell = {});

}  // namespace vantora::archive
