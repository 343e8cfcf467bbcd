#pragma once

#include "app/start.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"
#include "ui/desk_stage.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {

using ui::test::silent_front_end;

/// The program on a drive folder, by default over files that may fail, in front of one kind of
/// user, at 2024-05-06 10:20:30. Several may work on one folder at once.
template <class FrontEnd, class Disk = faulty_files>
struct program_on_drive {
    template <class... ForUser>
    explicit program_on_drive(const std::filesystem::path& root, ForUser&... given)
        : real(root), front(given...) {
        time.stop_at({{2024, 5, 6}, 10, 20, 30});
    }

    /// Starts on company 1, as the suite's menu does.
    void run() {
        desk.dispatch([this] { start(app, "ordini001"); });
    }
    /// Tells the program how one of its screens is made.
    template <class Form>
    void provide(ui::screen<Form>& place) {
        place.made_by(desk, [this] { return std::make_unique<Form>(app); });
    }

    drive real;
    Disk faults{real};
    FrontEnd front;
    ui::local_clock time;
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::desk desk{front, time, paper, programs};
    ui::pixbuf_decoder pictures;
    program app{faults, desk, pictures};
};

struct own_folder {
    scratch_folder folder;
};

/// The program, not started yet, over the empty company 1 of a folder of its own.
template <class FrontEnd = silent_front_end>
struct program_stage : own_folder, program_on_drive<FrontEnd, drive&> {
    program_stage() : program_on_drive<FrontEnd, drive&>(folder.path()) {
        std::filesystem::create_directories(company());
        this->app.parameters.numero_azienda = 1;
    }

    [[nodiscard]] std::filesystem::path company() const {
        return folder.path() / "mirwin/mirwin/miraz0.001";
    }

    drive& files = this->real;
};

}  // namespace vantora::test
