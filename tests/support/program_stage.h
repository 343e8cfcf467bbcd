#pragma once

#include <filesystem>

#include "program/program.h"
#include "store/drive.h"
#include "support/scratch_folder.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {

using ui::test::silent_front_end;

/// The program over the empty company 1 of a folder of its own, in front of one kind of user.
template <class FrontEnd = silent_front_end>
struct program_stage {
    program_stage() {
        std::filesystem::create_directories(company());
        app.parameters.numero_azienda = 1;
    }

    [[nodiscard]] std::filesystem::path company() const {
        return folder.path() / "mirwin/mirwin/miraz0.001";
    }

    /// Tells the program how one of its screens is made.
    template <class Form>
    void provide(ui::screen<Form>& place) {
        place.made_by(desk, [this] { return std::make_unique<Form>(app); });
    }

    scratch_folder folder;
    drive files{folder.path()};
    FrontEnd front;
    ui::local_clock time;
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::desk desk{front, time, paper, programs};
    ui::pixbuf_decoder pictures;
    program app{files, desk, pictures};
};

}  // namespace vantora::test
