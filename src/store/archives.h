#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>

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
    /// meanwhile with who it is ("anna su cassa2", empty if that isn't known), with nothing at the
    /// end. Null: nobody is told.
    std::function<void(const std::optional<std::string>& station)> station_awaited;
    /// Whether to wait on, after every `patience` of it. Null: no.
    std::function<bool(std::chrono::seconds so_far)> wait_on;
    std::chrono::milliseconds patience{10'000};
    /// Takes down what was done: "ordine nuovo", "12", what came of it. Null: nobody does.
    std::function<void(const std::string& what, const std::string& which,
                       const std::string& outcome)>
        book;
    bool changing = false;  ///< a change of the archive is under way
};

/// Opens all record files, the counters first; a file that doesn't exist is created empty.
void apri_archivi(archivi& files, file_port& port, int numero_azienda);

/// Goes along with files that others stand in the place of by now.
void follow_archives(archivi& files);

/// Under the lock of the counters: whether all files are read and written as file::keep_exact says.
void keep_archives_exact(archivi& files, bool on);

/// Closes every channel; whatever is tried on them afterwards fails.
void chiudi_archivi(archivi& files);

}  // namespace vantora
