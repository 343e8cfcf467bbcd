#include "orders/stock.h"

#include <cmath>

#include "store/money.h"

namespace vantora {

namespace {

void add(f64le& figure, double amount) {
    const double sum = figure + amount;
    if (std::isfinite(sum)) figure = sum;
}

/// What can be taken of a quantity from what is there.
double at_most(double quantity, double there) {
    return quantity > there ? there : quantity;
}

}  // namespace

void order_stock(rec_art& article, double quantity, bool commit) {
    add(article.ordinato_clienti, quantity);
    if (!commit) return;
    const double set_aside = at_most(quantity, article.giacenza);
    add(article.giacenza, -set_aside);
    add(article.impegnato, set_aside);
}

void release_stock(rec_art& article, double quantity, bool committed) {
    add(article.ordinato_clienti, -quantity);
    if (!committed) return;
    const double freed = at_most(quantity, article.impegnato);
    add(article.giacenza, freed);
    add(article.impegnato, -freed);
}

void unload_stock(rec_art& article, double quantity, double net_price) {
    add(article.giacenza, -quantity);
    add(article.scaricato, quantity);
    add(article.valore_scaricato, net_price * quantity);
}

void restore_stock(rec_art& article, const rec_art& before, const rec_art& after) {
    for (f64le rec_art::*const figure :
         {&rec_art::ordinato_clienti, &rec_art::giacenza, &rec_art::impegnato}) {
        if (article.*figure == after.*figure) {
            article.*figure = before.*figure;
        } else {
            add(article.*figure, before.*figure - after.*figure);
        }
    }
}

scorta stock_of(const rec_art& article) {
    return {finite_or_zero(article.giacenza + article.impegnato), finite_or_zero(article.impegnato),
            finite_or_zero(article.giacenza), finite_or_zero(article.ordinato_clienti)};
}

int lines_with_stock(const righe_ordine& lines, int articles) {
    int count = 0;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        const riga_ordine& line = lines[number];
        if (line.quantita != 0 && is_article(line.articolo, articles)) ++count;
    }
    return count;
}

}  // namespace vantora
