#include <gtest/gtest.h>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using nlohmann::json;

class mirorc : public testing::Test {
 protected:
    /// Head row of a block; the other rows play no part in the register.
    rec_orc order(int registrazione, const std::string& number, int customer,
                  const std::string& stored_date) {
        rec_orc row{};
        row.numero = number;
        row.data = stored_date;
        row.data_evasione = "20240731";
        row.cliente = static_cast<std::int16_t>(customer);
        row.testo1 = "rif " + std::to_string(registrazione);
        return row;
    }
    void put(int registrazione, const rec_orc& row) {
        company.files.orc.write(block_record(registrazione, 1), row);
    }
    /// A deleted order and so many plain ones.
    void fill_behind_a_deleted_one(int orders) {
        for (int i = 1; i <= orders + 1; ++i) {
            rec_orc row = order(i, std::to_string(i), 1, "20240101");
            row.annullato = static_cast<std::int16_t>(i == 1);
            put(i, row);
        }
        company.counter(contatori::ordini, orders + 1);
    }
    void set_view(int stored) {
        change_stored(company.gnr, 1, [&](rec_gnr& general) {
            general.vista_registro = static_cast<std::int16_t>(stored);
        });
    }
    json run(const std::vector<std::string>& commands) {
        return run_script(company.drive(), commands);
    }
    json rows(const std::vector<std::string>& commands, const std::string& range) {
        auto all = commands;
        all.push_back("rows mirorc.elenco " + range);
        return run(all).back()["value"];
    }
    small_company company;
};

TEST_F(mirorc, ListsOrdersOfEveryState) {
    auto gone = customer_named("*CESSATA");
    gone.eliminato = 1;
    company.customers({customer_named("ROSSI"), gone});
    auto fulfilled = order(2, "B/2", 2, "20240229");
    fulfilled.evaso_flag = 1;
    auto deleted = order(3, "3", 1, "20240301");
    deleted.annullato = 1;
    put(1, order(1, " A1 ", 1, "20240215"));
    put(2, fulfilled);
    put(3, deleted);
    put(4, order(4, "4", 0, "garbage!"));
    put(5, order(5, "5", 3, "        "));
    put(6, order(6, "6", -9, "20240101"));
    company.counter(contatori::ordini, 6);

    const json expected = {
        {"Registr.", "Ordine", "Data", "Cliente", "Descrizione ordine", "Evasione", "", "", ""},
        {"1", "A1", "15/02/2024", "ROSSI", "rif 1", "31/07/2024", "", "", "20240215"},
        {"2", "B/2", "29/02/2024", "*CESSATA", "rif 2", "EVASO", "", "", "20240229"},
        {"3", "", "", "Ordine eliminato", "", "", "", "", ""},
        {"4", "4", "e!/ag/garb", "", "rif 4", "31/07/2024", "", "", "garbage!"},
        {"5", "5", "  /  /    ", "", "rif 5", "31/07/2024", "", "", "        "},
        {"6", "6", "01/01/2024", "", "rif 6", "31/07/2024", "", "", "20240101"},
        {"", "", "", "", "", "", "", "", ""},
    };
    EXPECT_EQ(rows({}, "0 7"), expected);
}

/// Rows past the end of the file are empty orders.
TEST_F(mirorc, ShowsWhatItsViewTakesOnAPageAtLeast) {
    struct {
        int orders, view;
        const char* first;
        int rows, top;
    } cases[] = {{1000, 1, "1", 1001, 1},   {1001, 1, "2", 1001, 1},
                 {1001, 2, "1", 1002, 1},   {5001, 2, "2", 5001, 1},
                 {-7, 0, "", 26, 1},        {0, 10, "", 26, 1},
                 {22, 10, "1", 26, 1},      {23, 10, "1", 26, 4},
                 {25, 10, "1", 26, 4},      {26, 10, "1", 27, 5},
                 {60, 10, "1", 61, 39},     {1001, 11, "2", 1001, 979},
                 {32767, 0, "1", 31999, 1}, {32767, 12, "27768", 5001, 4979}};
    for (const bool readable : {true, false}) {
        for (const auto& one : cases) {
            company.counter(contatori::ordini, one.orders);
            set_view(one.view);
            const json replies =
                run({"get mirorc.elenco", "rows mirorc.elenco 1", "get mirorc.avviso"});
            const json& left_out = replies[2]["value"];
            EXPECT_EQ(left_out["visible"], one.rows == 31999);
            if (one.rows == 31999) {
                EXPECT_EQ(left_out["text"], "(mancano le ultime 769)");
            }
            EXPECT_EQ(replies[0]["value"]["rows"], one.rows) << one.orders << readable;
            EXPECT_EQ(replies[0]["value"]["toprow"], one.top) << one.orders;
            EXPECT_EQ(replies[1]["value"][0][0], one.first) << one.orders;
        }
        std::filesystem::remove(company.file("orc"));
        std::filesystem::create_directory(company.file("orc"));
    }
}

