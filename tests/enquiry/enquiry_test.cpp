#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>

#include "enquiry/company_figures.h"
#include "enquiry/order_search.h"
#include "enquiry/prezzi.h"
#include "register/mirorc.h"
#include "scripted/order_company.h"
#include "scripted/scripted_run.h"
#include "scripted/station.h"
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

/// A company that has just given out a transport document, which stands in the print file.
struct delivered : order_company {
    delivered() {
        // What a layout and a table of the company's own would place.
        text("lyb", layout());
        text("lyo", layout());
        order(1, 1, {{1, 5}, {0, 0, 0, "fragile"}, {2, 20}});
        counter(contatori::documenti_trasporto, 7, 41);
        const auto replies = run_script(
            drive(),
            {"click mirorc.bottone(8)", "set mirorcc.Text3(2) \"3\"", "pick mirorcc.Combo1(0) 1",
             "pick mirorcc.Combo1(2) 2", "set mirorcc.Text2(8) \"Cantiere\"",
             "click mirorcc.bottone", "cell mirorcr.elenco 1 0", "click mirorcr.bottone(1)",
             "set mirorca.ds(1) \"fragile, in piedi\"", "answer yes", "answer yes", "answer no",
             "answer no", "click mirorca.comando(1)", "prints"});
        first_print = replies.back()["value"];
    }
    nlohmann::json first_print;

    /// Fields and columns one below the other, the lines between 100 and 250 mm.
    static std::vector<std::string> layout() {
        std::vector<std::string> lines;
        for (int row = 1; row <= 100; ++row) {
            std::string place = "0100" + std::to_string(10 + row % 80);
            if (row == 51) place = "100000";
            if (row == 52) place = "250000";
            lines.insert(lines.end(), {place, "9", "Arial", "0", "0", "0"});
        }
        return lines;
    }

    [[nodiscard]] std::string print_file() const { return bytes_of(drive() / "mirdoc.rto"); }
    [[nodiscard]] std::filesystem::path snapshot() const { return file("x").parent_path() / "b1"; }
};

/// The drive, but not what printing leaves.
std::map<std::string, std::string> archive_of(const small_company& company) {
    auto all = files_under(company.drive());
    all.erase("mirdoc.rto");
    return all;
}

TEST(documents_again, ATransportDocumentComesOutAsItDidAndNothingElseChanges) {
    const delivered company;
    const std::string first = company.print_file();
    ASSERT_NE(first.find("fragile, in piedi"), std::string::npos);
    const auto before = archive_of(company);
    std::filesystem::remove(company.drive() / "mirdoc.rto");

    const auto replies = run_script(
        company.drive(),
        {"open documenti", "rows documenti.elenco 1 1", "prints", "click documenti.bottone(2)",
         "prints", "click documenti.bottone(3)", "answer yes", "launched", "prints"});
    EXPECT_EQ(replies[1]["value"][0],
              (nlohmann::json{"42", "06/05/2024", "ROSSI SPA", "3", "scaricato", "8", "20240506"}));
    EXPECT_EQ(replies[4]["value"], company.first_print) << "once, without a question";
    EXPECT_EQ(replies[7]["value"].size(), 1U);
    EXPECT_NE(replies[7]["value"][0].get<std::string>().find("bll42.pdf"), std::string::npos);
    EXPECT_TRUE(replies[8]["value"].empty()) << "a PDF takes no paper";
    EXPECT_EQ(company.print_file(), first);
    EXPECT_EQ(archive_of(company), before);
}

TEST(documents_again, WithoutItsTextFileOrWithPartOfItADocumentIsNotMadeUp) {
    const delivered company;
    const std::string whole = bytes_of(company.snapshot());
    const std::string print_file = company.print_file();
    const auto said = [&] {
        const auto replies = run_script(
            company.drive(), {"open documenti", "click documenti.bottone(3)", "answer ok"});
        EXPECT_EQ(company.print_file(), print_file) << "what was printed before is left alone";
        return replies[1].value("box", nlohmann::json::object()).value("text", "");
    };
    const std::pair<std::string, std::string> damages[] = {
        {whole.substr(0, whole.size() / 2), "danneggiato"},
        {whole + "x\r\n", "danneggiato"},
        {"99999\r\n" + whole.substr(whole.find('\n') + 1), "danneggiato"},
        {"", "danneggiato"},
    };
    for (const auto& [content, word] : damages) {
        std::ofstream(company.snapshot(), std::ios::binary) << content;
        EXPECT_NE(said().find(word), std::string::npos) << content.size();
    }
    std::filesystem::remove(company.snapshot());
    EXPECT_EQ(said(), "Manca il file b1 con il contenuto del documento");
}

TEST(documents_again, AnOrderFromTheRegisterIsWhatItsSavePrints) {
    const delivered company;
    run_script(company.drive(),
               {"cell mirorc.elenco 1 0", "set mirorcz.quantita(0) \"7\"", "answer yes",
                "answer yes", "answer no", "answer no", "click mirorcz.comando(1)"});
    const std::string saved = company.print_file();
    const auto before = archive_of(company);
    std::filesystem::remove(company.drive() / "mirdoc.rto");
    const auto replies =
        run_script(company.drive(), {"cell mirorc.elenco 0 0", "key mirorc.elenco Down",
                                     "open ristampa", "answer 3", "answer no", "prints"});
    EXPECT_EQ(replies[2]["box"]["buttons"], "choice");
    EXPECT_TRUE(replies[5]["value"].empty());
    EXPECT_EQ(company.print_file(), saved);
    EXPECT_EQ(archive_of(company), before);
}

TEST(documents_again, AnOrderThatCantBeReadWholeIsNotPrinted) {
    const delivered company;
    const std::string print_file = company.print_file();
    station at(company.drive());
    at.run();
    at.faults.read_fails = [](const std::string& path, std::int64_t offset, std::size_t size) {
        constexpr std::int64_t row_7 = 6 * std::int64_t{sizeof(rec_orc)};
        return path.ends_with("orc") && offset <= row_7 &&
               row_7 < offset + static_cast<std::int64_t>(size);
    };
    at.app.mirorc->elenco.set_row(1);
    for (const auto& one : at.app.mirorc->further_windows()) {
        if (one.name == "ristampa") at.desk.dispatch(one.open);
    }
    EXPECT_NE(at.front.told.back().find("non si lascia leggere"), std::string::npos);
    EXPECT_EQ(company.print_file(), print_file);
    EXPECT_TRUE(at.paper.take_jobs().empty());
}

}  // namespace
}  // namespace vantora::test
