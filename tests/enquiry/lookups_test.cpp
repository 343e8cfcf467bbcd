#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "enquiry/company_figures.h"
#include "enquiry/order_search.h"
#include "enquiry/prezzi.h"
#include "scripted/order_company.h"
#include "scripted/scripted_run.h"
#include "text/code_page.h"

namespace vantora::test {
namespace {

/// Orders of random customers, articles and texts, some deleted, some blocks never counted.
struct random_orders : order_company {
    explicit random_orders(unsigned seed) : random(seed) {
        const int count = at_most(12);
        for (int block = 1; block <= count; ++block) {
            std::vector<order_line> lines;
            for (int i = at_most(6); i > 0; --i) {
                lines.push_back({at_most(4), double(at_most(9)), double(at_most(3)), word()});
            }
            order(block, 1 + at_most(1), lines);
            if (at_most(4) == 0) change_rows(block, [](rec_orc& row) { row.annullato = 1; });
            change_rows(block, [&](rec_orc& row) { row.prezzo = 1 + at_most(20); });
        }
        if (count > 0 && at_most(3) == 0) counter(contatori::ordini, count - 1);
    }

    int at_most(int most) { return static_cast<int>(random() % static_cast<unsigned>(most + 1)); }
    std::string word() {
        static const char* const words[] = {"vite", "VITE zincata", "tubo", "per\xF2", "", "x"};
        return words[at_most(5)];
    }
    int counted() { return counter_now(contatori::ordini).quanti; }

    std::mt19937 random;
};

using place = std::pair<int, int>;  ///< block and row

std::vector<place> plain_search(random_orders& in, const std::string& wanted) {
    std::vector<place> found;
    const auto holds = [&](std::string_view text) {
        return searchable(text).find(searchable(wanted)) != std::string::npos;
    };
    for (int block = in.counted(); block >= 1; --block) {
        const rec_orc head = in.row_now(block, 1);
        if (head.annullato == 1) continue;
        bool in_head = holds(head.numero.full()) ||
                       holds(stored(in.files.cli, head.cliente).intestazione1.full());
        for (int row = 1; row <= 4; ++row) {
            const rec_orc one = in.row_now(block, row);
            in_head = in_head || holds(one.testo1.full()) || holds(one.testo2.full()) ||
                      holds(one.testo3.full());
        }
        if (in_head) found.emplace_back(block, 1);
        for (int row = 1; row <= righe_blocco; ++row) {
            const rec_orc one = in.row_now(block, row);
            const rec_art article = one.articolo > 0 ? in.article_now(one.articolo) : rec_art();
            const bool by_article = one.articolo > 0 && (holds(article.codice.full()) ||
                                                         holds(article.descrizione.full()));
            if (by_article || holds(one.descrizione.full())) found.emplace_back(block, row);
        }
    }
    return found;
}

TEST(lookups, ASearchFindsWhatReadingEveryRecordFinds) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        random_orders company(seed);
        for (const char* wanted : {"vite", "PERO", "a2", "rossi", "articolo a", "30", "zz"}) {
            std::vector<place> found;
            order_search(company.files, wanted)
                .run(
                    [&](const rec_orc&, const riga_trovata& one) {
                        found.emplace_back(one.registrazione, one.riga);
                    },
                    [](int) { return true; });
            EXPECT_EQ(found, plain_search(company, wanted)) << seed << " " << wanted;
        }
    }
}

TEST(lookups, PricesAndFiguresAreThoseOfEveryRow) {
    for (unsigned seed = 20; seed <= 32; ++seed) {
        random_orders company(seed);
        std::vector<double> own;
        std::vector<double> others;
        double ordered = 0;
        double open = 0;
        for (int block = company.counted(); block >= 1; --block) {
            const rec_orc head = company.row_now(block, 1);
            if (head.annullato == 1) continue;
            for (int number = 1; number <= righe_blocco; ++number) {
                const rec_orc row = company.row_now(block, number);
                if (row.articolo == 2) (row.cliente == 1 ? own : others).push_back(row.prezzo);
                ordered += line_value(row.prezzo, row.quantita, row.sc1, row.sc2, {});
                const double left = std::max(row.quantita - row.evaso, 0.0);
                open += line_value(row.prezzo, left, row.sc1, row.sc2, {});
            }
        }
        const auto prices = find_prices(company.files, 2, 1, 1000, [](int, int) { return true; });
        const auto prices_of = [](const std::vector<rec_orc>& from) {
            std::vector<double> all;
            for (const auto& one : from) all.push_back(one.prezzo);
            return all;
        };
        EXPECT_EQ(prices_of(prices.del_cliente), own) << seed;
        EXPECT_EQ(prices_of(prices.di_altri), others) << seed;

        const auto figures =
            count_company(company.files, {}, {2024, 3, 4}, [](int, int) { return true; });
        const auto sum = [](const std::vector<barra>& bars) {
            double all = 0;
            for (const barra& one : bars) all += one.valore;
            return all;
        };
        EXPECT_NEAR(sum(figures.da_evadere), open, 0.001) << seed;
        EXPECT_NEAR(sum(figures.aperto), open, 0.001) << seed;
        EXPECT_NEAR(sum(figures.clienti), ordered, 0.001) << seed;
    }
}

TEST(lookups, WhatIsFoundOpensAndWhatWasTypedBehindStays) {
    order_company company;
    company.order(1, 1, {{1, 5}, {2, 3, 0, "cerniera"}});
    company.order(2, 2, {{2, 4}});
    const auto replies = run_script(
        company.drive(),
        {"open ricerca", "set ricerca.testo \"cerniera\"", "key ricerca.testo Enter",
         "key ricerca.elenco Enter", "set mirorcz.quantita(0) \"9\"", "focus mirorcz.um(1)",
         "open prezzi", "rows prezzi.elenco 1 2", "click prezzi.bottone(0)",
         "get mirorcz.quantita(0)", "open prezzi", "key prezzi.elenco Down",
         "key prezzi.elenco Enter", "get mirorcz.sc1(1)", "open storia", "click storia.bottone(0)",
         "get mirorcz.quantita(0)", "close mirorcz", "open prezzi"});
    EXPECT_EQ(replies[3]["focus"], "artic(1)") << "the order opens at the row";
    EXPECT_EQ(replies[7]["value"][0][1], "ROSSI SPA") << "this customer's prices come first";
    EXPECT_EQ(replies[8]["focus"], "um(1)");
    EXPECT_EQ(replies[9]["value"]["text"], "9");
    EXPECT_EQ(replies[13]["value"]["text"], "10");
    EXPECT_EQ(replies[16]["value"]["text"], "9");
    EXPECT_EQ(replies[18]["ok"], false) << "the register has no row with an article";
}

}  // namespace
}  // namespace vantora::test