TEST_F(mirorc, RestoresTheViewAndSavesItAtTheMomentOfChange) {
    change_stored(company.gnr, 1,
                  [](rec_gnr& general) { general.riservato_bd = "di altri programmi"; });
    const auto shown = [&] {
        const json controls = run({"controls mirorc"})[0]["value"];
        int view = controls["visua(1)"]["on"] == true ? 10 : 0;
        for (const int i : {1, 2}) {
            if (controls["selvis(" + std::to_string(i) + ")"]["on"] == true) view += i;
        }
        return view;
    };
    for (const int view : {0, 1, 2, 10, 11, 12}) {
        set_view(view);
        const std::string kept = company.content("gnr");
        EXPECT_EQ(shown(), view);
        EXPECT_EQ(company.content("gnr"), kept) << "restoring saves nothing";

        set_view(99);
        run({"click mirorc.selvis(1)", "click mirorc.visua(" + std::to_string(view / 10) + ")",
             "click mirorc.selvis(" + std::to_string(view % 10) + ")"});
        EXPECT_EQ(company.content("gnr"), kept) << view << ", nothing else";
    }
    for (const int strange : {3, 9, 13, 20, -1}) {
        set_view(strange);
        EXPECT_EQ(shown(), 0) << strange;
    }
}

TEST_F(mirorc, SortsByEachColumnAndKeepsBlankRowsAtTheBottom) {
    company.customers({customer_named("Zeta"), customer_named("alfa")});
    put(1, order(1, "10", 1, "20240105"));
    put(2, order(2, "9", 2, "20231224"));
    put(3, order(3, "A", 1, "20240101"));
    company.counter(contatori::ordini, 3);
    for (const auto& [button, sorted] : {std::pair{"srx(0)", "1 2 3  "},
                                         {"srx(1)", "2 1 3  "},
                                         {"srx(2)", "2 3 1  "},
                                         {"srx(3)", "2 1 3  "},
                                         {"srx(5)", "1 2 3  "}}) {
        std::string order;
        for (const json& row : rows({std::string("click mirorc.") + button}, "1 4")) {
            order += row[0].get<std::string>() + " ";
        }
        EXPECT_EQ(order, sorted) << button;
    }
}

TEST_F(mirorc, OpensOnlyLivingOrdersAndNothingWithoutCustomers) {
    fill_behind_a_deleted_one(1);
    const json replies = run({"cell mirorc.elenco 1 4", "answer ok", "cell mirorc.elenco 9 0",
                              "cell mirorc.elenco 0 3", "cell mirorc.elenco 2 2"});
    EXPECT_EQ(replies[0]["box"]["text"], "Ordine annullato");
    for (const std::size_t i : {1, 2, 3}) EXPECT_FALSE(replies[i].contains("box")) << i;
    for (const char* command : {"click mirorc.bottone(2)", "click mirorc.bottone(8)"}) {
        const json refused = run({command, "answer ok"});
        EXPECT_EQ(refused[0]["box"]["text"], "Nessun cliente memorizzato");
        EXPECT_EQ(refused[0]["box"]["icon"], "stop");
        EXPECT_EQ(refused[1]["screen"], "mirorc");
    }
    EXPECT_EQ(run({"close mirorc"})[0]["ended"], "exit");
}

TEST_F(mirorc, CompactionOffersACopyFirstWhereTheLastIsOlderThanADay) {
    fill_behind_a_deleted_one(3);
    const auto copies = company.drive() / "mirwin" / "copie";
    const auto compact = [&](const std::string& clock, const std::string& answer) {
        return run({"guards on", "clock \"" + clock + "\"", "click mirorc.srtt(0)", "answer no",
                    "answer yes", answer});
    };
    const auto before = files_under(company.drive());
    test::put(copies, "in the way");
    json replies = compact("2024-05-06 10:20:30", "answer 1");
    EXPECT_EQ(replies[4]["box"]["choices"].size(), 3U);
    EXPECT_TRUE(std::string(replies[5]["box"]["text"]).starts_with("Nessuna copia: "));
    std::filesystem::remove(copies);
    compact("2024-05-06 10:20:30", "answer 3");
    EXPECT_EQ(files_under(company.drive()), before);
    compact("2024-05-06 10:20:30", "answer 1");
    const auto copied = files_under(copies / "ditta001-2024-05-06-102030");
    for (const auto& [name, bytes] : before) EXPECT_EQ(copied.at(name), bytes) << name;
    EXPECT_NE(files_under(company.drive() / "mirwin" / "mirwin"),
              files_under(copies / "ditta001-2024-05-06-102030" / "mirwin" / "mirwin"));
    EXPECT_FALSE(compact("2024-05-07 10:20:30", "get mirorc.srt")[4].contains("box"));
    EXPECT_TRUE(compact("2024-05-07 10:20:31", "answer 3")[4].contains("box"));
}

}  // namespace
}  // namespace vantora::test
