#pragma once

#include "orders/ddt_snapshot.h"
#include "store/archive_change.h"
#include "store/file_port.h"

namespace vantora {

/// A transport document as its screens have it, ready to be stored.
struct ddt_da_registrare {
    istantanea_ddt contenuto;
    double data_reg = 0;  ///< date number of the last confirmation of this run
    bool scaricato = false;
    bool solo_se_chiaro = false;  ///< number and date without a doubt, or the user is to be asked
};

/// Draws the number of a transport document and stores the document: its counter, its record, and
/// its snapshot, a text file for other programs. A number that is none of the counter's leaves it.
/// A counter or record that can't be written ends it, and the counter is as before; a snapshot that
/// can't be is passed over.
change_outcome salva_ddt(archivi& files, file_port& port, int numero_azienda,
                         const ddt_da_registrare& document);

}  // namespace vantora
