#include "store/key_index.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

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
