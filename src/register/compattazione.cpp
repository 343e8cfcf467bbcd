#include "register/compattazione.h"

#include "store/record_runs.h"
#include "text/code_page.h"
#include "text/int16.h"

namespace vantora {

namespace {

/// Copies a block down. Its rows are read anew, all of them before the first is written; behind
/// the end of the file there is nothing to keep. False if one can't be read or written.
bool move_block(archive_change& change, channel<rec_orc>& orders, int from, int to,
                std::vector<rec_orc>& rows) {
    bool whole = true;
    read_run(orders, block_record(from, 1), std::span(rows), [&whole](auto) { whole = false; });
    if (!change.note(whole, orders.name())) return false;
    const std::int64_t first = block_record(to, 1);
    const std::int64_t held = orders.records_held().value_or(first - 1 + righe_blocco);
    const auto kept = std::clamp<std::int64_t>(held - (first - 1), 0, righe_blocco);
    if (kept == 0) return true;
    return change.write_block(orders, first,
                              std::span<const rec_orc>(rows).first(static_cast<std::size_t>(kept)));
}

/// How a block is named whose row 1 can't be read.
std::string name_of(const channel<rec_orc>& orders, int registrazione) {
    rec_orc second;
    std::string number;
    if (orders.read(block_record(registrazione, 2), second)) {
        number = filtra_stampa(second.numero.trimmed());
    }
    return number.empty() ? "registrazione " + std::to_string(registrazione) : "ordine " + number;
}

/// Slides the blocks that stay down, until one refuses. Returns how many go.
std::int16_t close_gaps(archive_change& change, channel<rec_orc>& orders, int count,
                        bool elimina_evasi, const std::function<void(int, int)>& progress,
                        std::vector<std::string>* unread) {
    records_ahead<rec_orc> heads(
        orders, static_cast<std::size_t>(std::max(count, 0)), [](std::size_t before) {
            return record_run{block_record(static_cast<int>(before) + 1, 1)};
        });
    rec_orc riga;
    std::vector<rec_orc> rows(righe_blocco);
    std::int16_t vuoti = 0;
    bool moved = false;
    for (int registrazione = 1; registrazione <= count; ++registrazione) {
        // Of what can't be read nobody knows that it may go.
        const bool read = heads.next(riga);
        progress(registrazione, count);
        if (!read && unread) unread->push_back(name_of(orders, registrazione));
        if (read && (riga.annullato == 1 || (elimina_evasi && riga.evaso_flag == 1))) {
            ++vuoti;
        } else if (vuoti > 0) {
            if (!move_block(change, orders, registrazione, registrazione - vuoti, rows)) break;
            moved = true;
        }
    }
    if (moved) change.flush(orders);
    return vuoti;
}

}  // namespace

change_outcome compatta_archivio(archivi& files, bool elimina_evasi,
                                 const std::function<void(int, int)>& progress,
                                 std::vector<std::string>* unread) {
    archive_change change(files);
    change.recorded_as("compattazione", elimina_evasi ? "anche gli evasi" : "");
    rec_tot counter;
    if (change.may_write()) {
        change.require(files.tot.read(contatori::ordini, counter), files.tot.name());
    }
    // Moved below a count that can't fall, orders would stand twice.
    change.changes(files.tot);
    if (!change.may_write()) return change.finish();
    const int orders = counter.quanti;
    progress(0, orders);
    const std::int16_t vuoti =
        close_gaps(change, files.orc, orders, elimina_evasi, progress, unread);
    if (!change.none_refused()) return change.finish();

    counter.quanti = to_int16(counter.quanti - vuoti).value_or(counter.quanti);
    counter.riservato_a = std::int16_t{0};
    change.write(files.tot, contatori::ordini, counter);
    change.flush(files.tot);
    return change.finish();
}

}  // namespace vantora
