#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>

#include "demo/demo_company.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

using nlohmann::json;

struct outcome {
    std::vector<json> replies;
    int exit_code = 0;
};

/// Runs the scripted program on a drive, as from a shell.
outcome run(const std::string& arguments, const std::vector<std::string>& commands) {
    test::scratch_folder folder;
    const auto script = folder.path() / "comandi";
    const auto output = folder.path() / "risposte";
    for (std::ofstream out(script); const auto& command : commands) out << command << '\n';
    const std::string line = std::string(SCRIPT_PROGRAM) + " " + arguments + " <" +
                             script.string() + " >" + output.string() + " 2>/dev/null";
    outcome result;
    result.exit_code = std::system(line.c_str()) >> 8;
    std::ifstream lines(output);
    for (std::string reply; std::getline(lines, reply);)
        result.replies.push_back(json::parse(reply));
    return result;
}

TEST(vantora_script, ServesSessionsOnADemonstrationCompanyUntilARunTimeErrorEndsOne) {
    test::scratch_folder folder;
    demo::make_company({.numero_azienda = 7, .orders = 40, .articles = 30, .customers = 20},
                       folder.path());
    const std::string arguments =
        "--drive " + folder.path().string() + " --clock \"2024-05-06 10:20:30\" ordini007";
    const outcome first =
        run(arguments, {"click mirorc.selvis(1)", "get mirorc.elenco", "click mirorc.bottone(0)"});
    EXPECT_EQ(first.exit_code, 0);
    EXPECT_EQ(first.replies.at(1)["value"]["rows"], 41);
    EXPECT_EQ(first.replies.at(2)["ended"], "exit");

    // What the first run left is there for the second one.
    const outcome second =
        run(arguments, {"get mirorc.selvis(1)", "click mirorc.bottone(2)", "get mirorcx.Text3(1)",
                        "click mirorcx.bottone", "set mirorcs.sc1(0) \"99999\""});
    EXPECT_EQ(second.exit_code, 3);
    EXPECT_EQ(second.replies.at(0)["value"]["on"], true);
    EXPECT_EQ(second.replies.at(2)["value"]["text"], "06/05/2024");
    EXPECT_EQ(second.replies.at(4)["fatal"], "Errore di run-time '6': Overflow");
}

TEST(vantora_script, StartsOnAnythingAndRefusesWrongOptions) {
    test::scratch_folder folder;
    const std::string drive = "--drive " + folder.path().string();
    EXPECT_EQ(run(drive, {"get mirorc.elenco"}).replies[0]["value"]["rows"], 26);
    const std::pair<std::string, int> codes[] = {{drive + " x", 0},
                                                 {"--drive /nessuna/cartella ordini001", 2},
                                                 {drive + " --clock ieri ordini001", 2},
                                                 {drive + " --sconosciuta", 2}};
    for (const auto& [options, code] : codes)
        EXPECT_EQ(run(options, {}).exit_code, code) << options;
}

}  // namespace
}  // namespace vantora
