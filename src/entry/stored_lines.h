#pragma once

#include <cmath>
#include <string>

#include "program/order_lines.h"
#include "store/channel.h"
#include "store/records/rec_art.h"

namespace vantora {

/// Reads stored rows, of orders or quotes, into lines. A line shows its article's code as the
/// article has it now, even if it once came by a bar code.
class stored_lines {
 public:
    explicit stored_lines(const channel<rec_art>& articles) : articles_(articles) {}

    /// What the row says goes into the line; its fulfilled quantity and weight stay. Amounts that
    /// are no numbers count as 0.
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
        line.quantita = number(row.quantita);
        line.prezzo = number(row.prezzo);
        line.sc1 = row.sc1;
        line.sc2 = row.sc2;
        line.iva = row.iva;
    }

 private:
    static double number(double stored) { return std::isfinite(stored) ? stored : 0; }

    const channel<rec_art>& articles_;
    rec_art article_;
};

}  // namespace vantora
