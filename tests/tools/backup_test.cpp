#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <map>

#include "backup/backup.h"
#include "demo_folder.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/sampled.h"

/// Steps that change something until the program is killed; below 0: it goes on.
static int steps_left = -1;
static bool knows_exchange = true;

static constexpr int killed = 100;

static void take_step() {
    if (steps_left >= 0 && steps_left-- == 0) ::_exit(killed);
}

// In place of the system's own, for all of the test.
extern "C" {
ssize_t pwrite(int to, const void* bytes, size_t size, off_t offset) {
    take_step();
    return ::syscall(SYS_pwrite64, to, bytes, size, offset);
}
int rename(const char* from, const char* to) noexcept {
    take_step();
    return ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}
int renameat2(int from_folder, const char* from, int to_folder, const char* to,
              unsigned int how) noexcept {
    take_step();
    errno = EINVAL;
    if (!knows_exchange) return -1;
    return static_cast<int>(::syscall(SYS_renameat2, from_folder, from, to_folder, to, how));
}
}

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
    for (const auto how : {refused, unread}) {
        const test::sampled writes(how == unread ? 7 : 1);
        for (std::size_t n = writes.first;; n += writes.step) {
            SCOPED_TRACE(n);
            drive real(company.drive());
            faulty_files to(real);
            bool failed = false;
            fail(to, how, n, failed);
            const copy_outcome outcome = put_back(checked, from, 7, to, "prima");
            const bool done = outcome.fault.empty();
            ASSERT_TRUE(done || failed);
            const auto place = company.drive() / "mirwin/mirwin/miraz0.007";
            if (done) {
                auto now = test::files_under(company.drive());
                for (const auto& [name, bytes] : copied) EXPECT_EQ(now[name], bytes) << name;
                std::filesystem::remove_all(place);
                std::filesystem::rename(outcome.place, place);
            }
            std::filesystem::remove(company.drive() / "mirwin/mirwin/vantora.tbl");
            EXPECT_EQ(test::files_under(company.drive()), before) << "what stood there is kept";
            if (!failed) break;
        }
    }
    std::ofstream(made.place / "mirwin/mirwin/miraz0.007/vantora.art", std::ios::app) << "x";
    EXPECT_NE(checked_copy(made.place, from).fault, "") << "a copy that was changed";
}

/// Puts a copy back in a process that is killed after so many steps; returns how many it had left.
int put_back_with(int steps, const copy_outcome& copy, file_port& from,
                  const demo_folder& company) {
    const pid_t child = ::fork();
    if (child == 0) {
        drive to(company.drive());
        steps_left = steps;
        const bool done = put_back(copy, from, 7, to, "prima").fault.empty();
        ::_exit(done ? steps_left : 99);
    }
    int state = 0;
    ::waitpid(child, &state, 0);
    EXPECT_TRUE(WIFEXITED(state) && WEXITSTATUS(state) != 99);
    return WEXITSTATUS(state) == killed ? 0 : WEXITSTATUS(state);
}

TEST(archive_restore, KilledAtAnyWriteOrRenamingItLeavesBothAndTheNextOneGoesThrough) {
    const demo_folder original(tiny);
    const test::scratch_folder out;
    drive copies(out.path());
    const copy_outcome made = copying(original).make(copies, "copia");
    drive from(made.place, drive::access::reading_only);
    const copy_outcome checked = checked_copy(made.place, from);
    const auto company_of = [](const demo_folder& of) { return of.file("orc").parent_path(); };
    const auto copied = test::files_under(company_of(original));
    const demo_folder changed(original);
    std::ofstream(changed.file("orc"), std::ios::binary | std::ios::app) << "more";
    const auto former = test::files_under(company_of(changed));
    for (const bool exchanging : {true, false}) {
        knows_exchange = exchanging;
        // All of putting in place, some of the writes before it.
        constexpr int enough = 90;
        const int all = enough - put_back_with(enough, checked, from, demo_folder(changed));
        const test::sampled writes(5);
        for (int steps = all; steps >= 0;
             steps -= steps > all - 4 ? 1 : static_cast<int>(writes.step)) {
            SCOPED_TRACE(steps);
            const bool ended = steps == all;
            const demo_folder company(changed);
            put_back_with(steps, checked, from, company);
            std::size_t kept = 0;
            for (const auto& one : std::filesystem::recursive_directory_iterator(company.drive())) {
                kept += one.is_directory() && test::files_under(one.path()) == former ? 1U : 0U;
            }
            EXPECT_EQ(kept, 1U);
            if (std::filesystem::exists(company_of(company))) {
                const auto now = test::files_under(company_of(company));
                EXPECT_TRUE(now == copied || (now == former && !ended));
            } else {
                EXPECT_FALSE(exchanging || ended) << "only where it takes two steps";
            }
            drive to(company.drive());
            EXPECT_EQ(put_back(checked, from, 7, to, "dopo").fault, "");
            EXPECT_EQ(test::files_under(company_of(company)), copied);
        }
    }
    knows_exchange = true;
}

TEST(archive_restore, TheProgramTakesDownWhatItPutBackAndWhatItCouldNot) {
    const demo_folder company(tiny);
    const test::scratch_folder out;
    drive copies(out.path());
    const copy_outcome made = copying(company).make(copies, "copia");
    std::ofstream(company.file("orc"), std::ios::binary | std::ios::app) << "more";
    const auto restore = [&](const char* number) {
        const std::string command =
            "env -u XDG_STATE_HOME -u XDG_CONFIG_HOME HOME=" + out.path().string() +
            " " ARCHIVE_PROGRAM " --drive " + company.drive().string() + " ordini" + number +
            " restore --yes " + made.place.string() + " >" + (out.path() / "said").string() +
            " 2>&1";
        return WEXITSTATUS(std::system(command.c_str()));
    };
    EXPECT_EQ(restore("008"), 3);
    EXPECT_EQ(restore("007"), 0);
    const std::string book = test::bytes_of(out.path() / ".local/state/vantora-ordini/libro.txt");
    const std::string which = "\tripristino\t" + made.place.string() + "\t";
    EXPECT_NE(book.find("ditta 8" + which + "non fatto, la copia non è di questa ditta\n"),
              std::string::npos)
        << book;
    EXPECT_NE(book.find("ditta 7" + which + "fatto\n"), std::string::npos) << book;
}

}  // namespace
}  // namespace vantora::archive
