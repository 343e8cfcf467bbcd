#include <algorithm>
#include <random>
#include <set>

#include "entry/import_picker.h"
#include "entry/order_station.h"

namespace vantora::test {
namespace {

/// A new order that is worked on without a plan, and then gone back and forth through.
class line_history_session : public testing::TestWithParam<unsigned> {
 protected:
    line_history_session() : at((fill(company), company)) {
        at.desk.dispatch([this] { at.app.mirorc->bottone[2].click(); });
        at.desk.dispatch([this] { at.app.mirorcx->bottone.click(); });
        screen = &*at.app.mirorcs;
    }

    static void fill(small_company& company) {
        company.customers({customer_named("ROSSI SPA")});
        company.articles({article("A100", "Dado", 10), article("B200", "Vite", 25)});
        rec_prx text{};
        text.marca_testo = rec_prx::ha_testo;
        text.righe[0] = "zincata";
        company.files.prx.write(2, text);
        company.table_file();
    }

    std::size_t below(std::size_t limit) { return random() % limit; }

    /// All lines and the totals, as they stand.
    [[nodiscard]] std::string state() const {
        std::string all;
        for (int number = 1; number <= righe_ordine::massimo; ++number) {
            const riga_ordine& line = screen->lines()[number];
            for (const auto text : {line.codice.trimmed(), line.descrizione.trimmed()}) {
                all.append(text).append("|");
            }
            for (const double value : {line.quantita, line.prezzo, double(line.sc1),
                                       double(line.iva), double(line.articolo)}) {
                if (value != 0) all += std::to_string(value);
            }
        }
        return all + screen->tota[1].text();
    }

    void work() {
        const int row = static_cast<int>(below(mirorcs::rows));
        mirorcs& on = *screen;
        switch (below(10)) {
            case 0:
                on.lookup().List1.pick(static_cast<int>(below(2)));
                return;
            case 1:
                return on.comando[inserisci_riga].click();
            case 2:
                return on.comando[cancella_riga].click();
            case 3:
                return on.riordina.click();
            case 4:
                return on.artic[row].on_paste_lines({"A100;2\nB200;3;7,5"}, {});
            case 5:
                on.VScroll1.drag(1 + static_cast<int>(below(20)));
                return;
            case 6:
                at.app.mirpref->show();
                return at.desk.close(*at.app.mirpref);
            default:
                break;
        }
        ui::text_box* cells[] = {&on.artic[row], &on.ds[row], &on.quantita[row], &on.sc1[row],
                                 &on.prezzo[row]};
        ui::text_box& cell = *cells[below(std::size(cells))];
        cell.set_focus();
        if (below(3) == 0) return cell.set_text(std::to_string(below(9)));
        for (std::size_t keys = 1 + below(3); keys > 0; --keys) {
            const char one = below(4) == 0 ? '\b' : static_cast<char>('1' + below(9));
            cell.press_key(one == '\b' ? ui::key::backspace : ui::key::of(one), one);
        }
    }
    void go_all(bool (ui::form::*step)(), std::vector<std::string>& seen) {
        bool going = true;
        while (going) {
            at.desk.dispatch([&] { going = (screen->*step)(); });
            if (going) seen.push_back(state());
        }
    }

    small_company company;
    order_station at;
    mirorcs* screen = nullptr;
    std::mt19937 random{GetParam()};
};

TEST_P(line_history_session, GoesBackAndForthThroughAllThatWasDone) {
    std::vector<std::string> done{state()};
    for (int act = 0; act < 60; ++act) {
        at.desk.dispatch([this] { work(); });
        ASSERT_FALSE(at.desk.ended());
        done.push_back(state());
    }
    std::vector<std::string> back;
    go_all(&ui::form::take_back, back);
    // Each state is one that had been there, the youngest first, down to the empty order.
    auto there = done.rbegin();
    for (const std::string& one : back) {
        there = std::find(there, done.rend(), one);
        ASSERT_NE(there, done.rend());
    }
    EXPECT_EQ(back.back(), done.front());
    // Nor was any left out, but those inside of typing on in one cell.
    EXPECT_GE(std::set(back.begin(), back.end()).size() + 20,
              std::set(done.begin(), done.end()).size());

    std::vector<std::string> forth;
    go_all(&ui::form::bring_back, forth);
    EXPECT_EQ(forth.back(), done.back());
    std::vector<std::string> mirrored(back.rbegin(), back.rend());
    mirrored.erase(mirrored.begin());
    forth.pop_back();
    EXPECT_EQ(forth, mirrored);

    // Who types on after going back still finds what was taken back.
    for (int steps = 0; steps < 5; ++steps) {
        at.desk.dispatch([this] { screen->take_back(); });
    }
    at.desk.dispatch([this] { screen->prezzo[0].set_text("77"); });
    back.clear();
    go_all(&ui::form::take_back, back);
    EXPECT_NE(std::ranges::find(back, done.back()), back.end());
    EXPECT_EQ(back.back(), done.front());
}

INSTANTIATE_TEST_SUITE_P(seeds, line_history_session, testing::Range(1U, 9U));

}  // namespace
}  // namespace vantora::test
