#include "store/read_ahead.h"

#include <gtest/gtest.h>

#include <random>
#include <thread>

#include "store/block_reader.h"
#include "store/drive.h"
#include "store/record_stretches.h"
#include "store/records/rec_tot.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class read_ahead_test : public testing::Test {
 protected:
    read_ahead_test() {
        std::vector<rec_tot> all(records);
        for (std::size_t i = 0; i < records; ++i) all[i].progressivo = static_cast<float>(i);
        from.write_block(1, all);
    }

    /// Damages the file: some records can't be read. Where it is read ahead, some files are slow.
    void damage() {
        const std::int64_t every = below(3) == 0 ? 0 : 100 + below(2000);
        faults.read_fails =
            plain.read_fails = [every](auto&, std::int64_t offset, std::size_t size) {
                const auto first = offset / 12;
                const auto last = first + static_cast<std::int64_t>(size / 12) - 1;
                return every > 0 && (last / every > first / every || first % every == 0);
            };
        faults.read_takes = std::chrono::microseconds(below(6) == 0 ? 20 : 0);
    }
    /// Not all of it is read; behind the end of the work nothing must be.
    void expect_idle() {
        const std::size_t reads = faults.reads;
        EXPECT_LT(reads, records);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        EXPECT_EQ(faults.reads, reads);
    }
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    static constexpr std::size_t records = 80000;
    std::mt19937 random{3};
    test::scratch_folder folder;
    drive port{folder.path()};
    test::faulty_files faults{port};
    test::faulty_files plain{port};
    channel<rec_tot> from{faults.open_records("\\f")};
    channel<rec_tot> one_by_one{plain.open_records("\\f")};
};

TEST_F(read_ahead_test, RunsGiveWhatReadsOneAfterTheOtherGive) {
    for (int round = 0; round < 30; ++round) {
        std::vector<record_run> plan(static_cast<std::size_t>(below(round % 3 == 0 ? 3000 : 40)));
        const bool single = below(2) == 0;
        std::int64_t behind = 1;
        for (auto& run : plan) {
            // Some are neighbours, some lie behind the end, some at numbers that no record has.
            run.first = below(2) == 0 ? behind : below(records + 300) - 5;
            run.count = single ? 1 : random() % 40;
            behind = run.first + static_cast<std::int64_t>(run.count);
        }
        damage();
        records_ahead<rec_tot> ahead(from, plan.size(), [&](std::size_t i) { return plan[i]; });
        rec_tot expected;
        rec_tot read;
        for (const auto& run : plan) {
            for (std::int64_t i = 0; i < static_cast<std::int64_t>(run.count); ++i) {
                ASSERT_EQ(ahead.next(read), one_by_one.read(run.first + i, expected)) << round;
                ASSERT_EQ(read.progressivo, expected.progressivo) << round;
            }
        }
        EXPECT_FALSE(ahead.next(read)) << "behind the last";
    }
}

/// Rows one after the other; one that can't be read is the one before it.
TEST_F(read_ahead_test, WalksOverBlocksGiveWhatReadsOneAfterTheOtherGive) {
    for (int round = 0; round < 20; ++round) {
        damage();
        const int first = below(20) - 2;
        const int last = below(440);
        const int one_in = 1 + below(3) * below(3);
        const auto wanted = [one_in](const rec_tot& head) {
            return static_cast<int>(head.progressivo) / 200 % one_in == 0;
        };
        const bool whole = below(4) == 0;
        block_reader<rec_tot> reader(from);
        if (whole) reader.walk_blocks(first, last);
        if (!whole) reader.walk_heads(first, last, wanted);
        rec_tot expected;
        const int end = below(2) == 0 ? last : below(last + 1);
        for (int block = first; block <= end; ++block) {
            if (!whole) {
                const bool read = one_by_one.read(block_record(block, 1), expected);
                ASSERT_EQ(reader.first_row(block).progressivo, expected.progressivo);
                ASSERT_EQ(reader.first_row_read(), read);
                // Now and then one that was taken isn't wanted any longer, or the reverse.
                if (wanted(expected) == (below(20) == 0)) continue;
            }
            std::int64_t number = block_record(block, 1);
            for (const rec_tot& row : reader.block(block)) {
                one_by_one.read(number++, expected);
                ASSERT_EQ(row.progressivo, expected.progressivo) << round << " " << number;
            }
        }
    }
}

TEST_F(read_ahead_test, StretchesGiveWhatReadsOneAfterTheOtherGive) {
    for (int round = 0; round < 20; ++round) {
        damage();
        record_stretches<rec_tot, rec_tot> stretches(from);
        rec_tot expected;
        const int highest = 1 + below(INT16_MAX);
        for (int look = below(3000); look > 0; --look) {
            const auto number = static_cast<std::int16_t>(below(highest + 3) - 2);
            one_by_one.read(number, expected);
            ASSERT_EQ(stretches.of(number).progressivo, expected.progressivo) << number;
        }
    }
}

TEST_F(read_ahead_test, ManyReadsAreUnderWayAtOnceButNotWithoutBound) {
    faults.read_takes = std::chrono::microseconds(2000);
    std::atomic<std::size_t> records_read = 0;
    faults.read_fails = [&](auto&, auto, std::size_t size) {
        records_read += size / 12;
        return false;
    };
    const auto begin = std::chrono::steady_clock::now();
    auto ahead = all_records_ahead(from, records, 1);
    rec_tot record;
    for (int i = 0; i < 1500; ++i) ASSERT_TRUE(ahead.next(record));
    EXPECT_EQ(record.progressivo, 1499);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(taken.count(), 1500 * 0.002 / 5) << "one after the other takes 3 s";
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    EXPECT_LT(records_read, 10'000U) << "it waits for who takes them";
}

TEST_F(read_ahead_test, NothingGoesOnOnceItIsDroppedAndACloseHurtsNothing) {
    faults.read_takes = std::chrono::microseconds(1000);
    {
        auto ahead = all_records_ahead(from, records, 1);
        rec_tot record;
        for (int i = 0; i < 100; ++i) {
            if (i == 50) from.close();
            EXPECT_TRUE(ahead.next(record)) << i;
        }
    }
    expect_idle();
    rec_tot record;
    EXPECT_FALSE(all_records_ahead(from, 10, 5).next(record)) << "of a closed channel";
}

}  // namespace
}  // namespace vantora
