#pragma once

#include <array>
#include <string>

#include "orders/order_lines.h"
#include "store/archives.h"
#include "store/file_port.h"
#include "store/write_outcome.h"

namespace vantora {

/// A transport document as its screens have it, ready to be stored.
struct ddt_da_registrare {
    std::array<std::string, 22> text2;  ///< the customer
    std::array<std::string, 6> text3;   ///< number, date, parcels, weight, start: day and time
    int porto = -1;                     ///< entries chosen in their lists, -1 for none
    int causale = -1;
    int trasporto = -1;
    int aspetto = -1;
    std::int16_t cliente = 0;
    double data_reg = 0;  ///< date number of the last confirmation of this run
    bool scaricato = false;
};

/// Draws the number of a transport document and stores the document: its counter, its record, and
/// its snapshot, a text file for other programs. Every step that fails is passed over and noted,
/// without effect on the next: a counter that is full stays, a number that is none of the counter's
/// leaves it. It doesn't begin if the counter makes no sense (the record might be another
/// document's), a file can't be written, or another station compacts the archive.
write_outcome salva_ddt(archivi& files, file_port& port, int numero_azienda,
                        const ddt_da_registrare& document, const righe_ordine& lines);

}  // namespace vantora
