#include "store/read_ahead.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

#include "store/drive.h"
#include "store/records/rec_tot.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class read_ahead_test : public testing::Test {
 protected:
    read_ahead_test() {
        channel<rec_tot> fresh(port.open_records("\\f"));
        std::vector<rec_tot> all(records);
        for (std::size_t i = 0; i < records; ++i) {
            all[i].quanti = static_cast<std::int16_t>(i % 30000);
            all[i].progressivo = static_cast<float>(i);
        }
        fresh.write_block(1, all);
    }

    static constexpr std::size_t records = 5000;
    test::scratch_folder folder;
    drive port{folder.path()};
    test::faulty_files faults{port};
};

/// The record, or, told apart from it, that of the read before.
float outcome(bool read, const rec_tot& record) {
    const float value = record.progressivo;
    return read ? value : -1 - value;
}

/// What records give that are read one after the other; each fails alone.
std::vector<float> one_by_one(const channel<rec_tot>& from, const std::vector<record_run>& plan) {
    std::vector<float> read;
    rec_tot record;
    for (const auto& run : plan) {
        for (std::size_t i = 0; i < run.count; ++i) {
            const bool done = from.read(run.first + static_cast<std::int64_t>(i), record);
            read.push_back(outcome(done, record));
        }
    }
    return read;
}

TEST_F(read_ahead_test, GivesWhatReadsOneAfterTheOtherGive) {
    std::mt19937 random(3);
    for (int round = 0; round < 30; ++round) {
        std::vector<record_run> plan(random() % (round % 3 == 0 ? 3000 : 40));
        const bool single = random() % 2 == 0;
        for (auto& run : plan) {
            // Some lie behind the end, some at numbers that no record has.
            run.first = static_cast<std::int64_t>(random() % (records + 300)) - 5;
            run.count = single ? 1 : random() % 40;
        }
        const std::int64_t every = random() % 3 == 0 ? 0 : 20 + random() % 500;
        faults.read_fails = [every](auto&, std::int64_t offset, std::size_t size) {
            const auto first = offset / 12;
            const auto last = first + static_cast<std::int64_t>(size / 12) - 1;
            return every > 0 && (last / every > first / every || first % every == 0);
        };
        faults.read_takes = std::chrono::microseconds(round % 4 == 0 ? 50 : 0);
        const channel<rec_tot> from(faults.open_records("\\f"));
        const auto expected = one_by_one(from, plan);

        records_ahead<rec_tot> ahead(from, plan.size(), [&](std::size_t i) { return plan[i]; });
        std::vector<float> read;
        rec_tot record;
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const bool done = ahead.next(record);
            read.push_back(outcome(done, record));
        }
        EXPECT_EQ(read, expected) << round;
        EXPECT_FALSE(ahead.next(record)) << "behind the last";
    }
}

TEST_F(read_ahead_test, ManyReadsAreUnderWayAtOnceButNotWithoutBound) {
    faults.read_takes = std::chrono::microseconds(2000);
    const channel<rec_tot> from(faults.open_records("\\f"));
    const auto begin = std::chrono::steady_clock::now();
    auto ahead = all_records_ahead(from, records, 1);
    rec_tot record;
    for (int i = 0; i < 1500; ++i) ASSERT_TRUE(ahead.next(record));
    EXPECT_EQ(record.progressivo, 1499);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(taken.count(), 1500 * 0.002 / 5) << "one after the other takes 3 s";
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_LT(faults.reads, records) << "it waits for who takes them";
}

TEST_F(read_ahead_test, NothingGoesOnOnceItIsDroppedAndACloseHurtsNothing) {
    faults.read_takes = std::chrono::microseconds(1000);
    channel<rec_tot> from(faults.open_records("\\f"));
    {
        auto ahead = all_records_ahead(from, records, 1);
        rec_tot record;
        for (int i = 0; i < 100; ++i) {
            if (i == 50) from.close();
            EXPECT_TRUE(ahead.next(record)) << i;
        }
    }
    const std::size_t reads = faults.reads;
    EXPECT_LT(reads, records);
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_EQ(faults.reads, reads);
    rec_tot record;
    EXPECT_FALSE(all_records_ahead(from, 10, 5).next(record)) << "of a closed channel";
}

}  // namespace
}  // namespace vantora
