#include "store/archive_change.h"

#include <gtest/gtest.h>

#include "store/day_book.h"
#include "store/drive.h"
#include "store/station.h"
#include "store/suite_paths.h"
#include "support/faulty_files.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"
#include "text/code_page.h"

namespace vantora::test {
namespace {

namespace fs = std::filesystem;

/// Two stations on one company, which are asked at once whether to wait on, and don't.
struct two_stations {
    two_stations() {
        fs::create_directories(folder.path() / "mirwin/mirwin/miraz0.001");
        for (archivi* one : {&here, &there}) {
            apri_archivi(*one, faults, 1);
            one->patience = {};
        }
        here.tot.write(contatori::ordini, rec_tot{});
        faults.events.clear();
    }
    [[nodiscard]] fs::path path(const char* extension) const {
        return faults.locate(company_path(1, extension));
    }
    change_outcome change_orders(archivi& of) const {
        archive_change change(of);
        change.writes(of.orc, 1, 1);
        if (change.may_write()) change.write(of.orc, 1, rec_orc{});
        return change.finish();
    }

    scratch_folder folder;
    drive real{folder.path()};
    faulty_files faults{real};
    archivi here;
    archivi there;
};

TEST(archive_change, WaitsAsLongAsTheUserWantsAndOverrunsNobody) {
    two_stations at;
    std::string awaited;
    int asked = 0;
    at.there.station_awaited = [&](const auto& station) { awaited += station.value_or("|"); };
    {
        const archive_change first(at.here);
        EXPECT_EQ(at.change_orders(at.here).how, change_outcome::refused) << "they don't nest";
        at.there.wait_on = [&](auto) { return ++asked < 3; };
        EXPECT_EQ(at.change_orders(at.there).how, change_outcome::not_awaited);
        EXPECT_EQ(asked, 3);
        EXPECT_TRUE(at.faults.events.empty());
    }
    EXPECT_NE(awaited.find(" su "), std::string::npos) << awaited;
    EXPECT_TRUE(awaited.ends_with("|"));
    auto other = std::make_unique<archive_change>(at.here);
    at.there.wait_on = [&](auto) {
        other.reset();
        return true;
    };
    EXPECT_EQ(at.change_orders(at.there).how, change_outcome::done);
    EXPECT_FALSE(at.here.tot.shared_file()->locked_by());
}

TEST(archive_change, WithoutALockNothingChangesUnlessThereAreNone) {
    two_stations at;
    at.faults.lock_answers = lock_answer::refused;
    EXPECT_EQ(at.change_orders(at.here).files, "vantora.tot");
    EXPECT_TRUE(at.faults.events.empty());
    at.faults.lock_answers = lock_answer::unknown;
    EXPECT_EQ(at.change_orders(at.here).how, change_outcome::done);
    at.faults.lock_answers.reset();

    drive reading(at.folder.path(), drive::access::reading_only);
    EXPECT_EQ(reading.open_records(company_path(1, "tot"))->try_lock(), lock_answer::refused);
}

TEST(archive_change, GoesAlongWithReplacedFilesAndRefusesRemovedOnes) {
    for (const char* extension : {"tot", "orc"}) {
        two_stations at;
        const fs::path place = at.path(extension);
        const fs::path copy = place.string() + ".new";
        fs::copy_file(place, copy);
        fs::rename(copy, place);
        EXPECT_EQ(at.change_orders(at.here).how, change_outcome::done);
        EXPECT_EQ(fs::file_size(at.path("orc")), sizeof(rec_orc)) << extension;
        const archive_change holds(at.here);
        EXPECT_EQ(at.change_orders(at.there).how, change_outcome::not_awaited)
            << "both lock the new one";
        fs::remove(place);
    }
    for (const char* extension : {"tot", "orc"}) {
        two_stations at;
        fs::remove(at.path(extension));
        const change_outcome outcome = at.change_orders(at.here);
        EXPECT_EQ(outcome.how, change_outcome::removed);
        EXPECT_EQ(outcome.files, std::string("vantora.") + extension);
        EXPECT_TRUE(at.faults.events.empty());
    }
}

TEST(archive_change, SaysWhetherAnythingIsStored) {
    two_stations at;
    rec_tot counter;
    counter.quanti = 32767;
    at.here.tot.write(contatori::ordini, counter);
    archive_change full(at.here);
    full.counts(at.here.tot, contatori::ordini, counter, at.here.orc);
    EXPECT_EQ(full.finish().how, change_outcome::full);
    at.faults.write_fails = [](auto& path, auto) { return path.ends_with("orc"); };
    archive_change nothing(at.here);
    nothing.write(at.here.orc, 1, rec_orc{});
    EXPECT_EQ(nothing.finish().how, change_outcome::nothing_stored);
    archive_change part(at.here);
    part.write(at.here.art, 1, rec_art{});
    for (int i = 0; i < 2; ++i) part.write(at.here.orc, 1, rec_orc{});
    part.note(false, "vantora.tot");
    const change_outcome outcome = part.finish();
    EXPECT_EQ(outcome.how, change_outcome::in_part);
    EXPECT_EQ(outcome.files, "vantora.orc, vantora.tot");
}

TEST(archive_change, ABookTellsWhatWasDoneAndNeverStopsIt) {
    two_stations at;
    const scratch_folder folder;
    const day_book book(folder.path() / "a" / "b");
    const auto libro = folder.path() / "a" / "b" / "libro.txt";
    book.watch(at.here, 7, [] { return date_time{{2024, 5, 6}, 10, 20, 3}; });
    const auto change = [&at](const std::string& which, bool writes) {
        archive_change one(at.here);
        one.recorded_as("ordine nuovo", which);
        if (writes) one.write(at.here.orc, 1, rec_orc{});
        if (which == "ends") throw crash{};
        return one.finish().how;
    };
    const auto last_line = [&libro] {
        const std::string all = bytes_of(libro);
        return all.empty() ? all : all.substr(all.rfind('\n', all.size() - 2) + 1);
    };
    change("looks", false);
    EXPECT_EQ(last_line(), "");
    change("12\n\t\x80", true);
    EXPECT_EQ(last_line(), "06/05/2024 10:20:03\t" + to_utf8(this_station()) +
                               "\tditta 7\tordine nuovo\t12  \xE2\x82\xAC\tfatto\n");
    EXPECT_THROW(change("ends", true), crash);
    EXPECT_TRUE(last_line().ends_with("ends\tinterrotto\n"));
    at.faults.write_fails = [](auto&, auto) { return true; };
    change("13", true);
    EXPECT_TRUE(last_line().ends_with("13\tniente, errore su vantora.orc\n"));
    at.faults.write_fails = nullptr;
    put(libro, std::string(1U << 20U, 'x'));
    change("14", true);
    EXPECT_EQ(fs::file_size(libro.parent_path() / "libro.1.txt"), 1U << 20U);
    EXPECT_LT(fs::file_size(libro), 200U);
    fs::remove_all(libro.parent_path());
    put(libro.parent_path(), "no folder");
    EXPECT_EQ(change("15", true), change_outcome::done);
}

}  // namespace
}  // namespace vantora::test
