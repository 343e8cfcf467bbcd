#include <cstring>

#include "register/mirorc.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

// What other stations did to the archive since the list was read: orders that a compaction moved
// are not opened at their old places, and the list is brought up to date.

void mirorc::remember(int registrazione, const rec_orc& row, bool read) {
    visti_.emplace_back(registrazione, row).letto = read;
}

void mirorc::see_again(int registrazione) {
    const ordine_visto* listed = seen(registrazione);
    rec_orc row;
    if (!listed || listed->dated() ||
        !app_.archives.orc.read(block_record(registrazione, 1), row)) {
        return;
    }
    visti_[static_cast<std::size_t>(registrazione - primo_visto_)] = {registrazione, row};
}

const ordine_visto* mirorc::seen(int registrazione) const {
    const int place = registrazione - primo_visto_;
    if (place < 0 || place >= static_cast<int>(visti_.size())) return nullptr;
    const ordine_visto& one = visti_[static_cast<std::size_t>(place)];
    return one.letto ? &one : nullptr;
}

std::optional<ordine_visto> mirorc::seen_in(int row) const {
    const auto registrazione = to_int16(number_at_head(elenco.text(row, registr)));
    const ordine_visto* one = registrazione ? seen(*registrazione) : nullptr;
    return one ? std::optional(*one) : std::nullopt;
}

bool mirorc::moved_elsewhere(int registrazione, const rec_orc& row) const {
    const ordine_visto* listed = seen(registrazione);
    rec_tot now;
    // A counter that can't be read tells nothing of other stations.
    return listed && app_.archives.tot.read(contatori::ordini, now) &&
           orders_since(now, listato_, app_.archives.orc).took_away(*listed, row);
}

int mirorc::row_of(const ordine_visto& order) const {
    int found = 0;
    for (int row = 1; row < lista_.in_use(); ++row) {
        const auto one = seen_in(row);
        if (!one || !same_order(*one, order)) continue;
        if (one->registrazione == order.registrazione) return row;
        if (found == 0) found = row;
    }
    return found;
}

void mirorc::list_anew() {
    const auto marked = seen_in(elenco.row());
    const auto top = seen_in(elenco.top_row());
    const bool at_end = elenco.shows_end();
    const auto sorted = ordinata_per_;
    ui::control* const worked_on = app_.desk.focus();
    build_list();
    if (sorted) sort_by(*sorted);
    if (worked_on && worked_on != app_.desk.focus()) app_.desk.give_focus(*worked_on);
    if (const int row = marked ? row_of(*marked) : 0; row > 0) elenco.set_row(row);
    if (at_end) return;
    if (const int row = top ? row_of(*top) : 0; row > 0) elenco.set_top_row(row);
}

void mirorc::tell_moved() {
    app_.desk.message(
        "Un'altra postazione ha compattato l'archivio: l'elenco degli ordini viene riletto.",
        ui::attention, ui::icon::warning);
    list_anew();
}

void mirorc::catch_up() {
    rec_tot now;
    if (compacting_ || !app_.archives.tot.read(contatori::ordini, now)) return;
    const bool same = std::memcmp(&now, &listato_, sizeof now) == 0 &&
                      app_.archives.orc.last_write() == scritto_alle_;
    if (!same) list_anew();
}

}  // namespace vantora
