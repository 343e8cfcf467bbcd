#pragma once

#include <filesystem>

#include "program/program.h"
#include "store/drive.h"
#include "support/scratch_folder.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "ui/script/bench_ports.h"

namespace vantora::bench {

/// Nobody: nothing is shown, nothing is waited for.
class silent_front_end : public ui::front_end {
 public:
    void run_until(const std::function<bool()>&) override {}
    void let_events_run() override {}
};

/// The program over an empty company 1, for one kind of user.
template <class FrontEnd = silent_front_end>
struct program_bench {
    program_bench() {
        std::filesystem::create_directories(folder.path() / "mirwin/mirwin/miraz0.001");
        app.parameters.numero_azienda = 1;
    }

    /// Tells the program how one of its screens is made.
    template <class Form>
    void provide(ui::screen<Form>& place) {
        place.made_by(desk, [this] { return std::make_unique<Form>(app); });
    }

    test::scratch_folder folder;
    drive files{folder.path()};
    FrontEnd front;
    ui::local_clock time;
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::desk desk{front, time, paper, programs};
    ui::pixbuf_decoder pictures;
    program app{files, desk, pictures};
};

}  // namespace vantora::bench
