#pragma once

#include <array>
#include <cmath>
#include <memory>
#include <string>

#include "program/order_lines.h"
#include "store/channel.h"
#include "store/records/order_block.h"
#include "store/records/rec_art.h"

namespace vantora {

/// The 200 rows of a stored order or quote, a rec_orc or rec_prv each. They are read at once, or
/// one by one where that fails; a row that can't be read is as the one before it.
template <class Row>
class stored_rows {
 public:
    stored_rows(const channel<Row>& from, std::int64_t registrazione)
        : rows_(std::make_unique<std::array<Row, righe_blocco>>()) {
        const std::int64_t first = block_record(registrazione, 1);
        if (from.read_block(first, *rows_)) return;
        Row read;
        for (int i = 0; i < righe_blocco; ++i) {
            from.read(first + i, read);
            (*rows_)[static_cast<std::size_t>(i)] = read;
        }
    }

    /// REQUIRES: `number` is 1 to 200.
    const Row& operator[](int number) const {
        return (*rows_)[static_cast<std::size_t>(number - 1)];
    }

 private:
    std::unique_ptr<std::array<Row, righe_blocco>> rows_;
};

/// What is no number in a file counts as 0.
inline double finite_or_zero(double stored) {
    return std::isfinite(stored) ? stored : 0;
}

/// Reads stored rows, of orders or quotes, into lines. A line shows its article's code as the
/// article has it now, even if it once came by a bar code.
class stored_lines {
 public:
    explicit stored_lines(const channel<rec_art>& articles) : articles_(articles) {}

    /// What the row says goes into the line; its fulfilled quantity and weight stay.
    template <class Row>
    void read(const Row& row, riga_ordine& line) {
        line.articolo = row.articolo < 1 ? std::int16_t{0} : std::int16_t{row.articolo};
        if (line.articolo == 0) {
            line.codice = "";
        } else {
            // An article that can't be read leaves the code of the one before.
            articles_.read(line.articolo, article_);
            line.codice = article_.codice.full();
        }
        line.descrizione = std::string(row.descrizione.full()).append(row.descrizione2.full());
        line.um = row.um.full();
        line.quantita = finite_or_zero(row.quantita);
        line.prezzo = finite_or_zero(row.prezzo);
        line.sc1 = row.sc1;
        line.sc2 = row.sc2;
        line.iva = row.iva;
    }

 private:
    const channel<rec_art>& articles_;
    rec_art article_;
};

}  // namespace vantora
