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

/// Lines of a text file; empty if it can't be read.
std::optional<int> lines_of(drive& files, const std::string& path) {
    auto content = files.read_whole(path);
    if (!content) return {};
    text_reader reader(std::move(*content));
    int lines = 0;
    for (std::string line; reader.line(line);) ++lines;
    return lines;
}

struct text_table {
    const char* extension;
    bool general;  ///< of the folder that all companies share
    int lines;     ///< that it needs
    const char* fallback;
};

constexpr text_table text_tables[] = {
    {"int", false, lines_of_heading, "the missing lines of the company's heading print empty"},
    {"lyo", false, lines_of_layout, "orders print blank"},
    {"lyb", false, lines_of_layout, "transport documents print blank"},
    {"pdf", false, lines_of_pdf_settings, "PDF files go to the root of the drive"},
    {"tab", false, lines_of_suite_table, "rates, payment terms and carriers are missing"},
    {"tbl", true, lines_of_report_table, "reports print in the plain style"},
};

void check_text_table(const text_table& table, company_files& company, findings& into) {
    const std::string name = std::string("vantora.") + table.extension;
    const auto lines = lines_of(
        company.files(), table.general ? file_generale(table.extension)
                                       : file_azienda(company.numero_azienda(), table.extension));
    const char* advice = "Put the file back from a copy, or write it anew with the suite.";
    if (!lines) {
        into.push_back({gravity::warning, name,
                        std::string("the file isn't there: ") + table.fallback, advice});
    } else if (*lines < table.lines) {
        into.push_back({gravity::warning, name,
                        "it ends after line " + std::to_string(*lines) + " of " +
                            std::to_string(table.lines) + ": " + table.fallback,
                        advice});
    }
}

void check_currency(company_files& company, findings& into) {
    const auto content = company.files().read_whole(file_generale("eur"));
    text_reader reader(content.value_or(""));
    int items = 0;
    std::string item;
    while (items < 5 && reader.item(item)) ++items;
    if (items == 5) return;
    into.push_back({gravity::warning, "vantora.eur",
                    content ? "it has " + std::to_string(items) +
                                  " of 5 values: amounts count in euro with two decimals"
                            : "the file isn't there: amounts count in euro with two decimals",
                    "Put the file back from a copy."});
}

void check_general(company_files& company, findings& into) {
    const auto content = company.files().read_whole(file_azienda(company.numero_azienda(), "gnr"));
    if (!content) {
        into.push_back({gravity::warning, "vantora.gnr",
                        "the company's parameters aren't there or can't be read",
                        "The next start makes them anew with their defaults."});
        return;
    }
    rec_gnr gnr;
    std::memcpy(&gnr, content->data(), std::min(content->size(), sizeof gnr));
    if (content->size() < sizeof gnr) {
        into.push_back({gravity::error, "vantora.gnr",
                        "it is " + std::to_string(content->size()) + " bytes long instead of " +
                            std::to_string(sizeof gnr) + ": what is missing gets its default",
                        "Put the file back from a copy."});
        return;
    }
    if (gnr.formato_gnr.full() != "9") {
        into.push_back({gravity::warning, "vantora.gnr", "it has the form of an older version",
                        "The next start sets the look of the lists to its defaults."});
    }
    const double code = number_at_head(gnr.codice_iva_base.full());
    if (!is_vat_code(code)) {
        into.push_back({gravity::warning, "vantora.gnr",
                        "the VAT code for lines without one isn't between 01 and 24",
                        "The next start sets it to 01."});
    }
}

}  // namespace

void check_tables(company_files& company, findings& into) {
    check_general(company, into);
    check_currency(company, into);
    for (const text_table& table : text_tables) check_text_table(table, company, into);
}

}  // namespace vantora::archive
