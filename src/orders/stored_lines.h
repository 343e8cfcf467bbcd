#pragma once

#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "orders/order_lines.h"
#include "orders/order_rows.h"
#include "store/money.h"
#include "store/record_runs.h"
#include "store/records/order_block.h"
#include "store/records/rec_art.h"

namespace vantora {

/// The 200 rows of one stored order or quote, a rec_orc or rec_prv each, as they were read. A row
/// that couldn't be read comes with the values of the one before it.
template <class Row>
class stored_rows {
 public:
    stored_rows() = default;
    stored_rows(const channel<Row>& from, std::int64_t registrazione) {
        read_run(from, block_record(registrazione, 1), std::span(rows_), [this](std::size_t i) {
            if (i > 0) rows_[i] = rows_[i - 1];
            unread_.push_back(static_cast<int>(i) + 1);
        });
    }

    /// REQUIRES: `number` is 1 to 200.
    const Row& operator[](int number) const { return rows_[static_cast<std::size_t>(number - 1)]; }
    [[nodiscard]] std::span<const Row> all() const { return rows_; }
    /// Numbers of the rows that couldn't be read.
    [[nodiscard]] const std::vector<int>& unread() const { return unread_; }
    [[nodiscard]] bool same_as(const stored_rows& other) const {
        return std::memcmp(rows_.data(), other.rows_.data(), all().size_bytes()) == 0;
    }

 private:
    std::vector<Row> rows_ = std::vector<Row>(righe_blocco);
    std::vector<int> unread_;
};

/// What a stored row says of itself goes into the line; its article's code, its fulfilled quantity
/// and its weight stay.
template <class Row>
void take_row(const Row& row, riga_ordine& line) {
    line.articolo = row.articolo < 1 ? std::int16_t{0} : std::int16_t{row.articolo};
    line.descrizione = description_of(row);
    line.um = row.um.full();
    line.quantita = finite_or_zero(row.quantita);
    line.prezzo = finite_or_zero(row.prezzo);
    line.sc1 = row.sc1;
    line.sc2 = row.sc2;
    line.iva = row.iva;
}

/// Reads stored rows, of orders or quotes, into lines. A line shows its article's code as the
/// article has it now, even if it once came by a bar code.
class stored_lines {
 public:
    explicit stored_lines(const channel<rec_art>& articles) : articles_(articles) {}

    /// What the row says goes into the line; its fulfilled quantity stays.
    template <class Row>
    void read(const Row& row, riga_ordine& line) {
        take_row(row, line);
        if (line.articolo == 0) {
            line.codice = "";
            line.peso = 0;
        } else {
            // An article that can't be read leaves the code of the one before.
            articles_.read(line.articolo, article_);
            line.codice = article_.codice.full();
            line.peso = finite_or_zero(article_.peso);
        }
    }

 private:
    const channel<rec_art>& articles_;
    rec_art article_;
};

/// Puts the rows of an order or a quote into the lines of a new order from `first` on, as far as
/// there are lines: prices and discounts as they were, not those of today; a line without a price
/// has no VAT code. Where rows can't be read, nothing is taken over: their numbers are returned,
/// none if all is well. One read for the rows, and one for each article.
template <class Row>
std::vector<int> import_rows(righe_ordine& lines, int first, const channel<Row>& from,
                             const channel<rec_art>& articles, std::int64_t registrazione) {
    const stored_rows<Row> rows(from, registrazione);
    if (!rows.unread().empty()) return rows.unread();
    stored_lines into(articles);
    for (int number = first; number <= righe_ordine::massimo; ++number) {
        riga_ordine& line = lines[number];
        into.read(rows[number - first + 1], line);
        if (line.prezzo == 0) line.iva = 0;
    }
    return {};
}

}  // namespace vantora
