#include "program/write_messages.h"

namespace vantora {

namespace {

void warn(ui::desk& desk, const std::string& text) {
    desk.message(text, "Attenzione", ui::icon::stop);
}

}  // namespace

bool may_write(ui::desk& desk, const instance_lock& lock) {
    if (lock.may_go_on()) return true;
    warn(desk,
         "Un'altra postazione sta compattando l'archivio: nulla è stato salvato. Riprovare tra "
         "poco."_cp);
    return false;
}

bool may_write(ui::desk& desk, const write_plan& plan) {
    if (plan.possible()) return true;
    warn(desk, "Impossibile leggere o scrivere il file "_cp + plan.obstacle() +
                   ": nulla è stato salvato."_cp);
    return false;
}

void tell_faults(ui::desk& desk, const write_faults& faults) {
    if (faults.none()) return;
    warn(desk, "Salvataggio incompleto: errore di scrittura su "_cp + faults.names() + "."_cp);
}

void tell_not_compacted(ui::desk& desk, const std::string& files) {
    warn(desk, "Compattazione non completata: errore su "_cp + files +
                   ". Nessun ordine è andato perso, ma alcuni possono comparire due volte."_cp);
}

}  // namespace vantora
