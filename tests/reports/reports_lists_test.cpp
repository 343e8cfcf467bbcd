// Every list against the procedure that reads the orders anew for each article and customer, on
// random archives, sound and damaged.

#include <gtest/gtest.h>

#include <random>

#include "reports/plain_lists.h"
#include "reports/report_stage.h"
#include "reports/sheet_rows.h"

namespace vantora::test {
namespace {

class random_archive {
 public:
    random_archive(unsigned seed, report_stage& on) : random_(seed), on_(on) {}

    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    template <class Value>
    Value one_of(std::initializer_list<Value> values) {
        return *(values.begin() + below(static_cast<int>(values.size())));
    }
    const char* text_of(std::initializer_list<const char*> values) { return one_of(values); }

    /// Some orders of few rows, or so many full ones that no list holds them.
    void fill(bool long_lists) {
        full_ = long_lists;
        articles_ = full_ ? 2 : below(7);
        customers_ = full_ ? 2 : below(6);
        orders_ = full_ ? 165 : below(7);
        archivi& files = on_.company.files;
        for (int i = 1; i <= articles_; ++i) files.art.write(i, article());
        for (int i = 1; i <= customers_; ++i) files.cli.write(i, customer());
        for (int i = 1; i <= articles_ + 2; ++i)
            files.sra.write(i, {text<15>{}, number(articles_)});
        for (int i = 1; i <= customers_ + 2; ++i)
            files.src.write(i, {text<40>{}, number(customers_)});
        for (int i = 1; i <= orders_; ++i) files.orc.write_block(block_record(i, 1), order());
        // Counters may promise more than there is.
        on_.company.counter(contatori::articoli, articles_ + (full_ ? 2 : below(3)));
        on_.company.counter(contatori::clienti, customers_ + (full_ ? 2 : below(3)));
        on_.company.counter(contatori::ordini, orders_ + below(2));
    }

    void set_fields(report_screen& screen) {
        screen.text1[0].set_text(text_of({"1", "1", "2", " 3", "0", "-1", "abc", "2.5", ""}));
        screen.text1[1].set_text(text_of({"9", "12", "2", "3", "1", "0", "-1", "4/5", "x"}));
        screen.t_inizio.set_text(text_of({"", "", "a", "B ", "\xFF"}));
        screen.t_fine.set_text(text_of({"", "", "b", "ab", "\xFF"}));
        screen.Text.set_text(text_of({"", "", "f", " F1"}));
        screen.Text3.set_text(text_of({"", "", "vi", "X"}));
        screen.text2[0].set_text(text_of({"01/03/2024", "", "1/1/24", "zzz"}));
        screen.text2[1].set_text(
            text_of({"31/12/2024", "01/03/2024", "02/03/2024", "31-12-2023", "99"}));
    }

    /// Rows that can't be read. Where sheets begin, each round would begin with the row that the
    /// one before ended with.
    void damage() {
        for (int i = 0; i < 3; ++i) {
            const int row = below(orders_ * 200 + 1);
            if (row % 200 != 0) on_.unreadable["orc"].insert(row * std::int64_t{sizeof(rec_orc)});
        }
    }

 private:
    std::int16_t number(int count) {
        return static_cast<std::int16_t>(full_ ? below(count) + 1 : below(count + 5) - 2);
    }
    std::int16_t seldom() { return !full_ && below(4) == 0 ? 1 : 0; }

    rec_art article() {
        rec_art one{};
        one.codice = text_of({"A1", "ab", " B", "b2", "", "\xE0"});
        one.descrizione = text_of({"Vite", "VITONE", "Dado", "", " x"});
        one.categoria = text_of({"0", "1", " 2", "x", "1.5"});
        one.classe1 = text_of({"F1", "f2", ""});
        one.classe3 = text_of({"F1", "G", ""});
        one.eliminato = seldom();
        return one;
    }
    rec_cli customer() {
        rec_cli one{};
        one.intestazione1 =
            text_of({"Abate", " Bruni", "ab", "Un nome che riempie i quaranta caratteri", ""});
        one.eliminato = seldom();
        return one;
    }
    std::vector<rec_orc> order() {
        rec_orc head{};
        head.numero = text_of({"7", "A/1", ""});
        head.data = text_of({"20240215", "guasta"});
        head.cliente = number(customers_);
        head.annullato = one_of<std::int16_t>({0, 1});
        head.evaso_flag = one_of<std::int16_t>({0, 1});
        head.descrizione = "";
        head.descrizione2 = "";
        std::vector<rec_orc> rows(righe_blocco, head);
        for (auto& row : rows) {
            row.testo1 = text_of({"rif", "cantiere"});
            row.data_evasione = full_ ? "20240601" : text_of({"20240301", "20240601", ""});
            if (full_ || below(30) == 0) fill_row(row);
        }
        if (below(2) == 0) fill_row(rows.front());
        return rows;
    }
    void fill_row(rec_orc& row) {
        row.articolo = number(articles_);
        row.descrizione = text_of({"riga libera", "segue", " con spazi "});
        row.descrizione2 = text_of({"segue", ""});
        row.quantita = one_of({0.0, 1.0, 2.5, -3.0, 0.001, 1234567.895});
        row.evaso = one_of({0.0, 0.0, 1.0, 2.5, 4.0});
        row.prezzo = one_of({0.0, 9.99, 0.015, -2.0, 1e12});
        row.sc1 = one_of<std::int16_t>({0, 10, 33, -5, 32767});
        row.sc2 = one_of<std::int16_t>({0, 5});
        if (!full_ && below(3) == 0) row.descrizione = "";
    }

