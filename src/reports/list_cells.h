#pragma once

#include <string>

#include "store/record_stretches.h"
#include "store/records/rec_art.h"
#include "store/records/rec_orc.h"

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

/// A free text in two fields, as one.
std::string free_text(const text<40>& descrizione, const text<10>& descrizione2);

/// Whether a field holds nothing but blanks.
template <std::size_t N>
bool is_blank(const text<N>& field) {
    static const text<N> blanks{""};
    return field == blanks;
}

/// Whether a row of an order is more than an empty line.
inline bool in_use(const rec_orc& row) {
    return row.quantita != 0 || !is_blank(row.descrizione);
}

}  // namespace vantora
