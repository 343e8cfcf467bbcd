// A restless user at the customer screens, held step by step against the plainest procedure, on
// archives sound and damaged.

#include <gtest/gtest.h>

#include <random>

#include "customer/customer_desk.h"
#include "store/key_index.h"

namespace vantora::test {
namespace {

/// What stands on the screen, found with one read a record. What can't be read stays as it was.
struct plain_head {
    explicit plain_head(customer_desk& desk) {
        apri_archivi(files, desk.faults, 1);
        start();
    }

    void start() {
        position = 1;
        last = count();
        drag(std::clamp(bar, std::min(1, last), std::max(1, last)));
        drag(1);
        show();
    }

    int count() {
        files.tot.read(contatori::clienti, counter);
        return counter.quanti;
    }
    [[nodiscard]] bool reaches(int to) const {
        return to >= std::min(1, last) && to <= std::max(1, last);
    }
    void show() {
        files.src.read(position, entry);
        files.cli.read(entry.numero, customer);
        const int terms = customer.pagamento - 1;
        if (terms >= -1 && terms < 60) payment = terms;
    }
    void drag(int to) {
        if (!reaches(to) || to == bar) return;
        bar = to;
        if (count() < 2) return;
        position = to;
        if (position > 0) show();
    }
    /// False if there is none.
    bool search(std::string_view name) {
        const int found = find_customer(files.src, static_cast<std::int16_t>(count()), name);
        if (found > 0) position = found;
        if (found > 0 && reaches(found)) bar = found;
        if (position > 0) show();
        return found > 0;
    }
    /// Name and number of the living customers whose names hold a text.
    std::vector<std::pair<std::string, int>> list(const std::string& text) {
        std::vector<std::pair<std::string, int>> rows;
        rec_src at;
        rec_cli one;
        for (int i = 1, end = count(); i <= end; ++i) {
            files.src.read(i, at);
            files.cli.read(at.numero, one);
            const std::string name(one.intestazione1.trimmed());
            const bool holds = upper(name).find(upper(trimmed(text))) != std::string::npos;
            if (one.eliminato == 0 && holds) rows.emplace_back(name, at.numero);
        }
        return rows;
    }

    archivi files;
    rec_tot counter;
    rec_src entry;
    rec_cli customer;
    int position = 1;
    int bar = 0;
    int last = 1;  ///< where the bar ends
    int payment = -1;
};

class customer_walk : public testing::Test {
 protected:
    int below(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }
    template <class Value>
    Value one_of(std::initializer_list<Value> values) {
        return *(values.begin() + below(static_cast<int>(values.size())));
    }

    void make_archive() {
        using namespace std::string_literals;
        std::vector<rec_cli> all(static_cast<std::size_t>(below(7)));
        for (auto& one : all) {
            one = customer_named(
                one_of({"ALFA"s, "alfa"s, "*BETA"s, "AB\0C"s, "ABC"s, "GAMMA SPA"s}));
            one.citta = "citta " + std::to_string(&one - all.data());
            one.eliminato = one_of<std::int16_t>({0, 0, 0, 1, 2, -1});
            one.pagamento = one_of<std::int16_t>({0, 1, 2, 60, 61, -7, -32768});
        }
        company->customers(all);
        for (int damage = below(3); damage > 0; --damage) {
            const std::int16_t number = one_of<std::int16_t>({0, -5, 30000, 1, 2});
            const char* key = one_of({"ALFA", "ALFB", "SOMETHING ELSE"});
            company->files.src.write(below(6) + 1, {text<40>(key), number});
        }
        change_count();
    }
    void change_count() { company->counter(contatori::clienti, one_of({-5, 0, 1, 2, 3, 4, 5, 6})); }

