#include "scripted/scripted_run.h"

#include <sstream>

#include "app/start.h"
#include "store/drive.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "ui/script/script_front_end.h"

namespace vantora::test {

std::vector<nlohmann::json> run_script(const std::filesystem::path& folder,
                                       const std::vector<std::string>& commands) {
    std::stringstream input;
    for (const auto& command : commands) input << command << '\n';
    std::stringstream output;

    drive files(folder);
    ui::local_clock time;
    time.stop_at({{2024, 5, 6}, 10, 20, 30});
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::script::script_front_end front(input, output);
    ui::desk desk(front, time, paper, programs);
    ui::script::interpreter by(desk, time, paper, programs);
    ui::pixbuf_decoder pictures;
    program app(files, desk, pictures);
    front.begin(desk, by);
    desk.dispatch([&] { start(app, "ordini001"); });
    front.run();

    std::vector<nlohmann::json> replies;
    for (std::string line; std::getline(output, line);) {
        replies.push_back(nlohmann::json::parse(line));
    }
    return replies;
}

nlohmann::json value_after(const std::filesystem::path& folder,
                           const std::vector<std::string>& commands) {
    return run_script(folder, commands).back().value("value", nlohmann::json());
}

}  // namespace vantora::test
