#include <gtest/gtest.h>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using nlohmann::json;
using strings = std::vector<std::string>;

/// A company with one article, one customer and an order document that shows its number.
struct saving : small_company {
    saving() {
        rec_cli customer = customer_named("Rossi");
        customer.invio_email = "1";
        customers({customer});
        articles({article("VITE", "Vite M8", 2)});
        table_file();
        strings layout(600);
        const auto row = [&](std::size_t number, const char* position) {
            const char* columns[] = {position, "9", "Arial", "0", "0", "0"};
            std::copy(std::begin(columns), std::end(columns),
                      layout.begin() + static_cast<std::ptrdiff_t>(6 * (number - 1)));
        };
        row(33, "010010");
        row(68, "100000");
        row(69, "120000");
        row(71, "050000");
        text("lyo", layout);
        counter(contatori::ordini, 0, 41);
    }

    /// Takes an order of two pieces; `then` follows the click on the saving command.
    std::vector<json> order(const strings& then) {
        strings commands = {"click mirorc.bottone(2)",    "set mirorcx.Text3(3) \"cantiere\"",
                            "pick mirorcx.Combo1(0) 1",   "pick mirorcx.Combo1(2) 2",
                            "click mirorcx.bottone",      "type mirorcs.artic(0) \"vite\"",
                            "key mirorcs.artic(0) Enter", "type mirorcs.quantita(0) \"2\"",
                            "click mirorcs.impegno",      "click mirorcs.prezz(1)",
                            "click mirorcs.comando(1)"};
        commands.insert(commands.end(), then.begin(), then.end());
        return run_script(drive(), commands);
    }
};

/// The texts of the boxes that the replies show open, in turn.
strings questions(const std::vector<json>& replies) {
    strings all;
    for (const auto& reply : replies) {
        if (reply.contains("box")) {
            all.push_back(reply["box"]["title"].get<std::string>() + ": " +
                          reply["box"]["text"].get<std::string>());
        }
    }
    return all;
}

TEST(mirorcs_save, PrintsAsManyCopiesAsWantedAndOffersThePdf) {
    saving company;
    const auto replies = company.order({"answer yes", "answer yes", "answer yes", "answer yes",
                                        "answer no", "answer yes", "prints", "launched"});
    EXPECT_EQ(questions(replies),
              (strings{"Ordine cliente: Stampare l'ordine?", "Stampa ordine: Iniziare la stampa?",
                       "Stampa ordine: Stampa altra copia?", "Stampa ordine: Iniziare la stampa?",
                       "Stampa ordine: Stampa altra copia?",
                       "Attenzione: Generare il file PDF ed eventualmente inviarlo tramite posta "
                       "elettronica?"}));
    const json& jobs = replies[replies.size() - 2]["value"];
    ASSERT_EQ(jobs.size(), 2U);
    ASSERT_EQ(jobs[0]["pages"].size(), 1U);
    EXPECT_EQ(jobs[0]["pages"][0][0]["text"], "42");
    EXPECT_EQ(replies.back()["value"],
              json({"\\mirwin\\mirwin\\mirxpdf \\mirwin\\mirwin\\miraz0.001\\vantora.lxo,"
                    "c:\\mirdoc.rto,C:\\orc42.pdf,***"}))
        << "without PDF settings no mail is offered";
    EXPECT_EQ(replies.back()["screen"], "mirorc");
}

TEST(mirorcs_save, TheHeadComesFromTheCustomersScreenAndTheRegisterShowsTheOrder) {
    saving company;
    const auto replies = company.order({"answer no", "rows mirorc.elenco 1 2", "screens"});
    const json& rows = replies[replies.size() - 2]["value"];
    EXPECT_EQ(rows[0], json({"1", "42", "06/05/2024", "Rossi", "cantiere", "06/05/2024", "", "",
                             "20240506"}));
    EXPECT_EQ(rows[1][0], "");
    EXPECT_EQ(replies.back()["value"].size(), 1U) << "both screens of the order are gone";

    rec_orc row;
    company.files.orc.read(1, row);
    EXPECT_EQ(row.articolo, 1);
    EXPECT_EQ(row.quantita, 2);
    EXPECT_EQ(row.impegno.full(), "1");
    EXPECT_NEAR(row.data_reg, 45418.43090, 0.00001);
    company.files.orc.read(2, row);
    EXPECT_EQ(row.testo3.trimmed(), "amm indirizzo");
    company.files.orc.read(3, row);
    EXPECT_EQ(row.testo2.trimmed(), "amm citta");
    EXPECT_EQ(row.testo3.trimmed(), "1211") << "port, transport, payment, price";
    company.files.orc.read(4, row);
    EXPECT_EQ(row.testo3.trimmed(), "corriere 3");
}

TEST(mirorcs_save, AProgramThatCantBeStartedIsTold) {
    saving company;
    const auto replies = company.order(
        {"launch fail", "answer yes", "answer yes", "answer no", "answer yes", "answer ok"});
    EXPECT_EQ(questions(replies).back(),
              "Attenzione: Non è possibile eseguire il programma invio del documento a mezzo "
              "internet.");
    EXPECT_EQ(replies.back()["screen"], "mirorc");
}

}  // namespace
}  // namespace vantora::test
