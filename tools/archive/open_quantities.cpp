#include "archive/open_quantities.h"

#include <algorithm>
#include <cmath>

#include "archive/line_check.h"

namespace vantora::archive {

namespace {

/// Figures that saves and fulfilments moved step by step differ in their last digits.
constexpr double tolerance = 1e-9;

}  // namespace

open_quantities::open_quantities(int articles)
    : by_article_(static_cast<std::size_t>(articles) + 1) {}

void open_quantities::add(order_rows order) {
    if (order.front().annullato == 1) return;
    for (const rec_orc& row : order) {
        const int article = row.articolo;
        if (article < 1 || article > articles()) continue;
        const double quantity = row.quantita;
        const double fulfilled = row.evaso;
        sum& its = at(article);
        if (beyond_reason(quantity) || beyond_reason(fulfilled)) {
            its.known = false;
            continue;
        }
        its.odd_row = its.odd_row || is_odd(quantity, fulfilled);
        if (quantity != 0) {
            its.open += quantity - fulfilled;
        } else {
            (fulfilled > 0 ? its.less : its.more) += std::abs(fulfilled);
        }
        if (row.impegno.full() != "0") its.committed += std::max(0.0, quantity - fulfilled);
        its.moved += std::abs(quantity) + std::abs(fulfilled);
    }
}

bool open_quantities::explains(int article, double ordered) const {
    const sum& its = at(article);
    if (!its.known) return true;
    const double allowed = tolerance * std::max({1.0, its.moved, std::abs(ordered)});
    return ordered >= its.open - its.less - allowed && ordered <= its.open + its.more + allowed;
}

bool open_quantities::explains_committed(int article, double committed) const {
    const sum& its = at(article);
    return !its.known || its.odd_row ||
           committed <= its.committed + tolerance * std::max(1.0, its.moved);
}

std::vector<wrong_ordered_quantity> open_quantities::compare(const masters& known) const {
    std::vector<wrong_ordered_quantity> wrong;
    for (int number = 1; number <= articles(); ++number) {
        const rec_art* article = known.article(number);
        if (!article || explains(number, article->ordinato_clienti)) continue;
        wrong.push_back({number, article->ordinato_clienti, at(number).open, at(number).odd_row});
    }
    return wrong;
}

open_quantities open_quantities::plus(const open_quantities& other) const {
    open_quantities both = *this;
    for (int number = 1; number <= articles(); ++number) {
        sum& its = both.at(number);
        const sum& more = other.at(number);
        its.open += more.open;
        its.less += more.less;
        its.more += more.more;
        its.moved += more.moved;
        its.committed += more.committed;
        its.known = its.known && more.known;
        its.odd_row = its.odd_row || more.odd_row;
    }
    return both;
}

}  // namespace vantora::archive
