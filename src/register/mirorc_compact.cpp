#include "program/change_messages.h"
#include "register/compattazione.h"
#include "register/mirorc.h"

namespace vantora {

void mirorc::compact() {
    if (compacting_) return;
    constexpr const char* titolo = "Compattazione archivio";
    app_.archives.tot.read(contatori::ordini, contatore_);
    const bool elimina_evasi = app_.desk.ask("Eliminare anche gli ordini evasi?", titolo,
                                             ui::icon::question, ui::answer::no);
    if (!app_.desk.ask("Confermi?", titolo, ui::icon::question, ui::answer::no)) return;

    compacting_ = true;
    app_.desk.set_pointer(ui::pointer::busy);
    for (auto& command : bottone) command.set_visible(false);
    const bool passed = run_compaction(elimina_evasi);
    srt.set_visible(false);
    for (auto& command : bottone) command.set_visible(true);
    compacting_ = false;
    if (passed) return build_list();
    app_.desk.set_pointer(ui::pointer::normal);
}

bool mirorc::run_compaction(bool elimina_evasi) {
    std::vector<std::string> unread;
    const auto outcome = compatta_archivio(
        app_.archives, elimina_evasi,
        [this](int registrazione, int of) {
            if (registrazione == 0) {
                srt.set_visible(true);
                srt.set_range(1, of);
            } else {
                srt.set_value(registrazione);
                app_.desk.let_events_run();
            }
        },
        &unread);
    if (!outcome.begun()) {
        was_stored(app_.desk, outcome, "l'archivio non è stato compattato");
    } else if (outcome.how != change_outcome::done) {
        tell_not_compacted(app_.desk, outcome);
    } else if (!unread.empty()) {
        tell_kept(app_.desk, unread);
    }
    return outcome.begun();
}

}  // namespace vantora
