#pragma once

#include <array>
#include <string>

#include "program/order_lines.h"
#include "store/archives.h"

namespace vantora {

/// The head of an order as its rows store it.
struct testata_registrata {
    std::string numero;
    std::string data;           ///< dd/mm/yyyy
    std::string data_evasione;  ///< dd/mm/yyyy
    std::int16_t cliente = 0;
    /// `testo1` to `testo3` of rows 1 to 4; the rows behind repeat those of row 4, to no purpose.
    std::array<std::array<std::string, 3>, 4> testi;
    bool impegno = false;  ///< commit the stock
    double data_reg = 0;   ///< date number of the save
};

/// Saves a new order as the block behind the last one: 200 rows, each behind the stock movement of
/// its article, then, with all of it on the disk, the counter that makes the order visible. What
/// ends the program before leaves at most stock moved for an order that isn't there.
///
/// `articles`: how many there are. Failed reads and writes are passed over; an article that can't
/// be read is left alone. False, with nothing written, if the counter can't be read: the block
/// might be another order's.
bool salva_nuovo_ordine(archivi& files, const testata_registrata& head, const righe_ordine& lines,
                        std::int16_t articles);

}  // namespace vantora
