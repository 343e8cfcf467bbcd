#include "program/write_messages.h"
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
    const instance_lock lock(app_.archives, instance_lock::kind::compaction);
    if (!may_write(app_.desk, lock)) return false;
    // While the questions were open another station may have saved an order.
    rec_tot counter;
    if (!app_.archives.tot.read(contatori::ordini, counter)) {
        tell_not_compacted(app_.desk, app_.archives.tot.name());
        return false;
    }
    contatore_ = counter;
    srt.set_visible(true);
    srt.set_range(1, counter.quanti);
    const auto faults =
        compatta_archivio(app_.archives, counter, elimina_evasi, [this](int registrazione) {
            srt.set_value(registrazione);
            app_.desk.let_events_run();
        });
    if (!faults.none()) tell_not_compacted(app_.desk, faults.names());
    return true;
}

}  // namespace vantora
