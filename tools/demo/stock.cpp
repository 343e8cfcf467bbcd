#include "demo/stock.h"

#include <algorithm>

namespace vantora::demo {

namespace {

article* article_of(const document_line& line, std::vector<article>& articles) {
    return line.articolo > 0 ? &articles[static_cast<std::size_t>(line.articolo - 1)] : nullptr;
}

void release(article& one, long long quantity) {
    const long long given_back = std::min(quantity, one.impegnato);
    one.giacenza += given_back;
    one.impegnato -= given_back;
}

}  // namespace

void book_order(const std::vector<document_line>& lines, bool committed,
                std::vector<article>& articles) {
    for (const document_line& line : lines) {
        article* const one = article_of(line, articles);
        if (!one) continue;
        one->ordinato_clienti += line.quantita;
        if (!committed) continue;
        const long long taken = std::min(line.quantita, one->giacenza);
        one->giacenza -= taken;
        one->impegnato += taken;
    }
}

void unbook_order(const std::vector<document_line>& lines, bool committed,
                  std::vector<article>& articles) {
    for (const document_line& line : lines) {
        article* const one = article_of(line, articles);
        if (!one) continue;
        one->ordinato_clienti -= line.quantita;
        if (committed) release(*one, line.quantita);
    }
}

void deliver(document_line& line, long long quantity, bool committed,
             std::vector<article>& articles) {
    line.evaso += quantity;
    article* const one = article_of(line, articles);
    if (!one) return;
    one->ordinato_clienti -= quantity;
    if (committed) release(*one, quantity);
    if (one->giacenza < quantity) one->giacenza += 4 * quantity;
    one->giacenza -= quantity;
    one->scaricato += quantity;
    one->valore_scaricato += net_price(line) * quantity;
}

}  // namespace vantora::demo
