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

/// The search told step by step, on keys in memory (from 1); what lies behind the keys is zero
/// bytes.
int told_search(const std::vector<std::string>& keys, int count, const std::string& typed,
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
        if (medio >= 1) {
            key = medio <= static_cast<int>(keys.size()) ? keys[static_cast<std::size_t>(medio - 1)]
                                                         : std::string(40, '\0');
        }
        precedente = medio;
        const std::string k = by_prefix ? upper(key.substr(0, t.size())) : upper(trimmed(key));
        if (k == t) {
            trovato = medio;
            fine = true;
        }
        if (k > t) {
            alto = medio;
        } else {
            basso = medio;
        }
    }
    return trovato;
}

class key_index : public testing::Test {
 protected:
    /// Writes the keys as a name index, entry i pointing to 1000 + i.
    void write(const std::vector<std::string>& keys) {
        std::filesystem::remove(folder.path() / "src");
        channel<rec_src> index(port.open_records("\\src"));
        for (std::size_t i = 0; i < keys.size(); ++i) {
            index.write(static_cast<int>(i) + 1,
                        {std::string_view(keys[i]), static_cast<std::int16_t>(1001 + i)});
        }
    }
    static std::vector<std::string> full(std::vector<std::string> keys) {
        for (auto& key : keys) key.resize(40, ' ');
        return keys;
    }

    test::scratch_folder folder;
    drive port{folder.path()};
    test::faulty_files counted{port};
};

TEST_F(key_index, FindsWhatTheToldSearchFindsInFewReads) {
    std::mt19937 random(11);
    for (int round = 0; round < 300; ++round) {
        const std::size_t size = random() % 40;
        std::vector<std::string> keys;
        for (std::size_t i = 0; i < size; ++i) {
            std::string key;
            for (std::size_t k = random() % 4 + 1; k > 0; --k) key += "aAbBc\xE8"[random() % 6];
            keys.push_back(key);
        }
        if (round % 4 != 0) std::ranges::sort(keys, {}, [](const auto& k) { return upper(k); });
        write(keys);
        const channel<rec_src> index(counted.open_records("\\src"));
        for (const char* wanted : {"", "a", " B ", "ab", "c", "zz", "\xC8", "aaaa", "0"}) {
            const auto count = static_cast<std::int16_t>(size);
            counted.reads = 0;
            const int found = cerca_nominativo(index, count, wanted);
            EXPECT_EQ(found, told_search(full(keys), count, wanted, true)) << wanted;
            EXPECT_LE(counted.reads, std::floor(std::log2(std::max<std::size_t>(size, 1))) + 3)
                << size;
        }
    }
}

TEST_F(key_index, TiesGoToTheFirstProbeThatMatches) {
    write({"ALFA", "BETA", "BETA", "BETA", "GAMMA"});
    const channel<rec_src> index(port.open_records("\\src"));
    EXPECT_EQ(cerca_nominativo(index, 5, "beta"), 3) << "not the first in the alphabet";
    EXPECT_EQ(cerca_nominativo(index, 5, std::string(41, 'A')), 0);
}

TEST_F(key_index, DamagedCountsNeitherHangNorReadWildly) {
    write({"ALFA", "BETA"});
    for (const int count : {-32768, -7, -1, 0, 3, 32767}) {
        const channel<rec_src> index(counted.open_records("\\src"));
        counted.reads = 0;
        const int found = cerca_nominativo(index, static_cast<std::int16_t>(count), "zeta");
        EXPECT_EQ(found, 0) << count;
        EXPECT_LE(counted.reads, 18U) << count;
        EXPECT_GE(cerca_nominativo(index, static_cast<std::int16_t>(count), ""), 0) << count;
    }
    EXPECT_EQ(cerca_nominativo(channel<rec_src>(), 100, "alfa"), 0) << "a closed channel";
}

TEST_F(key_index, BarCodesMatchAsAWhole) {
    channel<rec_srb> index(port.open_records("\\srb"));
    index.write(1, {std::string_view("8001"), std::int16_t{9}});
    index.write(2, {std::string_view("80011"), std::int16_t{8}});
    index.write(3, {std::string_view("8002"), std::int16_t{7}});
    EXPECT_EQ(cerca_codice_barre(index, 3, " 8001 "), 1);
    EXPECT_EQ(cerca_codice_barre(index, 3, "80011"), 2);
    EXPECT_EQ(cerca_codice_barre(index, 3, "800"), 0);
    EXPECT_EQ(cerca_codice_barre(index, 0, "8001"), 1) << "record 1 is read in any case";
}

TEST_F(key_index, TheWalkReadsManyEntriesAtOnceAndRepeatsWhatItCantRead) {
    std::vector<std::string> keys;
    for (int i = 1; i <= 1200; ++i) keys.push_back("k" + std::to_string(i));
    write(keys);
    counted.read_fails = [](const std::string&, std::int64_t offset, std::size_t size) {
        const std::int64_t bad = 42 * 599;  // entry 600
        return offset <= bad && bad < offset + static_cast<std::int64_t>(size);
    };
    const channel<rec_src> index(counted.open_records("\\src"));
    std::vector<int> numbers;
    const std::function<bool(std::int16_t, const rec_src&)> visit = [&](std::int16_t position,
                                                                        const rec_src& entry) {
        EXPECT_EQ(position, static_cast<int>(numbers.size()) + 1);
        numbers.push_back(entry.numero);
        return position < 1100;
    };
    percorri_indice(index, 1200, visit);
    ASSERT_EQ(numbers.size(), 1100U);
    EXPECT_EQ(numbers[598], 1599);
    EXPECT_EQ(numbers[599], 1599);
    EXPECT_EQ(numbers[600], 1601);
    EXPECT_LE(counted.reads, 3U + 512U);
}

}  // namespace
}  // namespace vantora
