#pragma once

#include "app/start.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/program_stage.h"

namespace vantora::test {

/// A user who answers every question at once, and remembers what the boxes said.
class answering_user final : public silent_front_end {
 public:
    void run_until(const std::function<bool()>& done) override {
        while (!done()) {
            told.push_back(desk->open_box()->text);
            if (!desk->answer_box(ui::answer::ok)) {
                desk->answer_box(decide() ? ui::answer::yes : ui::answer::no);
            }
        }
    }
    ui::desk* desk = nullptr;
    std::function<bool()> decide = [] { return false; };
    std::vector<std::string> told;
};

/// The program at work on company 1 of a drive folder, over files that may fail. Several stations
/// may work on one company at once.
struct station {
    explicit station(const std::filesystem::path& root) : real(root) {
        front.desk = &desk;
        time.stop_at({{2024, 5, 6}, 10, 20, 30});
    }
    void run() {
        desk.dispatch([this] { start(app, "ordini001"); });
    }

    drive real;
    faulty_files faults{real};
    answering_user front;
    ui::local_clock time;
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::desk desk{front, time, paper, programs};
    ui::pixbuf_decoder pictures;
    program app{faults, desk, pictures};
};

}  // namespace vantora::test
