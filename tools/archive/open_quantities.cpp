#include "archive/open_quantities.h"

#include <cmath>
#include <cstring>

namespace vantora::archive {

namespace {

/// Figures that saves and fulfilments moved step by step differ in their last digits.
constexpr double tolerance = 1e-9;

}  // namespace

open_quantities::open_quantities(std::int16_t articles)
    : by_article_(static_cast<std::size_t>(articles) + 1) {}

// The rows without those at the end that repeat an empty one, which have nothing to tell.
std::span<const rec_orc> open_quantities::without_empty_end(std::span<const rec_orc> order) {
    const rec_orc& last = order.back();
    if (last.quantita != 0 || last.evaso != 0 || last.prezzo != 0 || last.articolo != 0) {
        return order;
    }
    std::size_t used = order.size();
    while (used > 1 && std::memcmp(&order[used - 2], &last, sizeof last) == 0) --used;
    return order.first(used);
}

void open_quantities::add(std::span<const rec_orc> order) {
    if (order.front().annullato == 1) return;
    for (const rec_orc& row : order) {
        const std::int16_t article = row.articolo;
        if (article < 1 || static_cast<std::size_t>(article) >= by_article_.size()) continue;
        const double quantity = row.quantita;
        const double fulfilled = row.evaso;
        sum& its = by_article_[static_cast<std::size_t>(article)];
        if (!std::isfinite(quantity) || !std::isfinite(fulfilled)) {
            its.known = false;
            continue;
        }
        if (quantity != 0) {
            its.open += quantity - fulfilled;
        } else {
            (fulfilled > 0 ? its.less : its.more) += std::abs(fulfilled);
        }
        its.moved += std::abs(quantity) + std::abs(fulfilled);
    }
}

std::vector<wrong_ordered_quantity> open_quantities::compare(
    const channel<rec_art>& articles) const {
    std::vector<wrong_ordered_quantity> wrong;
    if (!complete_) return wrong;
    scan(articles, static_cast<int>(by_article_.size()) - 1,
         [&](std::int64_t number, const rec_art& article) {
             const sum& its = by_article_[static_cast<std::size_t>(number)];
             if (!its.known) return;
             const double stored = article.ordinato_clienti;
             const double allowed = tolerance * std::max({1.0, its.moved, std::abs(stored)});
             if (stored >= its.open - its.less - allowed &&
                 stored <= its.open + its.more + allowed) {
                 return;
             }
             wrong.push_back({static_cast<std::int16_t>(number), to_utf8(article.codice.trimmed()),
                              stored, its.open});
         });
    return wrong;
}

}  // namespace vantora::archive
