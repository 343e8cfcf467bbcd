#include "archive/table_writer.h"
#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

/// A transport document as the text file beside its record tells it.
struct snapshot {
    static constexpr std::size_t head_lines = 10;
    static constexpr std::size_t values_of_row = 10;
    static constexpr std::size_t tail_lines = 10;
    static constexpr std::size_t lines = head_lines + righe_blocco * values_of_row + tail_lines;

    std::vector<std::string> values;  ///< one a line

    [[nodiscard]] std::string text(std::size_t line) const { return cell_text(values[line]); }
    [[nodiscard]] double number(std::size_t line) const { return number_at_head(values[line]); }
};

/// The file of a record, or what is wrong with it. That it isn't there is nothing wrong: the suite
/// needs it no more once the document is out.
std::optional<snapshot> snapshot_of(company_files& company, const rec_bol& record, gaps& missing) {
    const std::string name = "b" + masked(double{float{record.progressivo}}, "##########0");
    const std::string path = folder_of_company(company.numero_azienda()) + "\\" + name;
    if (!company.files().exists(path)) return {};
    auto content = company.files().read_whole(path);
    if (!content) {
        missing.push_back({name, "non si può leggere"});
        return {};
    }
    snapshot read;
    text_reader reader(std::move(*content));
    for (std::string line; reader.line(line);) read.values.push_back(std::move(line));
    if (read.values.size() < snapshot::lines) {
        missing.push_back({name, "è tagliato"});
        return {};
    }
    if (read.number(0) != record.cliente || read.number(1) != record.numero) {
        missing.push_back(
            {name, "è di un altro documento, non del " + std::to_string(record.numero)});
        return {};
    }
    return read;
}

struct named_line {
    const char* column;
    const char* english;
    std::size_t line;
    bool counted = false;  ///< a place in a list, from 0
};

constexpr std::size_t tail = snapshot::lines - snapshot::tail_lines;
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
    exported_table table{names("ddt", "transport_documents"), {{"id", content::whole}}};
    add_columns<rec_bol>(table.columns, names);
    table.columns.push_back({names("con_righe", "with_lines"), content::whole});
    for (const named_line& one : head_lines) {
        table.columns.push_back(
            {names(one.column, one.english), one.counted ? content::whole : content::words});
    }
    into.begin(std::move(table));
    const auto& documents = company.records().bol;
    const int unread =
        scan(documents, company.count(contatori::documenti_trasporto),
             [&](std::int64_t number, const rec_bol& one) {
                 const auto content = snapshot_of(company, one, missing);
                 into.row({number}, [&](auto& cells) {
                     add_cells(cells, one, into.to);
                     cells.emplace_back(std::int64_t{content ? 1 : 0});
                     for (const named_line& place : head_lines) {
                         if (!content) {
                             cells.emplace_back(std::string());
                         } else if (place.counted) {
                             cells.emplace_back(
                                 static_cast<std::int64_t>(content->number(place.line)) + 1);
                         } else {
                             cells.emplace_back(content->text(place.line));
                         }
                     }
                 });
             });
    add_unread(documents, unread, missing);
    into.end();
}

void add_line(std::vector<cell_value>& cells, const snapshot& of, std::size_t at,
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
    into.begin({names("righe_ddt", "transport_document_lines"),
                {{names("ddt", "document"), content::whole, names("ddt", "transport_documents")},
                 {names("riga", "line"), content::whole},
                 {names("articolo", "article"), content::whole, names("articoli", "articles")},
                 {names("codice", "code"), content::words},
                 {names("descrizione", "description"), content::words},
                 {names("unita_misura", "unit"), content::words},
                 {names("sconto1", "discount1"), content::number},
                 {names("sconto2", "discount2"), content::number},
                 {names("codice_iva", "vat_code"), content::number},
                 {names("quantita", "quantity"), content::number},
                 {names("prezzo", "price"), content::number}},
                2});
    gaps told_already;
    scan(company.records().bol, company.count(contatori::documenti_trasporto),
         [&](std::int64_t number, const rec_bol& one) {
             const auto content = snapshot_of(company, one, told_already);
             for (std::size_t row = 0; content && row < righe_blocco; ++row) {
                 const std::size_t at = snapshot::head_lines + row * snapshot::values_of_row;
                 if (content->number(at) < 1 && content->text(at + 3).empty() &&
                     content->number(at + 8) == 0 && content->number(at + 9) == 0) {
                     continue;
                 }
                 into.row({number, static_cast<std::int64_t>(row) + 1},
                          [&](auto& cells) { add_line(cells, *content, at, into.to); });
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
