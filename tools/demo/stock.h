#pragma once

#include <vector>

#include "demo/articles.h"
#include "demo/lines.h"

namespace vantora::demo {

// How an order moves the stock of its articles. Lines of free text move none.

/// Saving: the quantities are on order; with `committed`, free stock moves to the committed one
/// as far as there is any.
void book_order(const std::vector<document_line>& lines, bool committed,
                std::vector<article>& articles);

/// Deleting an order of which nothing was delivered: the reverse.
void unbook_order(const std::vector<document_line>& lines, bool committed,
                  std::vector<article>& articles);

/// Delivering `quantity` tenths of a line: it is fulfilled, its commitment is given back, the goods
/// leave the stock. What the stock lacks has been bought in before.
void deliver(document_line& line, long long quantity, bool committed,
             std::vector<article>& articles);

}  // namespace vantora::demo
