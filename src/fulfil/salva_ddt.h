#pragma once

#include <array>
#include <string>

#include "orders/head_fields.h"
#include "orders/order_lines.h"
#include "store/archive_change.h"
#include "store/file_port.h"

namespace vantora {

/// A transport document as its screens have it, ready to be stored.
struct ddt_da_registrare {
    std::array<std::string, campo_cliente::quanti> text2;  ///< the customer
    std::array<std::string, campo_ddt::quanti>
        text3;       ///< number, date, parcels, weight, start: day and time
    int porto = -1;  ///< entries chosen in their lists, -1 for none
    int causale = -1;
    int trasporto = -1;
    int aspetto = -1;
    std::int16_t cliente = 0;
    double data_reg = 0;  ///< date number of the last confirmation of this run
    bool scaricato = false;
    bool solo_se_chiaro = false;  ///< number and date without a doubt, or the user is to be asked
};

/// Draws the number of a transport document and stores the document: its counter, its record, and
/// its snapshot, a text file for other programs. A number that is none of the counter's leaves it.
/// A counter or record that can't be written ends it, and the counter is as before; a snapshot that
/// can't be is passed over.
change_outcome salva_ddt(archivi& files, file_port& port, int numero_azienda,
                         const ddt_da_registrare& document, const righe_ordine& lines);

}  // namespace vantora
