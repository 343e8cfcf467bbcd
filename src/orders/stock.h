#pragma once

#include "orders/order_lines.h"
#include "store/archive_change.h"
#include "store/records/rec_art.h"

namespace vantora {

// What the quantities of order and document lines do to the stock figures of their articles. The
// first four touch no file. A figure that would leave the range of numbers stays as it was.

/// A quantity is ordered: `ordinato_clienti` rises. With `commit` stock is set aside for it, as
/// far as `giacenza` goes. No guard: a negative quantity and negative stock move by the same rule.
void order_stock(rec_art& article, double quantity, bool commit);

/// An ordered quantity is no longer open, because its line was changed or deleted or because it
/// was fulfilled: `ordinato_clienti` falls. With `committed` what was set aside for it becomes
/// free stock again, as far as `impegnato` goes.
void release_stock(rec_art& article, double quantity, bool committed);

/// A quantity leaves the warehouse at a net unit price.
void unload_stock(rec_art& article, double quantity, double net_price);

/// Puts the figures of a customer's order back to what they were `before` something of this program
/// that left them as `after`; what another program changed since then stays changed.
void restore_stock(rec_art& article, const rec_art& before, const rec_art& after);

/// How an article's stock stands. What is set aside for orders still lies in the warehouse, though
/// `giacenza` no longer counts it.
struct scorta {
    double in_magazzino = 0;
    double impegnato = 0;
    double libero = 0;    ///< can be given to whoever asks
    double ordinato = 0;  ///< by customers, and not delivered yet
};
scorta stock_of(const rec_art& article);

/// Whether a number is that of an article when there are so many; others are free text.
constexpr bool is_article(int number, int articles) {
    return number >= 1 && number <= articles;
}

/// How many lines have stock behind them: those with a quantity of an article.
int lines_with_stock(const righe_ordine& lines, int articles);

/// Reads article `number`, changes it by `change_it(article)` and writes it back, with nothing
/// between. True if it was written; an article out of range or unreadable is left alone.
template <class ChangeIt>
bool change_article(archive_change& change, channel<rec_art>& files, int number, int articles,
                    ChangeIt change_it) {
    rec_art article;
    if (!is_article(number, articles) || !change.read(files, number, article)) return false;
    change_it(article);
    return change.write(files, number, article);
}

}  // namespace vantora
