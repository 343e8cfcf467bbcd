#pragma once

#include <array>
#include <string>
#include <vector>

#include "store/archives.h"

namespace vantora::test {

// The orders and the stock of a company as a clerk with paper keeps them.

struct book_row {
    std::string numero;
    int cliente = 0;
    bool impegno = false;
    int articolo = 0;
    double quantita = 0;
    double evaso = 0;
    bool chiuso = false;
    bool annullato = false;
    bool operator==(const book_row&) const = default;
};

/// Rows 1 to 3 of an order, and the last one.
using book_order = std::array<book_row, 4>;

struct book_article {
    double ordinato = 0;
    double giacenza = 0;
    double impegnato = 0;
    double scaricato = 0;
    bool operator==(const book_article&) const = default;
};

/// A movement or a transport document: number or article, customer, quantity or "not unloaded".
using book_entry = std::array<double, 3>;

/// What a station does to the archive in one go.
struct book_change {
    enum what { add, edit, remove, book, unload, document, compact };
    what how = add;
    book_order order;    ///< as it becomes; its number tells which it is
    bool evasi = false;  ///< fulfilled orders go too
    int cliente = 0;
    /// Rows that leave: of order `numero`, `evaso` of row `row`; of `articolo`.
    struct leaving_row {
        std::string numero;
        std::size_t row = 0;
        int articolo = 0;
        double quantity = 0;
    };
    std::vector<leaving_row> leaving;
    std::vector<std::string> listed;  ///< the orders of the worklist
    int numero = 0;                   ///< of the transport document
};

struct trial_book {
    std::vector<book_order> orders;
    std::array<book_article, 3> articles;
    std::vector<book_entry> movements;
    std::vector<book_entry> documents;
    int last_order = 0;
    int last_document = 0;
    bool operator==(const trial_book&) const = default;

    /// What the files say.
    static trial_book of(const archivi& files);
    [[nodiscard]] std::string text() const;
    [[nodiscard]] std::size_t find(const std::string& numero) const;

    /// Works a change off, but for what the `writes` of a program that is ended don't reach.
    /// Returns how many it needs.
    int work(const book_change& change, int writes);

    /// Whether the files, `now`, can have come about by these changes in any order, `broken` of
    /// them up to any write. Then the book says what they say.
    bool goes_on(const trial_book& now, std::vector<book_change> changes,
                 const book_change* broken);
};

}  // namespace vantora::test
