#pragma once

#include <string>
#include <vector>

#include "archive/order_blocks.h"

namespace vantora::archive {

/// An article whose `ordinato_clienti` isn't what its open order rows add up to.
struct wrong_ordered_quantity {
    int articolo = 0;
    double stored = 0;     ///< what the article says
    double open = 0;       ///< what the orders have open of it
    bool odd_row = false;  ///< one of its rows has more fulfilled than ordered: that may be wrong
};

/// What the orders that aren't deleted have open of each article: quantity less fulfilled. A row
/// without a quantity has nothing open. If something was fulfilled of it, its quantity was taken
/// out afterwards, or a text row left the house with a quantity, which the article's figure
/// follows: the row doesn't tell which, so both are right.
class open_quantities {
 public:
    /// For articles 1 to `articles`.
    explicit open_quantities(int articles);

    void add(order_rows order);

    /// Whether a figure can be the article's, by more than adding up in another order can make it
    /// differ; always, for one that a row tells no number of.
    [[nodiscard]] bool explains(int article, double ordered) const;
    /// Whether what open orders committed of it can be so much.
    [[nodiscard]] bool explains_committed(int article, double committed) const;

    /// The articles whose figure isn't explained.
    [[nodiscard]] std::vector<wrong_ordered_quantity> compare(const masters& known) const;

    /// Whether any row counts in an article, and whether it counts with something open.
    [[nodiscard]] bool touches(int article) const { return at(article).moved != 0; }
    [[nodiscard]] double open_of(int article) const { return at(article).open; }
    [[nodiscard]] int articles() const { return static_cast<int>(by_article_.size()) - 1; }

    /// Both together.
    [[nodiscard]] open_quantities plus(const open_quantities& other) const;
    /// No figure of this article is judged any longer.
    void leave_out(int article) { at(article).known = false; }

 private:
    struct sum {
        double open = 0;
        double less = 0;       ///< what fulfilled rows without a quantity may have taken off
        double more = 0;       ///< or, taken back, added
        double moved = 0;      ///< of all amounts, whatever their sign: what rounding depends on
        double committed = 0;  ///< the most that can be set aside for open rows
        bool known = true;
        bool odd_row = false;
    };

    [[nodiscard]] const sum& at(int article) const {
        return by_article_[static_cast<std::size_t>(article)];
    }
    sum& at(int article) { return by_article_[static_cast<std::size_t>(article)]; }

    std::vector<sum> by_article_;  ///< from 1
};

}  // namespace vantora::archive
