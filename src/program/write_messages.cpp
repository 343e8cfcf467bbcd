#include "program/write_messages.h"

namespace vantora {

namespace {

void warn(ui::desk& desk, const std::string& text) {
    desk.message(text, "Attenzione", ui::icon::stop);
}

void warn_of_compaction(ui::desk& desk, std::string_view undone) {
    warn(desk, "Un'altra postazione sta compattando l'archivio: " + from_utf8(undone) +
                   ". Riprovare tra poco.");
}

}  // namespace

bool may_write(ui::desk& desk, const instance_lock& lock) {
    if (!lock.may_go_on()) warn_of_compaction(desk, nulla_salvato);
    return lock.may_go_on();
}

bool was_written(ui::desk& desk, const write_outcome& outcome, std::string_view undone) {
    if (outcome.compaction_elsewhere()) {
        warn_of_compaction(desk, undone);
    } else if (outcome.order_moved()) {
        warn(desk, "Un'altra postazione ha compattato l'archivio: " + from_utf8(undone) +
                       ". Riaprire dall'elenco degli ordini.");
    } else if (!outcome.begun()) {
        warn(desk, "Impossibile leggere o scrivere il file " + outcome.obstacle() + ": " +
                       from_utf8(undone) + ".");
    } else if (!outcome.faults.none()) {
        warn(desk,
             "Salvataggio avvenuto solo in parte: errore su "_cp + outcome.faults.names() + "."_cp);
    }
    return outcome.begun();
}

void tell_not_compacted(ui::desk& desk, const std::string& files) {
    warn(desk, "Compattazione non completata: errore su "_cp + files +
                   ". Nessun ordine è andato perso, ma alcuni possono comparire due volte."_cp);
}

}  // namespace vantora
