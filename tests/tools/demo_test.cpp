// Demonstration companies; what must agree in any archive is checked by the archive tool.

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <cstdlib>

#include "demo_folder.h"
#include "store/drive.h"

namespace vantora::test {
namespace {

TEST(demo_company, WhatIsThereStays) {
    for (const char* spelling : {"mirwin/mirwin/miraz0.007", "MIRWIN/Mirwin/MIRAZ0.007"}) {
        const scratch_folder drive;
        put(drive.path() / spelling / "vantora.orc", "orders of the firm");
        const auto before = files_under(drive.path());
        EXPECT_THROW(demo::make_company(small_company, drive.path()), demo::demo_error) << spelling;
        EXPECT_TRUE(files_under(drive.path()) == before) << spelling;
    }
    const scratch_folder drive;
    put(drive.path() / "MIRWIN/MIRWIN/VANTORA.EUR", "0,1,ITL,ITL,2\r\n");
    demo::make_company(small_company, drive.path());
    const auto after = files_under(drive.path());
    EXPECT_EQ(after.at("MIRWIN/MIRWIN/VANTORA.EUR"), "0,1,ITL,ITL,2\r\n");
    EXPECT_FALSE(after.contains("MIRWIN/MIRWIN/vantora.eur"));
    EXPECT_TRUE(after.contains("MIRWIN/MIRWIN/miraz0.007/vantora.orc"));
}

TEST(demo_company, AFullDiskLeavesNoHalfCompany) {
    const scratch_folder drive;
    put(drive.path() / "mirwin/mirwin/miraz0.007.parziale/vantora.orc", "of an interrupted run");
    take_file_limits_as_errors();
    rlimit usual{};
    getrlimit(RLIMIT_FSIZE, &usual);
    const rlimit tight{1'000'000, usual.rlim_max};
    setrlimit(RLIMIT_FSIZE, &tight);
    EXPECT_THROW(demo::make_company(small_company, drive.path()), demo::demo_error);
    setrlimit(RLIMIT_FSIZE, &usual);
    for (const auto& [name, content] : files_under(drive.path())) {
        EXPECT_EQ(name.find("miraz0"), std::string::npos) << name;
    }
}

TEST(demo_program, ExitCodeTellsWhatHappened) {
    const scratch_folder drive;
    const std::pair<std::string, int> runs[] = {
        {"", 2},
        {"DRIVE 1000", 2},
        {"DRIVE 7 --articles 32768", 2},
        {"DRIVE 7 --orders 1 --customers 0", 1},
        {"DRIVE 007 --orders 2 --articles 08 --customers 4 --seed 9", 0},
        {"DRIVE 7 --orders 2", 1},
        {"--help", 0},
    };
    for (const auto& [arguments, code] : runs) {
        std::string command = DEMO_PROGRAM " " + arguments + " >/dev/null 2>&1";
        if (arguments.starts_with("DRIVE")) {
            command.replace(command.find("DRIVE"), 5, drive.path().string());
        }
        const int status = std::system(command.c_str());
        EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == code) << arguments;
    }
    const auto settings = drive.path() / "mirwin/mirwin/mirxpdf.conf";
    if (!std::filesystem::exists(settings)) return;  // a build without windows has no mirxpdf
    using std::filesystem::perms;
    EXPECT_EQ(std::filesystem::status(settings).permissions(),
              perms::owner_read | perms::owner_write)
        << "a password is going to stand in it";
}

}  // namespace
}  // namespace vantora::test
