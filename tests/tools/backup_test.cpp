#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <map>

#include "backup/backup.h"
#include "demo_folder.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/sampled.h"

namespace vantora::archive {
namespace {

using test::demo_folder;
using test::faulty_files;

constexpr demo::demo_request tiny{
    .numero_azienda = 7, .orders = 2, .articles = 10, .customers = 5, .seed = 3};

/// A copy of a company, and the drives that it takes.
struct copying {
    explicit copying(const demo_folder& company)
        : reading(company.drive(), drive::access::reading_only), writing(company.drive()) {}

    copy_outcome make(file_port& to, const std::string& name) {
        return make_copy(reading, writing, 7, to, name);
    }

    drive reading;
    drive writing;
};

std::ptrdiff_t plain_files(const std::map<std::string, std::string>& all) {
    return std::ranges::count_if(all, [](const auto& one) { return one.second != "(folder)"; });
}

enum fault { ended, refused, unread };

/// At each write, or, with the reads of what was written, at each operation.
void fail(faulty_files& files, fault how, std::size_t n, bool& failed) {
    if (how == ended) {
        files.writes_before_crash = n;
        return;
    }
    files.fail_at(n, n % 2 == 0, failed);
    if (how == refused) files.read_fails = nullptr;
}

TEST(archive_backup, ACopyIsWholeOrNotThereWhateverWriteFails) {
    const demo_folder company(tiny);
    copying of(company);
    const auto sources = test::files_under(company.drive());
    for (const auto how : {ended, refused, unread}) {
        const test::sampled writes(how == unread ? 7 : 1);
        for (std::size_t n = writes.first;; n += writes.step) {
            SCOPED_TRACE(n);
            const test::scratch_folder out;
            drive real(out.path());
            faulty_files to(real);
            bool failed = false;
            fail(to, how, n, failed);
            copy_outcome outcome;
            try {
                outcome = of.make(to, "ditta007-2024-01-01-000000");
            } catch (const test::crash&) {
                failed = true;
            }
            const auto left = test::files_under(out.path());
            if (!failed) {
                EXPECT_EQ(outcome.fault, "");
                EXPECT_EQ(plain_files(left), plain_files(sources) + 1);
                drive copy(outcome.place, drive::access::reading_only);
                EXPECT_EQ(checked_copy(outcome.place, copy).fault, "");
                EXPECT_GT(n, 20U);
                break;
            }
            EXPECT_EQ(left.size(), 0U);
        }
    }
    EXPECT_EQ(test::files_under(company.drive()), sources);
}

TEST(archive_backup, OldCopiesGoAndNothingElse) {
    const demo_folder company(tiny);
    copying of(company);
    const test::scratch_folder out;
    drive to(out.path());
    for (const char* name :
         {"ditta007-2024-01-01-000000", "ditta007-2024-01-03-000000", "ditta007-2024-01-02-000000",
          "ditta008-2024-01-01-000000", "ditta007-vecchia"}) {
        EXPECT_EQ(of.make(to, name).fault, "");
    }
    EXPECT_NE(of.make(to, "ditta007-vecchia").fault, "") << "written over";
    const auto unfinished = out.path() / "ditta007-2024-01-01-000000.aB12cd";
    std::filesystem::create_directory(unfinished);
    drop_old_copies(out.path(), "ditta007", 3);
    EXPECT_TRUE(std::filesystem::exists(unfinished)) << "one that may be at work";
    std::filesystem::last_write_time(
        unfinished, std::filesystem::file_time_type::clock::now() - std::chrono::hours(30));
    EXPECT_EQ(drop_old_copies(out.path(), "ditta007", 1), 2);
    EXPECT_FALSE(std::filesystem::exists(unfinished));
    EXPECT_EQ(newest_copy(out.path(), "ditta007"), (date_time{{2024, 1, 3}}));
    EXPECT_TRUE(std::filesystem::exists(out.path() / "ditta007-vecchia"));
    EXPECT_TRUE(std::filesystem::exists(out.path() / "ditta008-2024-01-01-000000"));
}

TEST(archive_restore, TheCompanyIsTheCopyOrAsItWasWhateverWriteFails) {
    const demo_folder company(tiny);
    copying of(company);
    const test::scratch_folder out;
    drive copies(out.path());
    const copy_outcome made = of.make(copies, "copia");
    const auto copied = test::files_under(company.drive());
    std::ofstream(company.file("orc"), std::ios::binary | std::ios::app) << "more";
    std::filesystem::remove(company.drive() / "mirwin/mirwin/vantora.tbl");
    const auto before = test::files_under(company.drive());

    drive from(made.place, drive::access::reading_only);
    const copy_outcome checked = checked_copy(made.place, from);
    ASSERT_EQ(checked.fault, "");
    for (const auto how : {ended, refused, unread}) {
        const test::sampled writes(how == unread ? 7 : 1);
        for (std::size_t n = writes.first;; n += writes.step) {
            SCOPED_TRACE(n);
            drive real(company.drive());
            faulty_files to(real);
            bool failed = false;
            fail(to, how, n, failed);
            bool done = false;
            std::filesystem::path former;
            try {
                const copy_outcome outcome = put_back(checked, from, 7, to, "prima");
                done = outcome.fault.empty();
                former = outcome.place;
            } catch (const test::crash&) {
                failed = true;
            }
            ASSERT_TRUE(done || failed);
            const auto place = company.drive() / "mirwin/mirwin/miraz0.007";
            if (done) {
                auto now = test::files_under(company.drive());
                for (const auto& [name, bytes] : copied) EXPECT_EQ(now[name], bytes) << name;
                std::filesystem::remove_all(place);
                std::filesystem::rename(former, place);
            }
            std::filesystem::remove(company.drive() / "mirwin/mirwin/vantora.tbl");
            EXPECT_EQ(test::files_under(company.drive()), before) << "what stood there is kept";
            if (!failed) break;
        }
    }
    std::ofstream(made.place / "mirwin/mirwin/miraz0.007/vantora.art", std::ios::app) << "x";
    EXPECT_NE(checked_copy(made.place, from).fault, "") << "a copy that was changed";
}

}  // namespace
}  // namespace vantora::archive
