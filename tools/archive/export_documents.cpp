#include "archive/document_text.h"
#include "archive/table_writer.h"

namespace vantora::archive {

namespace {

struct named_line {
    const char* column;
    const char* english;
    std::size_t line;
    bool counted = false;  ///< a place in a list, from 0
};

constexpr std::size_t tail = document_text::lines - document_text::tail_lines;
constexpr named_line head_lines[] = {
    {"numero_scritto", "number_typed", 1},
    {"data_scritta", "date_typed", 2},
    {"colli", "parcels", 3},
    {"peso", "weight", 4},
    {"inizio_trasporto", "start_date", 5},
    {"ora", "start_time", 6},
    {"causale", "cause", 7, true},
    {"aspetto", "aspect", 8, true},
    {"porto_trasporto", "port_transport", 9},
    {"destinazione", "destination", tail},
    {"destinazione2", "destination2", tail + 1},
    {"destinazione_indirizzo", "destination_address", tail + 2},
    {"destinazione_cap", "destination_postal_code", tail + 3},
    {"destinazione_citta", "destination_town", tail + 4},
    {"vettore", "carrier", tail + 5},
    {"vettore2", "carrier2", tail + 6},
    {"vettore3", "carrier3", tail + 7},
    {"nota", "note", tail + 8},
    {"nota2", "note2", tail + 9},
};

void export_document_heads(company_files& company, table_writer& into, gaps& missing) {
    const naming& names = into.names;
    std::vector<table_column> columns{{"id", content::whole}};
    add_columns(columns, fields_of(rec_bol{}), names);
    columns.push_back({names("con_righe", "with_lines"), content::whole});
    for (const named_line& one : head_lines) {
        columns.push_back(
            {names(one.column, one.english), one.counted ? content::whole : content::words});
    }
    into.begin(table_id::documents, std::move(columns));
    const auto& documents = company.records().bol;
    document_text content(company);
    const int unread =
        scan(documents, company.count(contatori::documenti_trasporto),
             [&](std::int64_t number, const rec_bol& one) {
                 const bool known = content.read(one, missing);
                 into.row({number}, [&](auto& cells) {
                     add_cells(cells, one, into.to);
                     cells.emplace_back(std::int64_t{known ? 1 : 0});
                     for (const named_line& place : head_lines) {
                         if (!known) {
                             cells.emplace_back(std::string());
                         } else if (place.counted) {
                             cells.emplace_back(
                                 static_cast<std::int64_t>(content.number(place.line)) + 1);
                         } else {
                             cells.emplace_back(content.text(place.line));
                         }
                     }
                 });
             });
    add_unread(documents, unread, missing);
    into.end();
}

void add_line(std::vector<cell_value>& cells, const document_text& of, std::size_t at,
              const referred& to) {
    const double article = of.number(at);
    if (article >= 1 && article <= to.articles) {
        cells.emplace_back(static_cast<std::int64_t>(article));
    } else {
        cells.emplace_back(std::string());
    }
    for (std::size_t text = 2; text <= 4; ++text) cells.emplace_back(of.text(at + text));
    for (std::size_t number = 5; number <= 9; ++number) cells.emplace_back(of.number(at + number));
}

void export_document_lines(company_files& company, table_writer& into) {
    const naming& names = into.names;
    into.begin(table_id::document_lines,
               {{names("ddt", "document"), content::whole, names(table_id::documents)},
                {names("riga", "line"), content::whole},
                {names("articolo", "article"), content::whole, names(table_id::articles)},
                {names("codice", "code"), content::words},
                {names("descrizione", "description"), content::words},
                {names("unita_misura", "unit"), content::words},
                {names("sconto1", "discount1"), content::number},
                {names("sconto2", "discount2"), content::number},
                {names("codice_iva", "vat_code"), content::number},
                {names("quantita", "quantity"), content::number},
                {names("prezzo", "price"), content::number}},
               2);
    gaps told_already;
    document_text content(company);
    scan(company.records().bol, company.count(contatori::documenti_trasporto),
         [&](std::int64_t number, const rec_bol& one) {
             if (!content.read(one, told_already)) return;
             for (std::size_t row = 1; row <= righe_blocco; ++row) {
                 const std::size_t at = document_text::line_of(row);
                 if (!content.has_row(at)) continue;
                 into.row({number, static_cast<std::int64_t>(row)},
                          [&](auto& cells) { add_line(cells, content, at, into.to); });
             }
         });
    into.end();
}

}  // namespace

void export_documents(company_files& company, table_writer& into, gaps& missing) {
    export_document_heads(company, into, missing);
    export_document_lines(company, into);
}

}  // namespace vantora::archive