    /// Opens the pick list with a text, and leaves it with a row, by its button or by closing it.
    void pick(customer_desk& desk, plain_head& plain) {
        auto& head = *desk.app.mirorcx;
        const std::string wanted = one_of({"", " a", "lf", "AB", "spa"});
        const auto rows = plain.list(wanted);
        const int row = below(static_cast<int>(rows.size()) + 2) + 1;
        const bool closes = below(2) == 0;
        head.nome.set_text(wanted);
        desk.front.actions = {
            [&] {
                mirsel& list = *desk.app.mirsel;
                EXPECT_EQ(list.elenco.rows(), std::max<std::size_t>(rows.size() + 1, 26));
                for (int i = 1; i <= std::ssize(rows); ++i) {
                    const auto& [name, number] = rows[static_cast<std::size_t>(i - 1)];
                    EXPECT_EQ(list.elenco.text(i, mirsel::nominativo), name);
                    EXPECT_EQ(list.elenco.text(i, mirsel::numero), std::to_string(number));
                }
                list.elenco.click_cell(row, below(5));
                if (!desk.app.mirsel.loaded()) return;
                closes ? desk.desk.close(list) : list.indice.click();
            },
            [&] { desk.desk.answer_box(ui::answer::ok); }};
        head.b_lista.click();
        desk.front.actions.clear();
        const bool chosen =
            row <= std::ssize(rows) && rows[static_cast<std::size_t>(row - 1)].second > 0;
        if (chosen) plain.search(rows[static_cast<std::size_t>(row - 1)].first);
        EXPECT_EQ(head.nome.text(), chosen || !closes ? std::string() : wanted);
        EXPECT_EQ(desk.app.selezione_cliente, 0);
    }
    void search(customer_desk& desk, plain_head& plain) {
        const std::string name = one_of({"alfa", " al", "abc", "b", "something", "zeta", ""});
        if (plain.position > 0) desk.app.mirorcx->Text2[4].set_text("edited");
        const std::string told = desk.told_by([&] {
            desk.app.mirorcx->nome.set_text(name);
            desk.app.mirorcx->b_cerca.click();
        });
        EXPECT_EQ(told, plain.search(name) ? "" : "Anagrafica non trovata") << name;
        EXPECT_EQ(desk.app.mirorcx->nome.text(), "");
        EXPECT_TRUE(desk.app.mirorcx->nome.has_focus());
    }
    /// From another screen: all is as it was, but for a new order.
    void come_back(customer_desk& desk, plain_head& plain) {
        auto& head = *desk.app.mirorcx;
        const int fresh = below(2);
        head.Text3[3].set_text("riferimento");
        head.Combo1[customer_head::porto].pick(1);
        desk.app.schermo_pronto = static_cast<std::int16_t>(1 - fresh);
        head.hide();
        head.show();
        if (fresh) plain.start();
        EXPECT_EQ(head.Text3[3].text(), fresh ? "" : "riferimento");
        EXPECT_EQ(head.Combo1[customer_head::porto].chosen(), 1);
        EXPECT_EQ(desk.app.schermo_pronto, 1);
    }
    static void expect_same(customer_desk& desk, const plain_head& plain) {
        auto& head = *desk.app.mirorcx;
        const bool deleted = plain.customer.eliminato == 1;
        const std::string_view name = plain.customer.intestazione1.trimmed();
        EXPECT_EQ(head.Text2[0].text(), deleted && !name.empty() ? name.substr(1) : name);
        EXPECT_EQ(head.Text2[4].text(), deleted ? "" : plain.customer.citta.trimmed());
        EXPECT_EQ(head.Label2.visible(), deleted);
        EXPECT_EQ(head.HScroll1.value(), plain.bar);
        EXPECT_EQ(head.Combo1[customer_head::pagamento].chosen(), plain.payment);
        const bool usable = plain.customer.eliminato == 0 && plain.entry.numero > 0;
        desk.app.selezione_1 = -1;
        head.bottone.click();
        EXPECT_EQ(desk.app.selezione_1, usable ? int{plain.entry.numero} : -1);
    }

    std::mt19937 random;
    std::unique_ptr<small_company> company;
};

TEST_F(customer_walk, ShowsWhatThePlainProcedureFinds) {
    for (unsigned seed = 0; seed < 60 && !HasFailure(); ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        random.seed(seed);
        company = std::make_unique<small_company>();
        company->table_file();
        make_archive();
        customer_desk desk(*company);
        plain_head plain(desk);
        expect_same(desk, plain);
        for (int step = 0; step < 25 && !HasFailure(); ++step) {
            desk.unreadable.clear();
            if (below(3) == 0) desk.unreadable["cli"] = {below(6 * 752)};
            if (below(5) == 0) desk.unreadable["src"] = {below(6 * 42)};
            const int move = below(8);
            if (move == 0) change_count();
            if (move == 1) pick(desk, plain);
            if (move == 2 || move == 3) search(desk, plain);
            if (move == 4) come_back(desk, plain);
            if (move > 4) {
                const int to = below(9) - 1;
                desk.app.mirorcx->HScroll1.drag(to);
                plain.drag(to);
            }
            expect_same(desk, plain);
        }
    }
}

TEST(pick_list, ReadsALongIndexInBlocksAndEndsWhereItIsFull) {
    small_company company;
    company.customers({1000, customer_named("CLIENTE")});
    customer_desk desk(company);
    desk.with_pick_list([](mirsel& list) { EXPECT_EQ(list.elenco.rows(), 1001); });
    EXPECT_LE(desk.reads["cli"], 1000U / 32 + 2);
    EXPECT_LE(desk.reads["src"], 3U);
    company.counter(contatori::clienti, 32767);
    desk.with_pick_list([](mirsel& list) { EXPECT_EQ(list.elenco.rows(), 31999); });
}

}  // namespace
}  // namespace vantora::test
