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

/// The search step by step, on keys in memory (from 1); what lies behind the keys is zero
/// bytes.
int plain_search(const std::vector<std::string>& keys, int count, const std::string& typed,
                 bool by_prefix) {
    const std::string t = upper(trimmed(typed));
    int basso = 1;
    int alto = count + 1;
    int precedente = 0;
    int trovato = 0;
    bool fine = false;
    std::string key(40, '\0');
    while (!fine) {
        const int medio = basso + static_cast<int>(std::floor((alto - basso) / 2.0));
        if (medio == precedente) fine = true;
        const auto at = static_cast<std::size_t>(medio - 1);
        if (medio >= 1) key = at < keys.size() ? keys[at] : std::string(40, '\0');
        precedente = medio;
        const std::string k = by_prefix ? upper(key.substr(0, t.size())) : upper(trimmed(key));
        if (k == t) {
            trovato = medio;
            fine = true;
        }
        (k > t ? alto : basso) = medio;
    }
    // A damaged count leads to positions that no entry has.
    return std::max(trovato, 0);
}

std::vector<std::string> full(std::vector<std::string> keys, std::size_t size) {
    for (auto& key : keys) key.resize(size, ' ');
    return keys;
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

/// Sound and damaged indexes, with counts of every kind.
TEST_F(key_index, FindsWhatThePlainSearchFindsInFewReads) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        std::vector<std::string> keys(random() % 40);
        for (std::string& key : keys) {
            for (std::size_t k = random() % 4 + 1; k > 0; --k) key += "aAbBc\xE8"[random() % 6];
        }
        if (round % 4 != 0) std::ranges::sort(keys, {}, [](const auto& k) { return upper(k); });
        const auto names = write<rec_src>(keys);
        auto count = static_cast<std::int16_t>(keys.size());
        if (round % 5 == 0) count = std::vector<std::int16_t>{-32768, -7, 0, 32767}[random() % 4];
        const auto allowed = std::log2(std::max<double>(count, 1)) + 3;
        const std::string too_long(41, 'A');
        for (const char* wanted :
             {"a", " B ", "ab", "zz", "\xC8", "aaaa", "0", "", too_long.c_str()}) {
            counted.reads = 0;
            const int found = cerca_nominativo(names, count, wanted);
            EXPECT_EQ(found, plain_search(full(keys, 40), count, wanted, true)) << wanted;
            EXPECT_LE(static_cast<double>(counted.reads), allowed) << count;
        }
        const auto codes = write<rec_srb>(keys);
        for (const char* wanted : {"", "a", " B ", "ab", "aaaa"}) {
            EXPECT_EQ(cerca_codice_barre(codes, count, wanted),
                      plain_search(full(keys, 13), count, wanted, false))
                << wanted;
        }
    }
    EXPECT_EQ(cerca_nominativo(channel<rec_src>(), 100, "alfa"), 0) << "a closed channel";
}

}  // namespace
}  // namespace vantora
