#pragma once

#include <string>

#include "orders/order_rows.h"
#include "store/record_stretches.h"
#include "store/records/rec_art.h"

namespace vantora {

// What the lists of the reports write into their cells.

/// What a list shows of an article.
struct etichetta_articolo {
    etichetta_articolo() = default;
    explicit etichetta_articolo(const rec_art& article)
        : codice(article.codice), descrizione(article.descrizione) {}

    /// Code and description, as a row of a list shows them.
    [[nodiscard]] std::string text() const;
    /// The same over a sheet: without the blanks in front of the description.
    [[nodiscard]] std::string title() const;

    vantora::text<15> codice;
    vantora::text<40> descrizione;
};

/// The articles of one build.
using etichette_articoli = record_stretches<rec_art, etichetta_articolo>;

/// The text of a row that is of no article.
template <class Row>
std::string free_text(const Row& row) {
    return std::string(trimmed(description_of(row)));
}

}  // namespace vantora
