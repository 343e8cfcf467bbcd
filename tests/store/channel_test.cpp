#include "store/channel.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "store/drive.h"
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

}  // namespace
}  // namespace vantora
