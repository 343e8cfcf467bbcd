#include "archive/table_writer.h"
#include "store/records/rec_gnr.h"
#include "store/suite_paths.h"
#include "store/suite_table.h"
#include "store/text_reader.h"

namespace vantora::archive {

namespace {

std::vector<std::string> lines_of(company_files& company, const std::string& path) {
    std::vector<std::string> lines;
    text_reader reader(company.files().read_whole(path).value_or(""));
    for (std::string line; reader.line(line);) lines.push_back(line);
    return lines;
}

void export_list(table_id which, const std::vector<std::string>& entries, std::int64_t first,
                 table_writer& into) {
    into.begin(which, {{"id", content::whole},
                       {into.names("descrizione", "description"), content::words}});
    for (const std::string& one : entries) into.row({first++, cell_text(one)});
    into.end();
}

void export_vat(const tabella_iva& vat, table_writer& into) {
    const naming& names = into.names;
    into.begin(table_id::vat_codes, {{"id", content::whole},
                                     {names("aliquota", "rate"), content::words},
                                     {names("descrizione", "description"), content::words}});
    for (std::size_t code = 1; code <= 24; ++code) {
        into.row({static_cast<std::int64_t>(code),
                  code <= 12 ? cell_text(vat.aliquota_iva[code]) : std::string(),
                  code > 12 ? cell_text(vat.descrizione_iva[code - 12]) : std::string()});
    }
    into.end();
}

void export_carriers(const std::vector<vettore>& carriers, table_writer& into) {
    const naming& names = into.names;
    into.begin(table_id::carriers, {{"id", content::whole},
                                    {names("riga1", "line1"), content::words},
                                    {names("riga2", "line2"), content::words},
                                    {names("riga3", "line3"), content::words}});
    std::int64_t number = 0;
    for (const vettore& one : carriers) {
        into.row({++number, cell_text(one[0]), cell_text(one[1]), cell_text(one[2])});
    }
    into.end();
}

std::string what_is_counted(std::int64_t record, const naming& names) {
    constexpr std::pair<int, table_id> tables[] = {
        {contatori::clienti, table_id::customers},
        {contatori::articoli, table_id::articles},
        {contatori::magazzino, table_id::movements},
        {contatori::documenti_trasporto, table_id::documents},
        {contatori::ordini, table_id::orders},
        {contatori::preventivi, table_id::quotes},
    };
    for (const auto& [counter, table] : tables) {
        if (counter == record) return names(table);
    }
    return {};
}

void export_counters(company_files& company, table_writer& into, gaps& missing) {
    const naming& names = into.names;
    std::vector<table_column> columns{{"id", content::whole},
                                      {names("che_cosa", "what"), content::words}};
    add_columns(columns, fields_of(rec_tot{}), names);
    into.begin(table_id::counters, std::move(columns));
    const auto& counters = company.records().tot;
    const int unread = scan(counters, static_cast<int>(counters.records_held().value_or(0)),
                            [&](std::int64_t number, const rec_tot& one) {
                                into.row({number, what_is_counted(number, names)},
                                         [&](auto& cells) { add_cells(cells, one, into.to); });
                            });
    add_unread(counters, unread, missing);
    into.end();
}

struct parameter_file {
    const char* extension;
    bool general;
};

constexpr parameter_file parameter_files[] = {
    {"int", false}, {"pdf", false}, {"eur", true}, {"tbl", true}};

/// The parameters of the company, field by field, and of its text files line by line.
void export_parameters(company_files& company, table_writer& into) {
    const naming& names = into.names;
    into.begin(table_id::parameters,
               {{"file", content::words},
                {names("voce", "entry"), content::words},
                {names("valore", "value"), content::words}},
               2);
    const int number = company.numero_azienda();
    rec_gnr general;
    const auto bytes = company.files().read_whole(company_path(number, "gnr"));
    if (bytes && bytes->size() >= sizeof general) {
        std::memcpy(&general, bytes->data(), sizeof general);
        for (const record_field& field : fields_of(general)) {
            if (field.values > 1 || is_empty(general, field)) continue;
            into.row(
                {std::string("vantora.gnr"), std::string(field.name), plain_cell(general, field)});
        }
    }
    for (const parameter_file& file : parameter_files) {
        const auto path =
            file.general ? general_path(file.extension) : company_path(number, file.extension);
        int line = 0;
        for (const std::string& text : lines_of(company, path)) {
            into.row({std::string("vantora.") + file.extension, std::to_string(++line),
                      cell_text(text)});
        }
    }
    into.end();
}

}  // namespace

void export_lists(company_files& company, table_writer& into, gaps& missing) {
    const tabella_suite table = read_suite_table(company.files(), company.numero_azienda());
    export_vat(table.iva, into);
    export_list(table_id::payments, table.pagamenti, 1, into);
    export_list(table_id::transport_causes, table.causali, 1, into);
    export_list(table_id::goods_aspects, table.aspetti, 1, into);
    export_carriers(table.vettori, into);
    export_list(table_id::categories,
                lines_of(company, company_path(company.numero_azienda(), "tb2")), 0, into);
    export_counters(company, into, missing);
    export_parameters(company, into);
}

}  // namespace vantora::archive
