#include <cmath>

#include "archive/check.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

struct stock_figure {
    const char* name;
    f64le rec_art::*field;
};

constexpr stock_figure stock_figures[] = {
    {"giacenza", &rec_art::giacenza},
    {"impegnato", &rec_art::impegnato},
    {"ordinato_clienti", &rec_art::ordinato_clienti},
    {"scaricato", &rec_art::scaricato},
    {"valore_scaricato", &rec_art::valore_scaricato},
    {"prezzo1", &rec_art::prezzo1},
    {"prezzo2", &rec_art::prezzo2},
};

std::string article_named(std::int64_t number, std::string_view code) {
    return "article " + std::to_string(number) + " (" + std::string(code) + ")";
}

}  // namespace

void check_stock(company_files& company, const open_quantities& open, findings& into) {
    const channel<rec_art>& articles = company.records().art;
    scan(articles, company.count(contatori::articoli),
         [&](std::int64_t number, const rec_art& article) {
             for (const stock_figure& one : stock_figures) {
                 if (std::isfinite(article.*(one.field))) continue;
                 into.push_back({gravity::error,
                                 article_named(number, to_utf8(article.codice.trimmed())),
                                 std::string(one.name) + " is no number",
                                 "Set it right in the suite's article module."});
             }
         });
    if (!open.complete()) {
        into.push_back({gravity::note, articles.name(),
                        "what the orders have open couldn't be compared, as not all can be read",
                        "Check again once the orders are whole."});
    }
    for (const wrong_ordered_quantity& one : open.compare(articles)) {
        if (!std::isfinite(one.stored)) continue;
        into.push_back({gravity::error, article_named(one.articolo, one.codice),
                        "ordinato_clienti is " + plain_text(one.stored) +
                            ", the open orders add up to " + plain_text(one.open),
                        "Run \"repair ordered-quantities\"."});
    }
}

}  // namespace vantora::archive
