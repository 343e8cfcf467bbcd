#include "register/compattazione.h"

#include <array>

#include "store/text/int16.h"

namespace vantora {

namespace {

using blocco_ordine = std::array<rec_orc, righe_blocco>;

/// What one pass holds in memory. A read that fails leaves `riga` as the last one left it.
struct pass {
    channel<rec_orc>& orders;
    rec_orc riga;
    blocco_ordine blocco;
    bool blocco_letto = false;

    /// Reads the head row of a block, and the whole block at once where it may have to move.
    void read(int registrazione, bool may_move) {
        blocco_letto = may_move && orders.read_block(block_record(registrazione, 1), blocco);
        if (blocco_letto) {
            riga = blocco.front();
        } else {
            orders.read(block_record(registrazione, 1), riga);
        }
    }

    void move(int from, int to) {
        if (blocco_letto) {
            orders.write_block(block_record(to, 1), blocco);
            riga = blocco.back();
            return;
        }
        for (int row = 1; row <= righe_blocco; ++row) {
            orders.read(block_record(from, row), riga);
            orders.write(block_record(to, row), riga);
        }
    }
};

}  // namespace

void compatta_archivio(archivi& files, rec_tot& counter, bool elimina_evasi,
                       const std::function<void(int)>& progress) {
    pass work{files.orc, {}, {}};
    std::int16_t vuoti = 0;
    bool moved = false;
    for (int registrazione = 1; registrazione <= counter.quanti; ++registrazione) {
        work.read(registrazione, vuoti > 0);
        progress(registrazione);
        const bool goes = work.riga.annullato == 1 || (elimina_evasi && work.riga.evaso_flag == 1);
        if (goes) {
            ++vuoti;
        } else if (vuoti > 0) {
            work.move(registrazione, registrazione - vuoti);
            moved = true;
        }
    }
    if (moved) files.orc.flush();
    counter.quanti = subtract_int16(counter.quanti, vuoti).value_or(counter.quanti);
    counter.riservato_a = std::int16_t{0};
    files.tot.write(contatori::ordini, counter);
    files.tot.flush();
}

}  // namespace vantora
