#include <gtest/gtest.h>

#include <map>
#include <set>

#include "demo_folder.h"
#include "store/records.h"

namespace vantora::test {
namespace {

class demo_archives : public testing::Test {
 protected:
    static void SetUpTestSuite() { made_ = new demo_folder(small_company); }
    static void TearDownTestSuite() {
        delete made_;
        made_ = nullptr;
    }

    template <class Record>
    static std::vector<Record> records(const std::string& extension) {
        return records_of<Record>(made_->file(extension));
    }

    static demo_folder* made_;
};

demo_folder* demo_archives::made_ = nullptr;

TEST_F(demo_archives, orders_stand_in_every_state) {
    const auto rows = records<rec_orc>("orc");
    std::map<std::string, int> states;
    for (std::size_t block = 0; block < rows.size(); block += 200) {
        double ordered = 0;
        double delivered = 0;
        for (std::size_t i = block; i < block + 200; ++i) {
            ordered += rows[i].quantita;
            delivered += rows[i].evaso;
        }
        const rec_orc& first = rows[block];
        std::string state = first.annullato == 1 ? "deleted" : delivered > 0 ? "partly" : "open";
        if (first.evaso_flag == 1) {
            state = "fulfilled";
            EXPECT_LE(ordered - delivered, 0) << "block " << block / 200 + 1;
        }
        ++states[state];
        ++states[first.impegno.full() == "1" ? "committed" : "not committed"];
        if (first.annullato == 1) {
            EXPECT_EQ(delivered, 0);
        }
    }
    for (const char* state :
         {"deleted", "partly", "open", "fulfilled", "committed", "not committed"}) {
        EXPECT_GT(states[state], 0) << state;
    }
}

/// The rest of what must agree is checked by the archive tool.
TEST_F(demo_archives, stock_figures_agree_with_movements) {
    const auto articles = records<rec_art>("art");
    std::vector<double> unloaded(articles.size() + 1);
    for (const rec_mag& movement : records<rec_mag>("mag")) {
        unloaded.at(static_cast<std::size_t>(movement.articolo)) += movement.quantita;
    }
    for (std::size_t number = 1; number <= articles.size(); ++number) {
        const rec_art& one = articles[number - 1];
        EXPECT_NEAR(one.scaricato, unloaded[number], 1e-6) << number;
        EXPECT_GE(one.giacenza, 0) << number;
        EXPECT_GE(one.impegnato, 0) << number;
        EXPECT_LE(one.impegnato, one.ordinato_clienti + 1e-6) << number;
    }
}

TEST_F(demo_archives, codes_carry_valid_check_digits) {
    const auto digit = [](std::string_view text, std::size_t i) { return text[i] - '0'; };
    for (const rec_cli& one : records<rec_cli>("cli")) {
        const std::string_view number = one.partita_iva.full();
        int sum = 0;
        for (std::size_t i = 0; i < 11; ++i) {
            const int value = digit(number, i) * (i % 2 == 0 ? 1 : 2);
            sum += value / 10 + value % 10;
        }
        EXPECT_EQ(sum % 10, 0) << number;
    }
    std::set<std::string> codes;
    for (const rec_art& one : records<rec_art>("art")) {
        const std::string code(one.codice_barre.trimmed());
        if (code.empty()) continue;
        ASSERT_EQ(code.size(), 13U);
        int sum = 0;
        for (std::size_t i = 0; i < 13; ++i) sum += digit(code, i) * (i % 2 == 0 ? 1 : 3);
        EXPECT_EQ(sum % 10, 0) << code;
        EXPECT_TRUE(codes.insert(code).second) << code;
    }
    EXPECT_GT(codes.size(), 100U);
}

TEST_F(demo_archives, some_masters_are_special_cases) {
    const auto customers = records<rec_cli>("cli");
    int deleted = 0;
    std::multiset<std::string> names;
    for (const rec_cli& one : customers) {
        deleted += one.eliminato;
        names.emplace(one.intestazione1.full());
        const bool marked = one.intestazione1.full().starts_with('~');
        EXPECT_EQ(marked, one.eliminato == 1) << one.intestazione1.full();
    }
    EXPECT_GT(deleted, 0);
    EXPECT_EQ(customers[0].eliminato, 0);
    EXPECT_GE(names.count(std::string(customers[4].intestazione1.full())), 2U);

    int long_texts = 0;
    for (const rec_prx& one : records<rec_prx>("prx")) {
        if (one.marca_testo != rec_prx::ha_testo) continue;
        ++long_texts;
        EXPECT_FALSE(one.righe[0].trimmed().empty());
    }
    EXPECT_GT(long_texts, 0);
}

}  // namespace
}  // namespace vantora::test
