#include "store/channel.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "store/drive.h"
#include "store/key_index.h"
#include "store/records.h"
#include "support/faulty_files.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class channel_test : public testing::Test {
 protected:
    channel<rec_tot> open() { return channel<rec_tot>(port.open_records("\\f")); }

    test::scratch_folder folder;
    std::filesystem::path f = folder.path() / "f";
    drive port{folder.path()};
};

TEST_F(channel_test, WhatLiesPastTheEndIsZeroBytes) {
    test::put(f, std::string(12, 'a') + "bc");
    auto tot = open();
    rec_tot record;
    record.ultimo_numero = 7;
    ASSERT_TRUE(tot.read(2, record));
    EXPECT_EQ(record.quanti, 'b' + 256 * 'c');
    EXPECT_EQ(record.ultimo_numero, 0);
    ASSERT_TRUE(tot.read(1000, record));
    EXPECT_EQ(record.quanti, 0);
    std::vector<rec_tot> block(4);
    ASSERT_TRUE(tot.read_block(1, block));
    EXPECT_EQ(block[0].quanti, 'a' + 256 * 'a');
    EXPECT_EQ(block[3].quanti, 0);
    record.quanti = 0x0102;
    ASSERT_TRUE(tot.write(4, record));
    EXPECT_EQ(test::bytes_of(f).substr(12),
              "bc" + std::string(22, '\0') + "\x02\x01" + std::string(10, '\0'));
}

TEST_F(channel_test, FailuresLeaveTheRecordsAsTheyWere) {
    rec_tot record;
    record.quanti = 5;
    channel<rec_tot> closed;
    EXPECT_FALSE(closed.read(1, record));
    EXPECT_FALSE(closed.write(1, record));
    EXPECT_FALSE(closed.flush());
    auto tot = open();
    for (const int number : {0, -1, -32768}) {
        EXPECT_FALSE(tot.read(number, record)) << number;
        EXPECT_FALSE(tot.write(number, record)) << number;
    }
    test::faulty_files faults(port);
    faults.read_fails = [](auto&&...) { return true; };
    const channel<rec_tot> failing(faults.open_records("\\f"));
    std::vector<rec_tot> block(2, record);
    EXPECT_FALSE(failing.read_block(1, block));
    EXPECT_EQ(record.quanti, 5);
    EXPECT_EQ(block[1].quanti, 5);
}

TEST_F(channel_test, RoomIsSetAsideWithoutChangingTheFile) {
    test::put(f, std::string(30, 'a'));
    auto tot = open();
    EXPECT_TRUE(tot.reserve(2, 5000));
    EXPECT_EQ(tot.records_held(), 2);
    EXPECT_EQ(std::filesystem::file_size(f), 30U);
    EXPECT_FALSE(tot.reserve(0, 1));
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit small{1000, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_TRUE(tot.reserve(2, 5));
    EXPECT_FALSE(tot.reserve(2, 5000));
    ::setrlimit(RLIMIT_FSIZE, &before);
}

TEST(fields, AreTheBytesOfTheFile) {
    struct {
        text<5> word;
        i16le small;
        f32le single;
        f64le real;
    } record;
    record.word = "abcdefg";
    record.small = std::int16_t{-2};
    record.single = 1.0F;
    record.real = -2.0;
    const std::string expected("abcde\xFE\xFF\0\0\x80\x3F\0\0\0\0\0\0\0\xC0", 19);
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(&record), sizeof record), expected);
    EXPECT_EQ(record.real, -2.0);
    record.word = "a";
    EXPECT_EQ(record.word.full(), "a    ");
    EXPECT_EQ(record.word.trimmed(), "a");
    EXPECT_EQ(text<3>().full(), std::string(3, '\0')) << "a field never stored";
}

/// Whether an entry, cut to the length of what was typed if `by_prefix`, is the one meant.
bool matches(const std::string& key, const std::string& typed, bool by_prefix) {
    const std::string wanted = upper(trimmed(typed));
    return (by_prefix ? upper(key.substr(0, wanted.size())) : upper(trimmed(key))) == wanted;
}

class key_index : public testing::Test {
 protected:
    /// Writes the keys as an index, entry i pointing to 1000 + i.
    template <class Entry>
    channel<Entry> write(const std::vector<std::string>& keys) {
        std::filesystem::remove(folder.path() / "index");
        channel<Entry> index(counted.open_records("\\index"));
        for (std::size_t i = 0; i < keys.size(); ++i) {
            index.write(static_cast<int>(i) + 1,
                        {std::string_view(keys[i]), static_cast<std::int16_t>(1001 + i)});
        }
        return index;
    }

    test::scratch_folder folder;
    drive port{folder.path()};
    test::faulty_files counted{port};
};

/// What is there is found; in a damaged index, or with a wrong count, at least nothing else is.
TEST_F(key_index, FindsWhatIsThereInFewReads) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> keys(random() % 40);
        for (std::string& key : keys) {
            for (std::size_t k = random() % 4 + 1; k > 0; --k) key += "aAbBc\xE8"[random() % 6];
        }
        const bool sorted = round % 4 != 0;
        if (sorted) std::ranges::sort(keys, {}, [](const auto& k) { return upper(k); });
        const auto names = write<rec_src>(keys);
        const auto codes = write<rec_srb>(keys);
        auto count = static_cast<std::int16_t>(keys.size());
        if (round % 5 == 0) count = std::vector<std::int16_t>{-32768, -7, 0, 32767}[random() % 4];
        const bool sound = sorted && count == static_cast<int>(keys.size());
        const auto allowed = std::log2(std::max<double>(count, 1)) + 3;
        for (const char* wanted : {"a", " B ", "ab", "zz", "\xC8", "aaaa", "0"}) {
            for (const bool by_prefix : {true, false}) {
                counted.reads = 0;
                const int found = by_prefix ? find_customer(names, count, wanted)
                                            : look_up_bar_code(codes, count, wanted);
                EXPECT_LE(static_cast<double>(counted.reads), allowed) << count;
                const auto is_meant = [&](const auto& key) {
                    return matches(key, wanted, by_prefix);
                };
                ASSERT_GE(found, 0);
                if (found > 0 && found <= static_cast<int>(keys.size())) {
                    EXPECT_TRUE(is_meant(keys[static_cast<std::size_t>(found - 1)])) << wanted;
                } else if (sound) {
                    EXPECT_TRUE(std::ranges::none_of(keys, is_meant)) << wanted;
                }
            }
        }
    }
    EXPECT_EQ(find_customer(channel<rec_src>(), 100, "alfa"), 0) << "a closed channel";
}

}  // namespace
}  // namespace vantora
