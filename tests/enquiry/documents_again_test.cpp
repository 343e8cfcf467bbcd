#include <gtest/gtest.h>

#include <fstream>

#include "register/mirorc.h"
#include "scripted/order_company.h"
#include "scripted/scripted_run.h"
#include "scripted/station.h"

namespace vantora::test {
namespace {

using commands = std::vector<std::string>;

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
