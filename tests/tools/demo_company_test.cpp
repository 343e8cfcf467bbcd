#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <csignal>
#include <cstdlib>

#include "demo_folder.h"

namespace vantora::test {
namespace {

void put(const std::filesystem::path& path, const std::string& content) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << content;
}

TEST(demo_company, seed_alone_decides_the_archives) {
    auto request = small_company;
    request.seed = 6;
    const demo_folder first(small_company);
    const demo_folder second(small_company);
    const demo_folder other(request);
    EXPECT_TRUE(files_under(first.drive()) == files_under(second.drive()));
    for (const std::string extension : {"cli", "art", "orc", "prv"}) {
        EXPECT_FALSE(bytes_of(first.file(extension)) == bytes_of(other.file(extension)))
            << extension;
    }
}

TEST(demo_company, existing_company_is_refused_and_left_alone) {
    for (const char* spelling : {"mirwin/mirwin/miraz0.007", "MIRWIN/Mirwin/MIRAZ0.007"}) {
        const scratch_folder drive;
        put(drive.path() / spelling / "vantora.orc", "orders of the firm");
        const auto before = files_under(drive.path());
        EXPECT_THROW(demo::make_company(small_company, drive.path()), demo::demo_error) << spelling;
        EXPECT_TRUE(files_under(drive.path()) == before) << spelling;
    }
}

TEST(demo_company, general_files_of_the_suite_stay) {
    const scratch_folder drive;
    put(drive.path() / "MIRWIN/MIRWIN/VANTORA.EUR", "0,1,ITL,ITL,2\r\n");
    demo::make_company(small_company, drive.path());
    const auto after = files_under(drive.path());
    EXPECT_EQ(after.at("MIRWIN/MIRWIN/VANTORA.EUR"), "0,1,ITL,ITL,2\r\n");
    EXPECT_FALSE(after.contains("MIRWIN/MIRWIN/vantora.eur"));
    EXPECT_TRUE(after.contains("MIRWIN/MIRWIN/vantora.tbl"));
    EXPECT_TRUE(after.contains("MIRWIN/MIRWIN/miraz0.007/vantora.orc"));
}

/// For its lifetime no file can grow beyond `bytes`, as on a full disk.
class file_size_limit {
 public:
    explicit file_size_limit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit tight{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &tight);
    }
    file_size_limit(const file_size_limit&) = delete;
    file_size_limit& operator=(const file_size_limit&) = delete;
    ~file_size_limit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }

 private:
    rlimit before_{};
    void (*handler_)(int);
};

TEST(demo_company, full_disk_leaves_no_half_company) {
    const scratch_folder drive;
    put(drive.path() / "mirwin/mirwin/miraz0.007.parziale/vantora.orc", "of an interrupted run");
    {
        const file_size_limit limit(1'000'000);
        EXPECT_THROW(demo::make_company(small_company, drive.path()), demo::demo_error);
    }
    for (const auto& [name, content] : files_under(drive.path())) {
        EXPECT_EQ(name.find("miraz0"), std::string::npos) << name;
    }
    demo::make_company(small_company, drive.path());
    EXPECT_TRUE(std::filesystem::exists(drive.path() / "mirwin/mirwin/miraz0.007/vantora.tot"));
}

TEST(demo_company, archives_may_be_empty) {
    const struct {
        int orders, articles, customers;
    } sizes[] = {{0, 0, 0}, {0, 10, 0}, {0, 0, 10}, {1, 1, 1}, {20, 0, 3}};
    for (const auto& size : sizes) {
        const demo_folder made({.numero_azienda = 7,
                                .orders = size.orders,
                                .articles = size.articles,
                                .customers = size.customers});
        const auto bytes = [&](const char* extension) {
            return static_cast<int>(std::filesystem::file_size(made.file(extension)));
        };
        EXPECT_EQ(bytes("orc"), size.orders * 56'800);
        EXPECT_EQ(bytes("art"), size.articles * 327);
        EXPECT_EQ(bytes("srb"), size.articles * 15);
        EXPECT_EQ(bytes("src"), size.customers * 42);
    }
}

TEST(demo_program, exit_code_tells_what_happened) {
    const scratch_folder drive;
    const struct {
        std::string arguments;
        int exit_code;
    } runs[] = {
        {"", 2},
        {"DRIVE 1000", 2},
        {"DRIVE 7 --articles 32768", 2},
        {"DRIVE 7 --customers 1.5", 2},
        {"DRIVE 7 --unknown 1", 2},
        {"DRIVE 7 --orders 1 --customers 0", 1},
        {"DRIVE 007 --orders 2 --articles 3 --customers 4 --seed 9", 0},
        {"DRIVE 7 --orders 2", 1},
        {"DRIVE 8 --orders 0 --articles 0 --customers 0", 0},
        {"--help", 0},
    };
    for (const auto& run : runs) {
        std::string command = DEMO_PROGRAM " " + run.arguments + " >/dev/null 2>&1";
        if (const auto at = command.find("DRIVE"); at != std::string::npos) {
            command.replace(at, 5, drive.path().string());
        }
        const int status = std::system(command.c_str());
        EXPECT_TRUE(WIFEXITED(status)) << run.arguments;
        EXPECT_EQ(WEXITSTATUS(status), run.exit_code) << run.arguments;
    }
}

}  // namespace
}  // namespace vantora::test
