#include "archive/table_writer.h"

namespace vantora::archive {

namespace {

using rows = std::span<const rec_orc>;

constexpr const char* porti[] = {"Porto franco", "Porto assegnato", "Addebito in fattura", ""};
constexpr const char* trasporti[] = {"Mittente", "Destinatario", "Vettore", ""};

/// The texts of an order's first rows, which aren't lines: name of a column, row, place in it.
struct head_text {
    const char* column;
    const char* english;
    std::size_t row;
    text<40> rec_orc::*place;
};

constexpr head_text head_texts[] = {
    {"riferimento", "reference", 1, &rec_orc::testo1},
    {"riferimento2", "reference2", 1, &rec_orc::testo2},
    {"riferimento3", "reference3", 1, &rec_orc::testo3},
    {"destinazione", "destination", 2, &rec_orc::testo1},
    {"destinazione2", "destination2", 2, &rec_orc::testo2},
    {"destinazione_indirizzo", "destination_address", 2, &rec_orc::testo3},
    {"destinazione_cap", "destination_postal_code", 3, &rec_orc::testo1},
    {"destinazione_citta", "destination_town", 3, &rec_orc::testo2},
    {"vettore", "carrier", 4, &rec_orc::testo1},
    {"vettore2", "carrier2", 4, &rec_orc::testo2},
    {"vettore3", "carrier3", 4, &rec_orc::testo3},
    {"scelte", "choices", 3, &rec_orc::testo3},
};

/// Port, transport, payment and price of the packed choices; what isn't packed so says nothing.
void add_choices(std::vector<cell_value>& into, const std::string& packed) {
    const bool digits = packed.find_first_not_of("0123456789") == std::string::npos;
    if (!digits || packed.size() < 4 || packed.size() > 5) {
        into.insert(into.end(), 4, std::string());
        return;
    }
    const auto at = [&](std::size_t place) {
        return static_cast<std::size_t>(packed[place] - '0');
    };
    into.emplace_back(std::string(at(0) < 4 ? porti[at(0)] : ""));
    into.emplace_back(std::string(at(1) < 4 ? trasporti[at(1)] : ""));
    into.emplace_back(std::int64_t{std::stoi(packed.substr(2, packed.size() - 3))} + 1);
    if (packed.back() > '1') {
        into.emplace_back(std::string());
    } else {
        into.emplace_back(std::int64_t{packed.back() - '0'} + 1);
    }
}

void export_order_heads(company_files& company, table_writer& into, gaps& missing) {
    const naming& names = into.names;
    std::vector<table_column> columns{{"id", content::whole}};
    add_columns(columns, fields_of(rec_orc{}), names, of_head);
    for (const head_text& one : head_texts) {
        columns.push_back({names(one.column, one.english), content::words});
    }
    columns.push_back({names("porto", "port"), content::words});
    columns.push_back({names("trasporto", "transport"), content::words});
    columns.push_back({names("pagamento", "payment"), content::whole});
    columns.push_back({names("listino", "price_list"), content::whole});
    into.begin(table_id::orders, std::move(columns));
    const auto& orders = company.records().orc;
    const int unread =
        scan_blocks(orders, company.count(contatori::ordini), [&](int block, rows order) {
            into.row({std::int64_t{block}}, [&](auto& cells) {
                add_cells(cells, order[0], into.to, of_head);
                for (const head_text& one : head_texts) {
                    cells.push_back(cell_text((order[one.row - 1].*one.place).full()));
                }
                add_choices(cells, cell_text(order[2].testo3.full()));
            });
        });
    add_unread(orders, unread * static_cast<int>(righe_blocco), missing);
    into.end();
}

/// The lines of the blocks, keyed by block and row.
template <class Row>
void export_lines(const channel<Row>& from, int blocks, table_writer& into) {
    const naming& names = into.names;
    constexpr bool orders = std::is_same_v<Row, rec_orc>;
    std::vector<table_column> columns{
        {orders ? names("ordine", "order_id") : names("preventivo", "quote_id"), content::whole,
         names(orders ? table_id::orders : table_id::quotes)},
        {names("riga", "line"), content::whole}};
    add_columns(columns, fields_of(Row{}), names);
    into.begin(orders ? table_id::order_lines : table_id::quote_lines, std::move(columns), 2);
    scan_blocks(from, blocks, [&](int block, std::span<const Row> rows) {
        std::int64_t line = 0;
        for (const Row& row : rows) {
            ++line;
            if (!is_used(row)) continue;
            into.row({std::int64_t{block}, line}, [&](auto& cells) {
                for (const record_field& field : fields_of(row)) {
                    if (!field.column || field.head) continue;
                    cells.push_back(field.name == "descrizione" ? cell_value(row_description(row))
                                                                : meant_cell(row, field, into.to));
                }
            });
        }
    });
    into.end();
}

void export_quote_heads(company_files& company, table_writer& into, gaps& missing) {
    const naming& names = into.names;
    std::vector<table_column> columns{{"id", content::whole}};
    add_columns(columns, fields_of(rec_prv{}), names, of_head);
    into.begin(table_id::quotes, std::move(columns));
    const auto& quotes = company.records().prv;
    const int count = company.count(contatori::preventivi);
    const int unread = scan_blocks(quotes, count, [&](int block, std::span<const rec_prv> quote) {
        into.row({std::int64_t{block}},
                 [&](auto& cells) { add_cells(cells, quote[0], into.to, of_head); });
    });
    add_unread(quotes, unread * static_cast<int>(righe_blocco), missing);
    into.end();
}

}  // namespace

void export_orders(company_files& company, table_writer& into, gaps& missing) {
    archivi& files = company.records();
    export_order_heads(company, into, missing);
    export_lines(files.orc, company.count(contatori::ordini), into);
    export_quote_heads(company, into, missing);
    export_lines(files.prv, company.count(contatori::preventivi), into);
}

}  // namespace vantora::archive