    std::mt19937 random_;
    report_stage& on_;
    bool full_ = false;
    int articles_ = 0;
    int customers_ = 0;
    int orders_ = 0;
};

/// Opens a screen and builds its list with one set of filters after the other.
template <class Form>
void compare_lists(random_archive& archive, report_stage& stage, ui::screen<Form>& place,
                   grid_rows (plain_lists::*plain)(), int builds) {
    place.use().show();
    report_screen& screen = *place;
    plain_lists reference(stage.app.archives, screen, stage.app.parameters);
    const auto compare = [&] {
        const auto expected = (reference.*plain)();
        EXPECT_EQ(report_stage::rows_of(screen.elenco), expected)
            << screen.name() << ", orders " << screen.text1[0].text() << " to "
            << screen.text1[1].text() << ", choices " << screen.Combo1.chosen()
            << screen.Combo2.chosen() << screen.Combo0.chosen();
        EXPECT_EQ(screen.avviso.visible(), reference.cut()) << screen.name();
    };
    if (builds > 1) {
        if (screen.elenco.text(3, 0) != "'Aggiorna lista'") compare();
        archive.damage();
    }
    for (int build = 0; build < builds && !testing::Test::HasFailure(); ++build) {
        if (builds > 1) archive.set_fields(screen);
        // With no order in question a round of the customers begins with whatever the last one
        // read.
        if (screen.name() == "mirston") screen.text1[1].set_text("999");
        if (builds > 1 && screen.Combo0.count() > 0) {
            screen.Combo0.choose(archive.below(screen.Combo0.count()));
        }
        for (ui::drop_down* selector : {&screen.Combo1, &screen.Combo2}) {
            if (!screen.find(selector == &screen.Combo1 ? "Combo1" : "Combo2", {})) continue;
            const int whole = selector == &screen.Combo1 ? 0 : 1;
            selector->pick(builds > 1 ? archive.below(selector->count()) : whole);
            if (builds > 1) compare();
        }
        screen.bottone[report_screen::aggiorna].click();
        compare();
    }
    stage.unreadable.clear();
    screen.bottone[report_screen::uscita].click();
}

void compare_all_lists(unsigned seed, bool long_lists) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    report_stage stage;
    random_archive archive(seed, stage);
    stage.company.text("tb2", {"Zero", "Uno", "Due", ""});
    archive.fill(long_lists);
    stage.app.parameters.parametri_valuta[1] = "1";
    const int builds = long_lists ? 1 : 4;
    compare_lists(archive, stage, stage.app.mirstoe, &plain_lists::order_list, builds);
    compare_lists(archive, stage, stage.app.mirstos, &plain_lists::schedule, builds);
    compare_lists(archive, stage, stage.app.mirstov, &plain_lists::valuation, builds);
    compare_lists(archive, stage, stage.app.mirstoa, &plain_lists::article_sheets, builds);
    compare_lists(archive, stage, stage.app.mirston, &plain_lists::customer_sheets, builds);
    EXPECT_TRUE(stage.faults.events.empty()) << "a report wrote into a record file";
}

TEST(report_lists, AreThoseOfThePlainProcedure) {
    for (unsigned seed = 0; seed < 15 && !testing::Test::HasFailure(); ++seed) {
        compare_all_lists(seed, false);
    }
}

TEST(report_lists, EndAtThirtyTwoThousandRows) {
    compare_all_lists(0, true);
}

/// In a list of few lines, sheets are pushed out again and again.
TEST(sheet_rows, HoldTheLinesThatAreListed) {
    for (unsigned seed = 0; seed < 300; ++seed) {
        std::mt19937 random(seed);
        const int lines = static_cast<int>(random() % 20) + 1;
        const auto sheets = random() % 6;
        sheet_rows<int> rows(lines);
        std::map<std::int16_t, std::vector<int>> all;
        std::vector<std::int16_t> order;
        for (unsigned i = 0; i < sheets; ++i) {
            order.push_back(static_cast<std::int16_t>(random() % 7));
            rows.expect(order.back());
        }
        for (auto row = static_cast<int>(random() % 90); row > 0; --row) {
            const auto number = static_cast<std::int16_t>(random() % 7);
            if (std::ranges::count(order, number)) all[number].push_back(row);
            if (!rows.complete() && rows.wants(number)) rows.add(number, row);
        }
        rows.group();
        int left = lines;
        for (const std::int16_t number : order) {
            if (left <= 0 || all[number].empty()) continue;
            const auto kept = rows.rows_of(number);
            const auto most = std::min<std::size_t>(all[number].size(), std::size_t(left));
            ASSERT_GE(kept.size(), most) << "seed " << seed;
            EXPECT_TRUE(
                std::equal(all[number].begin(), all[number].begin() + long(most), kept.begin()));
            left -= static_cast<int>(all[number].size()) + 2;
        }
    }
}

}  // namespace
}  // namespace vantora::test
