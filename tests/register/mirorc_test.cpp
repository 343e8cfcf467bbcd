#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

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
    /// An archive of so many plain orders.
    void fill(int orders) {
        for (int i = 1; i <= orders; ++i) put(i, order(i, std::to_string(i), 1, "20240101"));
        company.counter(contatori::ordini, orders, orders);
    }
    rec_gnr parameters() {
        rec_gnr record{};
        std::ifstream in(company.file("gnr"), std::ios::binary);
        in.read(reinterpret_cast<char*>(&record), sizeof record);
        return record;
    }
    void set_parameters(const rec_gnr& record) {
        std::ofstream out(company.file("gnr"), std::ios::binary);
        out.write(reinterpret_cast<const char*>(&record), sizeof record);
    }
    void set_view(int stored) {
        auto record = parameters();
        record.vista_registro = static_cast<std::int16_t>(stored);
        set_parameters(record);
    }
    json run(const std::vector<std::string>& commands) {
        return run_script(company.drive(), commands);
    }
    json rows(const std::vector<std::string>& commands, const std::string& range) {
        auto all = commands;
        all.push_back("rows mirorc.elenco " + range);
        return value_after(company.drive(), all);
    }
    json grid(const std::vector<std::string>& commands) {
        auto all = commands;
        all.emplace_back("get mirorc.elenco");
        return value_after(company.drive(), all);
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

TEST_F(mirorc, ViewsLimitTheListToTheLatestOrders) {
    struct {
        int orders;
        const char* option;
        const char* first;
    } cases[] = {{1000, "selvis(1)", "1"},
                 {1001, "selvis(1)", "2"},
                 {1001, "selvis(2)", "1"},
                 {5001, "selvis(2)", "2"}};
    for (const auto& one : cases) {
        company.counter(contatori::ordini, one.orders);
        const json first = rows({"click mirorc." + std::string(one.option)}, "1");
        EXPECT_EQ(first[0][0], one.first) << one.orders << one.option;
        set_view(0);
    }
}

TEST_F(mirorc, ShowsAPageOfRowsAtLeastAndTheLatestOnlyWhenTheyDontFit) {
    struct {
        int orders, rows, top;
    } cases[] = {{0, 26, 1}, {22, 26, 1}, {23, 26, 4}, {25, 26, 4}, {26, 27, 5}, {60, 61, 39}};
    for (const auto& one : cases) {
        fill(one.orders);
        set_view(10);
        const json shown = grid({});
        EXPECT_EQ(shown["rows"], one.rows) << one.orders;
        EXPECT_EQ(shown["toprow"], one.top) << one.orders;
    }
}

TEST_F(mirorc, RestoresTheViewAndSavesItAtTheMomentOfChange) {
    rec_gnr record = parameters();
    record.riservato_bd = "di altri programmi";
    const auto shown = [&] {
        const json controls = value_after(company.drive(), {"controls mirorc"});
        int view = controls["visua(1)"]["on"] == true ? 10 : 0;
        for (const int i : {1, 2}) {
            if (controls["selvis(" + std::to_string(i) + ")"]["on"] == true) view += i;
        }
        return view;
    };
    for (const int stored : {0, 1, 2, 10, 11, 12}) {
        record.vista_registro = static_cast<std::int16_t>(stored);
        set_parameters(record);
        EXPECT_EQ(shown(), stored);
        EXPECT_EQ(parameters().vista_registro, stored) << "restoring saves nothing";

        set_view(99);
        run({"click mirorc.selvis(1)", "click mirorc.visua(" + std::to_string(stored / 10) + ")",
             "click mirorc.selvis(" + std::to_string(stored % 10) + ")"});
        const rec_gnr saved = parameters();
        EXPECT_EQ(std::memcmp(&saved, &record, sizeof saved), 0) << stored << ", nothing else";
    }
    for (const int strange : {3, 9, 13, 20, -1}) {
        set_view(strange);
        EXPECT_EQ(shown(), 0) << strange;
    }
}

TEST_F(mirorc, StripesItsRowsByParity) {
    const json striped = value_after(company.drive(), {"colors mirorc.elenco"});
    EXPECT_EQ(striped[1], 16777215);
    EXPECT_EQ(striped[2], 16579315);
    EXPECT_EQ(striped[25], 16777215);

    rec_gnr record = parameters();
    record.colore_riga_pari = std::nan("");
    record.colore_riga_dispari = -4e300;
    set_parameters(record);
    EXPECT_EQ(value_after(company.drive(), {"colors mirorc.elenco 2"})[0], 16777215);
    record.colore_riga_pari = 254.6;
    set_parameters(record);
    EXPECT_EQ(value_after(company.drive(), {"colors mirorc.elenco 2"})[0], 255);
    record.righe_alternate = "0";
    set_parameters(record);
    EXPECT_EQ(value_after(company.drive(), {"colors mirorc.elenco 2"})[0], 16777215);
}

TEST_F(mirorc, SortsByEachColumnAndKeepsBlankRowsAtTheBottom) {
    company.customers({customer_named("Zeta"), customer_named("alfa")});
    put(1, order(1, "10", 1, "20240105"));
    put(2, order(2, "9", 2, "20231224"));
    put(3, order(3, "A", 1, "20240101"));
    company.counter(contatori::ordini, 3);
    const auto column = [&](const std::string& button) {
        const json sorted = rows({"click mirorc." + button}, "1 4");
        std::string order;
        for (const json& row : sorted) order += row[0].get<std::string>() + " ";
        return order;
    };
    EXPECT_EQ(column("srx(0)"), "1 2 3  ");
    EXPECT_EQ(column("srx(1)"), "2 1 3  ");
    EXPECT_EQ(column("srx(2)"), "2 3 1  ");
    EXPECT_EQ(column("srx(3)"), "2 1 3  ");
    EXPECT_EQ(column("srx(5)"), "1 2 3  ");
    const json replies =
        run({"click mirorc.srx(2)", "get mirorc.elenco", "colors mirorc.elenco 1 2"});
    EXPECT_EQ(replies[0]["focus"], "elenco");
    EXPECT_EQ(replies[1]["value"]["rows"], 26);
    EXPECT_EQ(replies[2]["value"], (json{16777215, 16579315}));
}

TEST_F(mirorc, OpensOnlyLivingOrders) {
    fill(2);
    auto deleted = order(2, "2", 1, "20240101");
    deleted.annullato = 1;
    put(2, deleted);
    const json replies = run({"cell mirorc.elenco 2 4", "answer ok", "cell mirorc.elenco 9 0",
                              "cell mirorc.elenco 0 3", "cell mirorc.elenco 1 2"});
    EXPECT_EQ(replies[0]["box"], (json{{"text", "Ordine annullato"},
                                       {"title", "Attenzione"},
                                       {"icon", "stop"},
                                       {"buttons", "ok"}}));
    for (int i = 1; i < 4; ++i) {
        EXPECT_FALSE(replies[static_cast<std::size_t>(i)].contains("box")) << i;
    }
}

TEST_F(mirorc, CommandsThatNeedCustomersSayWhenThereAreNone) {
    for (const char* command : {"click mirorc.bottone(2)", "click mirorc.bottone(8)"}) {
        const json replies = run({command, "answer ok"});
        EXPECT_EQ(replies[0]["box"]["text"], "Nessun cliente memorizzato");
        EXPECT_EQ(replies[0]["box"]["icon"], "stop");
        EXPECT_EQ(replies[1]["screen"], "mirorc");
    }
}

TEST_F(mirorc, CompactionAsksTwiceAndCanBeCancelled) {
    fill(2);
    auto deleted = order(1, "1", 1, "20240101");
    deleted.annullato = 1;
    put(1, deleted);
    json replies = run({"click mirorc.srtt(0)", "answer yes", "answer no", "rows mirorc.elenco 1"});
    EXPECT_EQ(replies[0]["box"], (json{{"text", "Eliminare anche gli ordini evasi?"},
                                       {"title", "Compattazione archivio"},
                                       {"icon", "question"},
                                       {"buttons", "yesno"}}));
    EXPECT_EQ(replies[1]["box"]["text"], "Confermi?");
    EXPECT_EQ(replies[3]["value"][0][3], "Ordine eliminato");

    replies = run({"answer no", "answer yes", "click mirorc.srtt(1)", "rows mirorc.elenco 1 2",
                   "get mirorc.srt", "get mirorc.bottone(4)"});
    EXPECT_EQ(replies[2]["boxes"].size(), 2U);
    EXPECT_EQ(replies[3]["value"][0][1], "2");
    EXPECT_EQ(replies[3]["value"][1][0], "");
    EXPECT_EQ(replies[4]["value"]["visible"], false);
    EXPECT_EQ(replies[5]["value"]["visible"], true);
}

TEST_F(mirorc, DamagedCountersAndFilesAreListedAsTheyAre) {
    company.counter(contatori::ordini, -7);
    EXPECT_EQ(grid({})["rows"], 26);
    company.counter(contatori::ordini, 30);
    EXPECT_EQ(rows({}, "30")[0][0], "30") << "rows past the end of the file are empty orders";
    company.counter(contatori::ordini, 32767);
    EXPECT_EQ(grid({})["rows"], 31999);
    std::filesystem::remove(company.file("orc"));
    std::filesystem::create_directory(company.file("orc"));
    EXPECT_EQ(grid({})["rows"], 31999) << "a closed channel";
}

TEST_F(mirorc, ClosingTheWindowEndsTheProgram) {
    for (const char* command : {"close mirorc", "click mirorc.bottone(0)"}) {
        const json replies = run({command, "get mirorc.elenco", "quit"});
        EXPECT_EQ(replies[0]["ended"], "exit");
        EXPECT_EQ(replies[1]["ok"], false);
    }
}

}  // namespace
}  // namespace vantora::test
