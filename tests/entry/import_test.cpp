#include <gtest/gtest.h>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using nlohmann::json;

class imports : public testing::Test {
 protected:
    imports() {
        company.customers({customer_named("ROSSI"), customer_named("BIANCHI")});
        company.articles({article("A1", "vite", 1), article("A2", "dado", 2)});
        company.table_file();
        block(company.files.prv, "P1", 1, 1, 0);
        block(company.files.prv, "P2", 2, 2, 0);
        block(company.files.prv, "P3", 3, 1, 2);
        block(company.files.orc, "O1", 1, 2, 0);
        company.counter(contatori::preventivi, 3);
        company.counter(contatori::ordini, 1);
    }
    /// A quote or order of one line, whose second row has a VAT code but no price.
    template <class Row>
    static void block(channel<Row>& file, const char* name, int number, int customer, int deleted) {
        std::vector<Row> rows(righe_blocco);
        for (Row& row : rows) {
            row.descrizione = row.testo1 = "";
            row.descrizione2 = "";
            row.um = "";
        }
        rows[0].numero = name;
        rows[0].data = "20240131";
        rows[0].cliente = static_cast<std::int16_t>(customer);
        rows[0].annullato = static_cast<std::int16_t>(deleted);
        rows[0].descrizione = std::string("riga di ") + name;
        rows[0].articolo = std::int16_t{2};
        rows[0].quantita = 3;
        rows[0].prezzo = 5;
        rows[0].iva = rows[1].iva = std::int16_t{4};
        file.write_block(block_record(number, 1), rows);
    }
    /// A session in a new order of ROSSI. Each command is followed by what its reply says: a
    /// screen, "waiting" behind it, or the text of the control asked for.
    void expect_session(const std::vector<std::pair<std::string, json>>& steps) {
        std::vector<std::string> commands = {"click mirorc.bottone(2)", "scroll mirorcx.HScroll1 2",
                                             "click mirorcx.bottone"};
        for (const auto& [command, reply] : steps) commands.push_back(command);
        const auto replies = run_script(company.drive(), commands);
        for (std::size_t i = 0; i < steps.size(); ++i) {
            const json& reply = replies.at(i + 3);
            json told = reply.at("screen").get<std::string>() +
                        (reply.contains("waiting") ? " waiting" : "");
            if (reply.contains("value")) told = reply["value"];
            if (told.contains("text")) told = told["text"];
            if (reply["ok"] == false) told = "refused";
            EXPECT_EQ(told, steps[i].second) << i << ": " << steps[i].first;
        }
    }

    small_company company;
};

TEST_F(imports, QuotesOfTheCustomerAreAddedAndAddedAgain) {
    const auto row = [](const char* number) {
        return "get mirorcs.ds(" + std::string(number) + ")";
    };
    expect_session({{"set mirorcs.ds(1) \"a mano\"", "mirorcs"},
                    {"click mirorcs.comando(6)", "mirorcb"},
                    {"rows mirorcb.elenco 0 2",
                     {{"Preventivo", "Data", "Descrizione", ""},
                      {"P1", "31/01/2024", "", "1"},
                      {"", "", "", ""}}},
                    {"cell mirorcb.elenco 27 0", "mirorcb"},  // a blank row is no choice
                    {"cell mirorcb.elenco 1 2", "mirorcs"},
                    {row("2"), "riga di P1"},
                    {"click mirorcs.comando(6)", "mirorcb"},
                    {"click mirorcb.bottone", "mirorcs"},
                    {row("3"), ""},  // nothing was chosen
                    {"click mirorcs.comando(6)", "mirorcb"},
                    {"cell mirorcb.elenco 1 0", "mirorcs"},
                    {"click mirorcs.comando(5)", "mirpref waiting"},
                    {"click mirpref.bottone", "mirorcs"},
                    {row("4"), "riga di P1"},  // the quote is still the chosen one
                    {"click mirorcs.comando(6)", "mirorcb"},
                    {"close mirorcb", "mirorcs"},
                    {row("5"), "riga di P1"}});  // and is so by any way back
}

TEST_F(imports, AnOrderOfAnyCustomerReplacesTheLinesOfOneThatStaysAlive) {
    expect_session({{"set mirorcs.ds(0) \"a\"", "mirorcs"},
                    {"click mirorcs.comando(5)", "mirpref waiting"},
                    {"rows mirpref.elenco 0 2",
                     {{"Ordine", "Data", "Descrizione ordine", "Cliente", ""},
                      {"O1", "31/01/2024", "", "BIANCHI", "1"},
                      {"", "", "", "", ""}}},
                    {"set mirorcs.ds(0) \"b\"", "refused"},  // the picker is the active screen
                    {"activate mirorcs", "mirorcs waiting"},
                    {"get mirorcs.ds(0)", ""},  // a fresh order starts over when it comes back
                    {"set mirorcs.ds(0) \"c\"", "mirorcs waiting"},
                    {"close mirpref", "mirorcs waiting"},  // chooses nothing
                    {"get mirorcs.ds(0)", "c"},
                    {"click mirorcs.comando(5)", "mirpref waiting"},
                    {"cell mirpref.elenco 1 0", "mirorcs"},  // one choice serves all waits
                    {"get mirpref.elenco", "refused"},       // the picker is gone, not hidden
                    {"get mirorcs.artic(0)", "A2"},
                    {"get mirorcs.quantita(0)", "3"},
                    {"get mirorcs.civ(0)", "04"},
                    {"get mirorcs.civ(1)", ""},  // a line without a price has no VAT code
                    {"click mirorcs.comando(5)", "mirpref waiting"},
                    {"click mirpref.bottone", "mirorcs"},
                    {"get mirorcs.artic(0)", ""},  // no choice leaves the order started over
                    {"click mirorcs.comando(5)", "mirpref waiting"},
                    {"activate mirorcs", "mirorcs waiting"},
                    {"click mirorcs.comando(0)", "mirorc"}});  // the wait ends with the order
}

}  // namespace
}  // namespace vantora::test
