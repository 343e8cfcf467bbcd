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
#include "support/long_sessions.h"

/// The write or renaming, from 0, that is refused or at which the program is killed; below 0: none.
static int steps_left = -1;
static bool kills = false;
static bool knows_exchange = true;
static constexpr int killed = 100;

static bool refuses_step() {
    if (steps_left < 0 || steps_left-- > 0) return false;
    if (kills) ::_exit(killed);
    errno = EIO;
    return true;
}

// In place of the system's own, for all of the test.
extern "C" {
ssize_t pwrite(int to, const void* bytes, size_t size, off_t offset) {
    return refuses_step() ? -1 : ::syscall(SYS_pwrite64, to, bytes, size, offset);
}
int rename(const char* from, const char* to) noexcept {
    return refuses_step() ? -1 : ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}
int renameat2(int from_folder, const char* from, int to_folder, const char* to,
              unsigned int how) noexcept {
    if (refuses_step() || !knows_exchange) return -1;
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

TEST(archive_backup, ACopyIsWholeOrNotThereWhateverWriteFails) {
    const demo_folder company(tiny);
    copying of(company);
    const auto sources = test::files_under(company.drive());
    for (const bool ended : {true, false}) {
        const test::sampled writes(ended ? 1 : 3);
        for (std::size_t n = writes.first;; n += writes.step) {
            SCOPED_TRACE(n);
            const test::scratch_folder out;
            drive real(out.path());
            faulty_files to(real);
            bool failed = false;
            if (ended) {
                to.writes_before_crash = n;
            } else {
                to.fail_at(n, n % 2 == 0, failed);
            }
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

/// A company, a copy of it, and what became of it since.
struct to_be_restored {
    to_be_restored() {
        std::ofstream(changed.file("orc"), std::ios::binary | std::ios::app) << "more";
    }
    static std::filesystem::path folder_of(const demo_folder& company) {
        return company.file("orc").parent_path();
    }

    demo_folder original{tiny};
    test::scratch_folder out;
    drive copies{out.path()};
    copy_outcome made = copying(original).make(copies, "copia");
    drive from{made.place, drive::access::reading_only};
    copy_outcome checked = checked_copy(made.place, from);
    demo_folder changed{original};
};

TEST(archive_restore, TheCompanyIsTheCopyOrAsItWasWhateverCannotBeRead) {
    to_be_restored of;
    ASSERT_EQ(of.checked.fault, "");
    const auto table = of.changed.drive() / "mirwin/mirwin/vantora.tbl";
    std::filesystem::remove(table);
    const auto place = to_be_restored::folder_of(of.changed);
    const auto rights = [](const auto& of_what) { return status(of_what).permissions(); };
    using std::filesystem::perms;
    permissions(place, perms(02770));
    permissions(of.changed.file("orc"), perms(0660));
    const copy_outcome closed = copying(of.changed).make(of.copies, "chiusa");
    EXPECT_EQ(rights(closed.place) & perms::others_all, perms::none) << "it shows more";
    const auto copied = test::files_under(of.original.drive());
    const auto before = test::files_under(of.changed.drive());
    const test::sampled operations(7);
    bool failed = true;
    for (std::size_t n = operations.first; failed; n += operations.step) {
        SCOPED_TRACE(n);
        drive real(of.changed.drive());
        faulty_files to(real);
        to.fail_at(n, n % 2 == 0, failed);
        const copy_outcome outcome = put_back(of.checked, of.from, 7, to, "prima");
        ASSERT_TRUE(outcome.fault.empty() || failed);
        if (outcome.fault.empty()) {
            auto now = test::files_under(of.changed.drive());
            for (const auto& [name, bytes] : copied) EXPECT_EQ(now[name], bytes) << name;
            EXPECT_EQ(rights(place), perms(02770));
            EXPECT_EQ(rights(of.changed.file("orc")), perms(0660));
            std::filesystem::remove_all(place);
            std::filesystem::rename(outcome.place, place);
        }
        std::filesystem::remove(table);
        EXPECT_EQ(test::files_under(of.changed.drive()), before) << "what stood there is kept";
    }
    std::ofstream(of.made.place / "mirwin/mirwin/miraz0.007/vantora.art", std::ios::app) << "x";
    EXPECT_NE(checked_copy(of.made.place, of.from).fault, "") << "a copy that was changed";
}

/// In a process of its own. How many steps it had left, `killed`, or `not_done`.
constexpr int not_done = 99;
int put_back_with(int steps, to_be_restored& of, const demo_folder& company) {
    const pid_t child = ::fork();
    if (child == 0) {
        drive to(company.drive());
        steps_left = steps;
        const bool done = put_back(of.checked, of.from, 7, to, "prima").fault.empty();
        ::_exit(done ? std::max(0, steps_left) : not_done);
    }
    int state = 0;
    ::waitpid(child, &state, 0);
    EXPECT_TRUE(WIFEXITED(state));
    return WEXITSTATUS(state);
}

TEST(archive_restore, KilledOrRefusedAtAnyWriteOrRenamingBothAreLeftAndTheNextOneGoesThrough) {
    to_be_restored of;
    const auto folder_of = to_be_restored::folder_of;
    const auto copied = test::files_under(folder_of(of.original));
    const auto former = test::files_under(folder_of(of.changed));
    for (const auto& [killing, exchanging] :
         {std::pair(true, true), {true, false}, {false, true}, {false, false}}) {
        kills = killing;
        knows_exchange = exchanging;
        // All of putting in place, some of the writes before it.
        constexpr int enough = 90;
        const int all = enough - put_back_with(enough, of, demo_folder(of.changed));
        const test::sampled writes(9);
        for (int n = all; n >= 0; n -= n > all - 4 ? 1 : static_cast<int>(writes.step)) {
            SCOPED_TRACE(n);
            const demo_folder company(of.changed);
            const int end = put_back_with(n, of, company);
            EXPECT_TRUE(n < all ? end == killed || !killing : end == 0);
            std::size_t kept = 0;
            for (const auto& one : std::filesystem::recursive_directory_iterator(company.drive())) {
                kept += one.is_directory() && test::files_under(one.path()) == former ? 1U : 0U;
            }
            EXPECT_EQ(kept, 1U);
            if (std::filesystem::exists(folder_of(company))) {
                const auto now = test::files_under(folder_of(company));
                EXPECT_TRUE(now == copied ? end != not_done : now == former && end != 0);
            } else {
                EXPECT_TRUE(killing && !exchanging) << "only where it takes two steps";
            }
            drive to(company.drive());
            EXPECT_EQ(put_back(of.checked, of.from, 7, to, "dopo").fault, "");
            EXPECT_EQ(test::files_under(folder_of(company)), copied);
        }
    }
    knows_exchange = true;
}

TEST(archive_restore, TheProgramTakesDownWhatItPutBackAndWhatItCouldNot) {
    const to_be_restored of;
    const auto restore = [&](const char* number) {
        const std::string command =
            "env -u XDG_STATE_HOME -u XDG_CONFIG_HOME HOME=" + of.out.path().string() +
            " " ARCHIVE_PROGRAM " --drive " + of.changed.drive().string() + " ordini" + number +
            " restore --yes " + of.made.place.string() + " >/dev/null 2>&1";
        return WEXITSTATUS(std::system(command.c_str()));
    };
    EXPECT_EQ(restore("008"), 3);
    EXPECT_EQ(restore("007"), 0);
    const std::string book =
        test::bytes_of(of.out.path() / ".local/state/vantora-ordini/libro.txt");
    const std::string which = "\tripristino\t" + of.made.place.string() + "\t";
    EXPECT_NE(book.find("ditta 8" + which + "non fatto, la copia non è di questa ditta\n"),
              std::string::npos)
        << book;
    EXPECT_NE(book.find("ditta 7" + which + "fatto\n"), std::string::npos) << book;
}

}  // namespace
}  // namespace vantora::archive
