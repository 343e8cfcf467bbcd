#include <cmath>

#include "archive/check.h"

namespace vantora::archive {

namespace {

/// Records behind the counter are what an unload left that never came to its end.
void check_rest(const company_files& company, const char* extension, std::int64_t record_length,
                int counter, const char* what, findings& into) {
    const std::int64_t held = company.length_of(extension).value_or(0) / record_length;
    const std::int64_t counted = company.count(counter);
    if (held <= counted) return;
    into.push_back({gravity::warning, std::string("vantora.") + extension,
                    std::to_string(held - counted) + " " + what + " lie behind the counter",
                    "An unload was interrupted: compare the stock of their articles; the next "
                    "ones are written over them."});
}

}  // namespace

void check_movements(company_files& company, findings& into) {
    check_rest(company, "mag", sizeof(rec_mag), contatori::magazzino, "warehouse movements", into);
    check_rest(company, "bol", sizeof(rec_bol), contatori::documenti_trasporto,
               "transport documents", into);
    const std::int16_t articles = company.count(contatori::articoli);
    const std::int16_t customers = company.count(contatori::clienti);
    int unread =
        scan(company.records().mag, company.count(contatori::magazzino),
             [&](std::int64_t number, const rec_mag& one) {
                 const std::string where = "movement " + std::to_string(number);
                 if (one.articolo < 1 || one.articolo > articles) {
                     into.push_back({gravity::error, where,
                                     "there is no article " + std::to_string(one.articolo),
                                     "Look its document up and enter the movement anew."});
                 }
                 if (!std::isfinite(one.quantita) || !std::isfinite(one.prezzo)) {
                     into.push_back({gravity::error, where, "its quantity or price is no number",
                                     "Look its document up and enter the movement anew."});
                 }
             });
    tell_unread(company.records().mag, unread, into);
    unread = scan(
        company.records().bol, company.count(contatori::documenti_trasporto),
        [&](std::int64_t number, const rec_bol& one) {
            if (one.cliente >= 1 && one.cliente <= customers) return;
            into.push_back({gravity::error, "transport document " + std::to_string(number),
                            "there is no customer " + std::to_string(one.cliente),
                            "Look its paper up; the register of documents shows it nameless."});
        });
    tell_unread(company.records().bol, unread, into);
}

}  // namespace vantora::archive
