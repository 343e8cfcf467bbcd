#include <cmath>

#include "archive/check.h"
#include "archive/line_check.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

void check_committed(int number, const rec_art& one, const survey& found, findings& into) {
    const double committed = one.impegnato;
    if (beyond_reason(committed)) return;
    if (committed < 0) {
        into.push_back({gravity::warning, "committed-negative", found.known.article_named(number),
                        "l'impegnato è negativo (" + plain_text(committed) + ")",
                        "Succede quando si impegna merce con la giacenza sotto zero: contare la "
                        "merce e mettere a posto la giacenza nell'anagrafica degli articoli."});
    } else if (found.doubt.orders.empty() && found.doubt.articles.empty() &&
               !found.open.explains_committed(number, committed)) {
        into.push_back({gravity::warning, "committed-too-high", found.known.article_named(number),
                        "l'impegnato (" + plain_text(committed) +
                            ") è più di quanto gli ordini aperti con impegno possono tenere",
                        "Merce è rimasta impegnata senza ordine: contarla e mettere a posto "
                        "giacenza e impegnato nell'anagrafica degli articoli."});
    }
}

void check_ordered(const survey& found, findings& into) {
    if (!found.doubt.orders.empty() || !found.doubt.articles.empty()) {
        const std::string& why =
            found.doubt.orders.empty() ? found.doubt.articles : found.doubt.orders;
        into.push_back({gravity::note, "ordered-not-judged", "articoli",
                        "le quantità ordinate non si possono confrontare con gli ordini: " + why,
                        "Ripetere il controllo quando è a posto."});
        return;
    }
    for (const wrong_ordered_quantity& one : found.open.compare(found.known)) {
        if (beyond_reason(one.stored)) continue;
        if (one.odd_row) {
            into.push_back(
                {gravity::note, "ordered-quantity-odd", found.known.article_named(one.articolo),
                 "l'ordinato dai clienti è " + plain_text(one.stored) + ", gli ordini fanno " +
                     plain_text(one.open) + ", e in una sua riga l'evaso è più dell'ordinato",
                 "Vedere prima se quella riga è giusta."});
            continue;
        }
        into.push_back({gravity::error, "ordered-quantity", found.known.article_named(one.articolo),
                        "l'ordinato dai clienti è " + plain_text(one.stored) +
                            ", e gli ordini aperti fanno " + plain_text(one.open),
                        "Se gli ordini aperti di questo articolo sono giusti, metterlo a posto con "
                        "«repair ordered-quantities»."});
    }
}

}  // namespace

void check_stock(const survey& found, findings& into) {
    for (int number = 1; number <= found.known.articles(); ++number) {
        const rec_art* one = found.known.article(number);
        if (one) check_committed(number, *one, found, into);
    }
    check_ordered(found, into);
}

}  // namespace vantora::archive
