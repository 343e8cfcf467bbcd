#include "scripted/scripted_run.h"

#include <sstream>

#include "support/program_stage.h"
#include "ui/script/script_front_end.h"

namespace vantora::test {

std::vector<nlohmann::json> run_script(const std::filesystem::path& folder,
                                       const std::vector<std::string>& commands) {
    std::stringstream input;
    for (const auto& command : commands) input << command << '\n';
    std::stringstream output;

    program_on_drive<ui::script::script_front_end> at(folder, input, output);
    ui::script::interpreter by(at.desk, at.time, at.paper, at.programs);
    at.front.begin(at.desk, by);
    at.run();
    at.front.run();

    std::vector<nlohmann::json> replies;
    for (std::string line; std::getline(output, line);) {
        replies.push_back(nlohmann::json::parse(line));
    }
    return replies;
}

}  // namespace vantora::test
