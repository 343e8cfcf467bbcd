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
    srt.set_visible(true);
    srt.set_range(1, contatore_.quanti);
    rec_tot counter = contatore_;
    compatta_archivio(app_.archives, counter, elimina_evasi, [this](int registrazione) {
        srt.set_value(registrazione);
        app_.desk.let_events_run();
    });
    srt.set_visible(false);
    for (auto& command : bottone) command.set_visible(true);
    compacting_ = false;

    build_list();
}

}  // namespace vantora
