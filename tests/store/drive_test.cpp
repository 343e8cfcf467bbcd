#include "store/drive.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>

#include "store/suite_paths.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"

namespace {

/// How the system's calls go: as they do on a drive of another machine, where every second one is
/// interrupted and the others do a part of what was asked; and what was flushed.
struct {
    bool by_halves = false;
    int calls = 0;
    std::string flushed;

    bool interrupts() {
        const bool now = by_halves && ++calls % 2 == 1;
        if (now) errno = EINTR;
        return now;
    }
    [[nodiscard]] size_t part(size_t size) const { return by_halves ? (size + 1) / 2 : size; }
    int flush(const char* what) {
        if (interrupts()) return -1;
        flushed += what;
        return 0;
    }
} calls;

}  // namespace

// In the place of the system's own.
extern "C" {
ssize_t pread(int file, void* into, size_t size, off_t at) {
    return calls.interrupts() ? -1 : syscall(SYS_pread64, file, into, calls.part(size), at);
}
ssize_t pwrite(int file, const void* from, size_t size, off_t at) {
    return calls.interrupts() ? -1 : syscall(SYS_pwrite64, file, from, calls.part(size), at);
}
int fdatasync(int) {
    return calls.flush("file ");
}
int fsync(int) {
    return calls.flush("folder ");
}
}

namespace vantora {
namespace {

class drive_test : public testing::Test {
 protected:
    test::scratch_folder folder;
    drive port{folder.path()};
};

TEST_F(drive_test, FindsPathsWhateverTheirCaseAndNeverLeavesItsFolder) {
    test::put(folder.path() / "MirWin/mirwin/Vantora.EUR", "1");
    EXPECT_EQ(port.read_whole("\\mirwin\\MIRWIN\\vantora.eur"), "1");
    EXPECT_EQ(port.read_whole("c:\\mirwin/mirwin\\vantora.eur"), "1");
    // The exact name goes before one in another case.
    test::put(folder.path() / "MirWin/mirwin/vantora.eur", "2");
    EXPECT_EQ(port.read_whole("\\mirwin\\mirwin\\vantora.eur"), "2");
    // What is new takes the spelling of the code.
    ASSERT_TRUE(port.create("c:\\Mirdoc.rto"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Mirdoc.rto"));
    EXPECT_TRUE(port.create_folder("\\MIRWIN\\PDF"));
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "MirWin/PDF"));
    EXPECT_TRUE(port.create_folder("\\mirwin\\pdf")) << "an existing folder is no error";
    EXPECT_EQ(port.locate("\\..\\..\\etc\\passwd"), folder.path() / "etc" / "passwd");
    EXPECT_EQ(port.locate("\\a\\.\\b"), folder.path() / "a" / "b");
    EXPECT_EQ(port.locate(""), folder.path());
    EXPECT_EQ(port.locate("x:"), folder.path());
}

TEST_F(drive_test, OpensNothingButPlainFiles) {
    std::filesystem::create_directory(folder.path() / "cartella");
    ::mkfifo((folder.path() / "coda").c_str(), 0600);
    for (const char* path : {"\\cartella", "\\coda", "\\manca\\file"}) {
        EXPECT_EQ(port.open_records(path), nullptr) << path;
        EXPECT_FALSE(port.read_whole(path).has_value()) << path;
    }
    EXPECT_FALSE(port.read_whole("\\manca").has_value());
    EXPECT_FALSE(port.create_folder("\\manca\\dentro"));
}

TEST_F(drive_test, WaitsForAFileThatAServerHasLentToAnotherMachine) {
    test::put(folder.path() / "f", "riga");
    static int lent = ::open((folder.path() / "f").c_str(), O_RDONLY);
    std::signal(SIGIO, [](int) { ::fcntl(lent, F_SETLEASE, F_UNLCK); });
    if (::fcntl(lent, F_SETLEASE, F_RDLCK) != 0) GTEST_SKIP() << "nothing is lent on this disk";
    const auto file = port.open_records("\\f");
    EXPECT_TRUE(file && file->writable());
    std::signal(SIGIO, SIG_DFL);
    ::close(lent);
}

TEST_F(drive_test, WhatIsInterruptedOrDoneByHalvesIsDoneWhole) {
    const auto file = port.open_records("\\f");
    const std::string written = "una riga di un archivio";
    std::string read(written.size() + 5, '?');
    calls = {true, 0, ""};
    EXPECT_TRUE(file->write(0, std::as_bytes(std::span(written))));
    EXPECT_EQ(file->read(0, std::as_writable_bytes(std::span(read))), written.size());
    EXPECT_TRUE(file->flush() && file->flush());
    EXPECT_EQ(calls.flushed, "file folder file ") << "a new file is lost with its name";
    calls = {};
    EXPECT_EQ(read.substr(0, written.size()), written);
    EXPECT_EQ(test::bytes_of(folder.path() / "f"), written);
}

TEST_F(drive_test, OfATextFarTooLargeItReadsTheHead) {
    test::put(folder.path() / "f", "prima riga\n");
    std::filesystem::resize_file(folder.path() / "f", 200U << 20U);
    const auto content = port.read_whole("\\f");
    ASSERT_TRUE(content.has_value());
    EXPECT_TRUE(content->starts_with("prima riga\n"));
    EXPECT_LT(content->size(), 100U << 20U);
}

TEST_F(drive_test, AFileThatMayOnlyBeReadIsOpenedForReading) {
    test::put(folder.path() / "f", "abc");
    ::chmod((folder.path() / "f").c_str(), 0444);
    ::chmod(folder.path().c_str(), 0755);
    // Permissions don't bind the superuser, who becomes somebody else for the moment of opening.
    const uid_t user = ::geteuid();
    constexpr uid_t nobody = 65534;
    ASSERT_TRUE(user != 0 || ::seteuid(nobody) == 0);
    const auto opened = port.open_records("\\f");
    ASSERT_EQ(::seteuid(user), 0);
    ASSERT_TRUE(opened);
    std::byte byte{};
    EXPECT_EQ(opened->read(1, std::span(&byte, 1)), 1U);
    EXPECT_FALSE(opened->write(0, std::span(&byte, 1)));
    drive reading(folder.path(), drive::access::reading_only);
    EXPECT_FALSE(reading.open_records("\\new") || reading.create("\\new"));
}

TEST(company, ItsNumberIsReadFromTheArgument) {
    const std::pair<const char*, int> arguments[] = {
        {"ordini007", 7},  {"ordini123xyz", 123}, {"ordini00", 0},   {"", 0},
        {"ordini -5", -5}, {"ordiniabc", 0},      {"ordini 42", 42}, {"ordini1e3", 0},
        {"ordini9e9", 0},  {"ordini2 x9", 2}};
    for (const auto& [argument, number] : arguments) {
        EXPECT_EQ(company_number_in(argument), number) << argument;
    }
}

}  // namespace
}  // namespace vantora
