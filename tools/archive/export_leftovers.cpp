#include "archive/table_writer.h"

namespace vantora::archive {

namespace {

/// Whether the fields of the head of an order or quote count in a record, and the others.
struct what_counts {
    bool head;
    bool line;
};

using record_visit = std::function<void(const std::string& file, std::int64_t number,
                                        const any_record& one, what_counts counts)>;

/// Every record that a counter counts. Of an order or quote, row 1 speaks for its head, and a row
/// without a line for none.
void every_record(company_files& company, const referred& to, const record_visit& visit) {
    archivi& files = company.records();
    const auto all = [&](const auto& from, int count) {
        scan(from, count, [&](std::int64_t number, const auto& one) {
            visit(from.name(), number, one, {true, true});
        });
    };
    const auto rows = [&](const auto& from, int blocks) {
        scan_blocks(from, blocks, [&](int block, auto its) {
            for (std::size_t row = 0; row < its.size(); ++row) {
                visit(from.name(), block_record(block, static_cast<std::int64_t>(row) + 1),
                      its[row], {row == 0, is_used(its[row])});
            }
        });
    };
    all(files.cli, to.customers);
    all(files.art, to.articles);
    rows(files.orc, company.count(contatori::ordini));
    rows(files.prv, company.count(contatori::preventivi));
    all(files.mag, company.count(contatori::magazzino));
    all(files.bol, company.count(contatori::documenti_trasporto));
    all(files.tot, static_cast<int>(files.tot.records_held().value_or(0)));
}

std::vector<table_column> place_columns(const naming& names, content of_value) {
    return {{"file", content::words},
            {names("registrazione", "record"), content::whole},
            {names("campo", "field"), content::words},
            {names("valore", "value"), of_value}};
}

/// Fields that stand in the columns of orders and quotes as parts of something else; the texts of
/// an order's further rows mean nothing.
bool is_shown(const std::string& file, std::string_view field) {
    if (file == "vantora.orc" && field.starts_with("testo")) return true;
    return field == "descrizione2";
}

/// An article below 1 is none: its row is a text.
bool is_lost(const any_record& one, const record_field& field, const referred& to) {
    if (!is_reference(field)) return false;
    const double number = one.number(field);
    if (number == 0 || to.has(field.means, number)) return false;
    return number > 0 || field.means == meaning::customer;
}

}  // namespace

std::int64_t export_leftovers(company_files& company, table_writer& into) {
    struct lost_reference {
        std::string file;
        std::int64_t record;
        std::string_view field;
        std::int64_t value;
    };
    const naming& names = into.names;
    std::vector<lost_reference> lost;
    into.begin(table_id::other_fields, place_columns(names, content::words), 3);
    every_record(
        company, into.to,
        [&](const std::string& file, std::int64_t number, const any_record& one,
            what_counts counts) {
            for (const record_field& field : one.fields) {
                if (is_lost(one, field, into.to) && (field.head ? counts.head : counts.line)) {
                    lost.push_back(
                        {file, number, field.name, static_cast<std::int64_t>(one.number(field))});
                }
                if (field.column || is_empty(one, field) || is_shown(file, field.name)) {
                    continue;
                }
                into.row({file, number, std::string(field.name), plain_cell(one, field)});
            }
        });
    into.end();

    into.begin(table_id::missing_references, place_columns(names, content::whole), 3);
    for (const lost_reference& one : lost) {
        into.row({one.file, one.record, std::string(one.field), one.value});
    }
    into.end();
    return static_cast<std::int64_t>(lost.size());
}

}  // namespace vantora::archive
