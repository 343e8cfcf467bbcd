#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "demo/articles.h"
#include "demo/draws.h"
#include "orders/stored_order.h"
#include "store/records/rec_cli.h"

namespace vantora::demo {

/// A line of a quote or an order; quantities in tenths, money in cents, texts in the code page.
struct document_line {
    int articolo = 0;  ///< record number; 0: free text
    std::string descrizione;
    std::string um;
    long long quantita = 0;
    long long evaso = 0;
    long long prezzo = 0;
    int iva = 0;
    int sc1 = 0;
    int sc2 = 0;

    [[nodiscard]] double stored_evaso() const { return static_cast<double>(evaso) / 10; }
    /// The line as the orders' screen has it.
    [[nodiscard]] riga_ordine typed() const;
};

/// Puts a line into a row of an order or a quote.
template <class Row>
void set_line(Row& row, const document_line& line) {
    fill_line(row, line.typed());
}

/// What a customer orders: articles at the customer's price list and discounts, with their long
/// texts below them, now and then a remark or the cost of carriage.
std::vector<document_line> draw_lines(draws& chance, const std::vector<article>& articles,
                                      const rec_cli& customer);

/// Price in cents less both discounts, each rounded to the cent.
long long net_price(const document_line& line);

}  // namespace vantora::demo
