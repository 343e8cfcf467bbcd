#include <algorithm>

#include "backup/backup.h"
#include "program/change_messages.h"
#include "register/compattazione.h"
#include "register/mirorc.h"
#include "store/drive.h"
#include "text/code_page.h"

namespace vantora {

namespace {

// The answers where a copy is offered.
constexpr ui::answer compaction_alone = ui::answer::choice_2;
constexpr ui::answer no_compaction = ui::answer::choice_3;

}  // namespace

void mirorc::compact() {
    if (compacting_) return;
    constexpr const char* titolo = "Compattazione archivio";
    app_.archives.tot.read(contatori::ordini, contatore_);
    const bool elimina_evasi = app_.desk.ask("Eliminare anche gli ordini evasi?", titolo,
                                             ui::icon::question, ui::answer::no);
    if (!app_.desk.ask("Confermi?", titolo, ui::icon::question, ui::answer::no)) return;

    const ui::answer first = copy_wanted();
    if (first == no_compaction) return;

    compacting_ = true;
    app_.desk.set_pointer(ui::pointer::busy);
    for (auto& command : bottone) command.set_visible(false);
    const bool passed = (first == compaction_alone || copied()) && run_compaction(elimina_evasi);
    srt.set_visible(false);
    for (auto& command : bottone) command.set_visible(true);
    compacting_ = false;
    if (passed) return build_list();
    app_.desk.set_pointer(ui::pointer::normal);
}

std::filesystem::path mirorc::folder_of_copies() const {
    return app_.copies.empty() ? app_.files.locate("\\mirwin\\copie") : app_.copies;
}

/// Nothing leads back behind a compaction.
ui::answer mirorc::copy_wanted() {
    if (!app_.desk.guards().on()) return compaction_alone;
    const auto folder = folder_of_copies();
    const auto last = newest_copy(folder, stem_of_copies(app_.parameters.numero_azienda));
    if (last && date_number(app_.desk.clock().now()) - date_number(*last) <= 1) {
        return compaction_alone;
    }
    return app_.desk.guards().choose(
        (last ? "L'ultima copia di questa ditta è del "_cp + date_text(last->day)
              : "Di questa ditta non c'è ancora una copia"_cp) +
            ". Farne una prima di compattare, in " + from_utf8(folder.string()) + "?",
        {"Prima copia", "Senza copia", "Annulla"}, compaction_alone);
}

/// False: the user was told why there is no copy.
bool mirorc::copied() {
    const auto folder = folder_of_copies();
    std::error_code refused;
    std::filesystem::create_directories(folder, refused);
    drive from(app_.files.locate("\\"), drive::access::reading_only);
    drive to(folder);
    const int company = app_.parameters.numero_azienda;
    srt.set_range(1, 100);
    srt.set_visible(true);
    const copy_outcome outcome = make_copy(
        from, app_.files, company, to,
        stem_of_copies(company) + end_of_copy(app_.desk.clock().now()),
        [this](std::int64_t done, std::int64_t all) {
            srt.set_value(
                static_cast<int>(all > 0 ? std::max<std::int64_t>(done * 100 / all, 1) : 1));
            app_.desk.let_events_run();
        });
    if (outcome.fault.empty()) return true;
    app_.desk.message(
        "Nessuna copia: "_cp + outcome.fault + ". L'archivio non è stato compattato."_cp,
        ui::attention, ui::icon::stop);
    return false;
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
