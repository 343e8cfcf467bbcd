#include <cstring>

#include "archive/check.h"
#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "store/vat_codes.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

constexpr int lines_of_layout = 600;
constexpr int lines_of_heading = 20;
constexpr int lines_of_pdf_settings = 80;
/// The sections of the table file that this program reads, item lines counted once.
constexpr int lines_of_suite_table = 750;
constexpr int lines_of_report_table = 5 + 36 + 6 + 5;

struct text_table {
    const char* extension;
    bool general;  ///< of the folder that all companies share
    int lines;     ///< that it needs
    const char* fallback;
};

constexpr text_table text_tables[] = {
    {"int", false, lines_of_heading, "le righe che mancano dell'intestazione si stampano vuote"},
    {"lyo", false, lines_of_layout, "gli ordini si stampano in bianco"},
    {"lyb", false, lines_of_layout, "i documenti di trasporto si stampano in bianco"},
    {"pdf", false, lines_of_pdf_settings, "i PDF vanno nella radice del disco"},
    {"tab", false, lines_of_suite_table, "mancano aliquote, pagamenti e vettori"},
    {"tbl", true, lines_of_report_table, "le stampe hanno l'aspetto semplice"},
};

constexpr const char* from_a_copy = "Rimettere il file da una copia, o riscriverlo.";

/// The text of a file; empty, and told, if none can be read.
std::optional<std::string> text_of(company_files& company, const std::string& path,
                                   const std::string& name, const char* fallback, findings& into) {
    std::string obstacle = obstacle_at(company, path);
    auto content = obstacle.empty() ? company.files().read_whole(path) : std::nullopt;
    if (content) return content;
    if (obstacle.empty()) obstacle = "non si può leggere";
    into.push_back(
        {gravity::warning, "table-missing", name, obstacle + ": " + fallback, from_a_copy});
    return {};
}

void check_text_table(const text_table& table, company_files& company, findings& into) {
    const std::string name = std::string("vantora.") + table.extension;
    auto content = text_of(company,
                           table.general ? general_path(table.extension)
                                         : company_path(company.numero_azienda(), table.extension),
                           name, table.fallback, into);
    if (!content) return;
    text_reader reader(std::move(*content));
    int lines = 0;
    for (std::string line; reader.line(line);) ++lines;
    if (lines >= table.lines) return;
    into.push_back({gravity::warning, "table-short", name,
                    "finisce alla riga " + std::to_string(lines) + " di " +
                        std::to_string(table.lines) + ": " + table.fallback,
                    from_a_copy});
}

void check_currency(company_files& company, findings& into) {
    constexpr int needed = 5;
    constexpr const char* fallback = "gli importi sono in euro con due decimali";
    auto content = text_of(company, general_path("eur"), "vantora.eur", fallback, into);
    if (!content) return;
    text_reader reader(std::move(*content));
    int items = 0;
    for (std::string item; items < needed && reader.item(item); ++items) {
        const bool number = items == 0 || items == 1 || items == needed - 1;
        if (!number || whole_number_text(item)) continue;
        into.push_back({gravity::warning, "currency-value", "vantora.eur",
                        "il valore " + std::to_string(items + 1) + " («" + words_of(item) +
                            "») non è un numero",
                        from_a_copy});
    }
    if (items == needed) return;
    into.push_back({gravity::warning, "table-short", "vantora.eur",
                    "ha " + std::to_string(items) + " valori di 5: " + fallback, from_a_copy});
}

void check_general(company_files& company, findings& into) {
    const std::string name = "vantora.gnr";
    const auto content = text_of(company, company_path(company.numero_azienda(), "gnr"), name,
                                 "il prossimo avvio rifà i parametri dell'azienda con i valori "
                                 "normali",
                                 into);
    if (!content) return;
    rec_gnr gnr;
    std::memcpy(&gnr, content->data(), std::min(content->size(), sizeof gnr));
    if (content->size() < sizeof gnr) {
        into.push_back({gravity::error, "parameters-short", name,
                        "è lungo " + std::to_string(content->size()) + " byte invece di " +
                            std::to_string(sizeof gnr) +
                            ": quello che manca prende il valore "
                            "normale",
                        "Rimettere il file da una copia."});
        return;
    }
    if (gnr.formato_gnr.full() != "9") {
        into.push_back({gravity::warning, "parameters-old", name,
                        "ha la forma di una versione vecchia",
                        "Il prossimo avvio rimette l'aspetto normale degli elenchi."});
    }
    if (!is_vat_code(number_at_head(gnr.codice_iva_base.full()))) {
        into.push_back({gravity::warning, "parameters-vat-code", name,
                        "il codice IVA per le righe senza non è tra 01 e 24",
                        "Il prossimo avvio mette 01."});
    }
}

}  // namespace

void check_tables(company_files& company, findings& into) {
    check_general(company, into);
    check_currency(company, into);
    for (const text_table& table : text_tables) check_text_table(table, company, into);
}

}  // namespace vantora::archive
