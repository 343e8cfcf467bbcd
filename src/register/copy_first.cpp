#include "register/copy_first.h"

#include <algorithm>

#include "backup/backup.h"
#include "store/drive.h"
#include "text/code_page.h"

namespace vantora {

namespace {

std::filesystem::path folder_of_copies(const program& app) {
    return app.copies.empty() ? app.files.locate("\\mirwin\\copie") : app.copies;
}

}  // namespace

copy_first copy_wanted(program& app) {
    if (!app.desk.guards().on()) return copy_first::skip;
    const auto folder = folder_of_copies(app);
    const auto last = newest_copy(folder, stem_of_copies(app.parameters.numero_azienda));
    if (last && date_number(app.desk.clock().now()) - date_number(*last) <= 1) {
        return copy_first::skip;
    }
    const ui::answer chosen = app.desk.guards().choose(
        (last ? "L'ultima copia di questa ditta è del "_cp + date_text(last->day)
              : "Di questa ditta non c'è ancora una copia"_cp) +
            ". Farne una prima di compattare, in " + from_utf8(folder.string()) + "?",
        {"Prima copia", "Senza copia", "Annulla"}, ui::answer::choice_2);
    if (chosen == ui::answer::choice_3) return copy_first::give_up;
    return chosen == ui::answer::choice_2 ? copy_first::skip : copy_first::make;
}

bool copy_made(program& app, ui::progress_bar& bar) {
    const auto folder = folder_of_copies(app);
    std::error_code refused;
    std::filesystem::create_directories(folder, refused);
    drive from(app.files.locate("\\"), drive::access::reading_only);
    drive to(folder);
    const int company = app.parameters.numero_azienda;
    bar.set_range(1, 100);
    bar.set_visible(true);
    const copy_outcome outcome = make_copy(
        from, app.files, company, to, stem_of_copies(company) + end_of_copy(app.desk.clock().now()),
        [&](std::int64_t done, std::int64_t all) {
            bar.set_value(
                static_cast<int>(all > 0 ? std::max<std::int64_t>(done * 100 / all, 1) : 1));
            app.desk.let_events_run();
        });
    if (outcome.fault.empty()) return true;
    app.desk.message(
        "Nessuna copia: "_cp + outcome.fault + ". L'archivio non è stato compattato."_cp,
        ui::attention, ui::icon::stop);
    return false;
}

}  // namespace vantora
