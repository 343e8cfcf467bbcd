#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <set>

#include "demo_folder.h"
#include "store/records.h"
#include "store/text/code_page.h"

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

/// Every entry in order, every master in it once, every key that of its master.
template <class Entry, class Master, class Key>
void expect_whole_index(const std::vector<Entry>& index, const std::vector<Master>& masters,
                        Key key) {
    ASSERT_EQ(index.size(), masters.size());
    std::set<int> seen;
    std::string before;
    for (const Entry& entry : index) {
        const int number = entry.numero;
        ASSERT_GE(number, 1);
        ASSERT_LE(number, static_cast<int>(masters.size()));
        EXPECT_TRUE(seen.insert(number).second) << number << " is in the index twice";
        EXPECT_EQ(entry.chiave.full(), key(masters[static_cast<std::size_t>(number - 1)]));
        const std::string now = upper(entry.chiave.full());
        EXPECT_LE(before, now);
        before = now;
    }
}

TEST_F(demo_archives, indexes_are_sorted_and_whole) {
    const auto customers = records<rec_cli>("cli");
    const auto articles = records<rec_art>("art");
    expect_whole_index(records<rec_src>("src"), customers,
                       [](const rec_cli& one) { return one.intestazione1.full(); });
    expect_whole_index(records<rec_sra>("sra"), articles,
                       [](const rec_art& one) { return one.codice.full(); });
    expect_whole_index(records<rec_srb>("srb"), articles,
                       [](const rec_art& one) { return one.codice_barre.full(); });
}

TEST_F(demo_archives, counters_agree_with_the_files) {
    const auto counters = records<rec_tot>("tot");
    ASSERT_GE(counters.size(), 17U);
    const struct {
        int record;
        std::string extension;
        std::size_t bytes_each;
    } counted[] = {
        {contatori::clienti, "cli", 752},      {contatori::articoli, "art", 327},
        {contatori::magazzino, "mag", 94},     {contatori::documenti_trasporto, "bol", 97},
        {contatori::ordini, "orc", 200 * 284}, {contatori::preventivi, "prv", 200 * 284}};
    for (const auto& one : counted) {
        const rec_tot& counter = counters[static_cast<std::size_t>(one.record - 1)];
        EXPECT_GT(counter.quanti, 0) << one.extension;
        EXPECT_EQ(std::filesystem::file_size(made_->file(one.extension)),
                  static_cast<std::size_t>(counter.quanti) * one.bytes_each)
            << one.extension;
    }
    EXPECT_EQ(counters[contatori::ordini - 1].ultimo_numero, 120);
    EXPECT_EQ(counters[contatori::documenti_trasporto - 1].ultimo_numero,
              records<rec_bol>("bol").back().numero);
}

TEST_F(demo_archives, every_row_of_an_order_carries_its_head_and_state) {
    const auto rows = records<rec_orc>("orc");
    ASSERT_EQ(rows.size() % 200, 0U);
    const auto head = [](const rec_orc& row) {
        return std::string(row.numero.full()) + std::string(row.data.full()) +
               std::string(row.data_evasione.full()) + std::string(row.impegno.full()) +
               std::to_string(row.cliente) + "/" + std::to_string(row.evaso_flag) + "/" +
               std::to_string(row.annullato) + "/" + std::to_string(row.data_reg);
    };
    const auto texts = [](const rec_orc& row) {
        return std::string(row.testo1.full()) + std::string(row.testo2.full()) +
               std::string(row.testo3.full());
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::size_t block = i / 200 * 200;
        ASSERT_EQ(head(rows[i]), head(rows[block])) << "row " << i;
        if (i - block > 3) {
            ASSERT_EQ(texts(rows[i]), texts(rows[block + 3])) << "row " << i;
        }
    }
}

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

TEST_F(demo_archives, stock_figures_agree_with_orders_and_movements) {
    const auto articles = records<rec_art>("art");
    std::vector<double> on_order(articles.size() + 1);
    std::vector<double> committed(articles.size() + 1);
    std::vector<double> unloaded(articles.size() + 1);
    const auto rows = records<rec_orc>("orc");
    for (const rec_orc& row : rows) {
        if (row.articolo < 1 || row.annullato == 1) continue;
        const auto number = static_cast<std::size_t>(row.articolo);
        ASSERT_LE(number, articles.size());
        on_order[number] += row.quantita - row.evaso;
        if (row.impegno.full() == "1") committed[number] += row.quantita - row.evaso;
    }
    for (const rec_mag& movement : records<rec_mag>("mag")) {
        unloaded[static_cast<std::size_t>(movement.articolo)] += movement.quantita;
    }
    EXPECT_GT(std::accumulate(on_order.begin(), on_order.end(), 0.0), 0);
    for (std::size_t number = 1; number <= articles.size(); ++number) {
        const rec_art& one = articles[number - 1];
        EXPECT_NEAR(one.ordinato_clienti, on_order[number], 1e-6) << number;
        EXPECT_NEAR(one.scaricato, unloaded[number], 1e-6) << number;
        EXPECT_GE(one.giacenza, 0) << number;
        EXPECT_GE(one.impegnato, 0) << number;
        EXPECT_LE(one.impegnato, committed[number] + 1e-6) << number;
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
