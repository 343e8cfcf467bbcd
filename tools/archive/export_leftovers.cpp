#include "archive/table_writer.h"

namespace vantora::archive {

namespace {

/// visit(file, record number, record, which of its fields count) for every record that a counter
/// counts. Of an order or quote, row 1 speaks for its head, and a row without a line for none.
template <class Visit>
void every_record(company_files& company, const referred& to, Visit visit) {
    enum : bool { without_head, with_head };
    archivi& files = company.records();
    const auto all = [&](const auto& from, int count) {
        scan(from, count, [&](std::int64_t number, const auto& one) {
            visit(from.name(), number, one, with_head, true);
        });
    };
    const auto rows = [&](const auto& from, int blocks) {
        scan_blocks(from, blocks, [&](int block, auto its) {
            for (std::size_t row = 0; row < its.size(); ++row) {
                visit(from.name(), block_record(block, static_cast<std::int64_t>(row) + 1),
                      its[row], row == 0 ? with_head : without_head, is_used(its[row]));
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
template <class Record>
bool is_shown(const Record&, std::string_view name) {
    if (std::is_same_v<Record, rec_orc> && name.starts_with("testo")) return true;
    return name == "descrizione2";
}

/// An article below 1 is none: its row is a text.
bool is_lost(meaning means, std::int16_t value, const referred& to) {
    if (!is_reference(means) || value == 0 || to.has(means, value)) return false;
    return value > 0 || means == meaning::customer;
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
        [&](const std::string& file, std::int64_t number, const auto& one, bool head, bool line) {
            visit_fields(one, [&](const auto& field, const auto& value) {
                if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, i16le>) {
                    if (is_lost(field.means, value, into.to) && (field.head ? head : line)) {
                        lost.push_back({file, number, field.name, std::int16_t{value}});
                    }
                }
                if (field.column || is_empty(value) || is_shown(one, field.name)) return;
                into.row({file, number, std::string(field.name), plain_cell(value)});
            });
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
