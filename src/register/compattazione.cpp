#include "register/compattazione.h"

#include <vector>

#include "store/record_runs.h"
#include "text/int16.h"

namespace vantora {

namespace {

/// Copies a block down. Its rows are read anew, all of them before the first is written; behind
/// the end of the file there is nothing to keep. False if one can't be read or written.
bool move_block(channel<rec_orc>& orders, int from, int to, std::vector<rec_orc>& rows) {
    bool whole = true;
    read_run(orders, block_record(from, 1), std::span(rows), [&whole](auto) { whole = false; });
    if (!whole) return false;
    const std::int64_t first = block_record(to, 1);
    const std::int64_t held = orders.records_held().value_or(first - 1 + righe_blocco);
    const auto kept = std::clamp<std::int64_t>(held - (first - 1), 0, righe_blocco);
    if (kept == 0) return true;
    return orders.write_block(first, std::span(rows).first(static_cast<std::size_t>(kept)));
}

}  // namespace

write_faults compatta_archivio(archivi& files, rec_tot& counter, bool elimina_evasi,
                               const std::function<void(int)>& progress) {
    write_faults faults;
    // Moved below a count that can't fall, orders would stand twice.
    if (!faults.note(files.tot.writable(), files.tot)) return faults;
    const int orders = counter.quanti;
    records_ahead<rec_orc> heads(
        files.orc, static_cast<std::size_t>(std::max(orders, 0)), [](std::size_t before) {
            return record_run{block_record(static_cast<int>(before) + 1, 1)};
        });
    rec_orc riga;
    std::vector<rec_orc> rows(righe_blocco);
    std::int16_t vuoti = 0;
    bool moved = false;
    for (int registrazione = 1; registrazione <= orders; ++registrazione) {
        // Of what can't be read nobody knows that it may go.
        const bool read = heads.next(riga);
        progress(registrazione);
        if (read && (riga.annullato == 1 || (elimina_evasi && riga.evaso_flag == 1))) {
            ++vuoti;
        } else if (vuoti > 0) {
            const int target = registrazione - vuoti;
            if (!faults.note(move_block(files.orc, registrazione, target, rows), files.orc)) break;
            moved = true;
        }
    }
    if (moved) faults.note(files.orc.flush(), files.orc);
    if (!faults.none()) return faults;

    counter.quanti = subtract_int16(counter.quanti, vuoti).value_or(counter.quanti);
    counter.riservato_a = std::int16_t{0};
    faults.note(files.tot.write(contatori::ordini, counter), files.tot);
    faults.note(files.tot.flush(), files.tot);
    return faults;
}

}  // namespace vantora
