#pragma once

#include <functional>

#include "store/channel.h"
#include "store/records.h"

namespace vantora {

/// The record files of the company, open from the start of the program to its end. A file that
/// can't be opened leaves its channel closed: reads and writes on it then fail.
struct archivi {
    channel<rec_cli> cli;
    channel<rec_src> src;
    channel<rec_art> art;
    channel<rec_sra> sra;
    channel<rec_orc> orc;
    channel<rec_srb> srb;
    channel<rec_mag> mag;
    channel<rec_bol> bol;
    channel<rec_prx> prx;
    channel<rec_prv> prv;
    channel<rec_tot> tot;
    channel<blocco_articoli> art_blocchi;  ///< "vantora.art" a second time, 20 records a read

    /// Lets the user see that another station holds this one up: called every few milliseconds
    /// meanwhile, with false at the end. Null: nobody is told.
    std::function<void(bool still)> station_awaited;
};

/// Opens all record files, the counters first; a file that doesn't exist is created empty.
void apri_archivi(archivi& files, file_port& port, int numero_azienda);

/// Closes every channel; whatever is tried on them afterwards fails.
void chiudi_archivi(archivi& files);

}  // namespace vantora
