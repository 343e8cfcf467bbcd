#include "entry/import_lines.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "scripted/scripted_run.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using nlohmann::json;

template <class Row>
void make_blank(Row& row) {
    row.descrizione = "";
    row.descrizione2 = "";
    row.um = "";
    row.testo1 = "";
}

class imports : public testing::Test {
 protected:
    imports() {
        company.customers({customer_named("ROSSI"), customer_named("BIANCHI")});
        company.articles({article("A1", "vite", 1), article("A2", "dado", 2)});
        company.table_file();
        quote(1, 1, 0);
        quote(2, 2, 0);
        quote(3, 1, 2);
        order(1, 2);
        company.counter(contatori::preventivi, 3);
        company.counter(contatori::ordini, 1);
    }
    void quote(int block, int customer, int deleted) {
        std::vector<rec_prv> rows(righe_blocco);
        rows[0].numero = "P" + std::to_string(block);
        rows[0].data = "20240131";
        rows[0].cliente = static_cast<std::int16_t>(customer);
        rows[0].annullato = static_cast<std::int16_t>(deleted);
        for (auto& row : rows) make_blank(row);
        rows[0].descrizione = "riga di P" + std::to_string(block);
        company.files.prv.write_block(block_record(block, 1), rows);
    }
    void order(int block, int customer) {
        std::vector<rec_orc> rows(righe_blocco);
        rows[0].numero = "O" + std::to_string(block);
        rows[0].data = "20240201";
        rows[0].cliente = static_cast<std::int16_t>(customer);
        for (auto& row : rows) make_blank(row);
        rows[0].articolo = std::int16_t{2};
        rows[0].quantita = 3;
        rows[0].prezzo = 5;
        rows[0].evaso = 2;
        rows[0].iva = std::int16_t{4};
        rows[1].iva = std::int16_t{4};
        company.files.orc.write_block(block_record(block, 1), rows);
    }
    /// A session in a new order of ROSSI.
    std::vector<json> enter(std::vector<std::string> commands) {
        commands.insert(commands.begin(), {"click mirorc.bottone(2)", "scroll mirorcx.HScroll1 2",
                                           "click mirorcx.bottone"});
        auto replies = run_script(company.drive(), commands);
        replies.erase(replies.begin(), replies.begin() + 3);
        return replies;
    }

    small_company company;
};  // namespace

TEST_F(imports, QuotesOfTheCustomerAreAddedAndAddedAgain) {
    const auto replies = enter(
        {"set mirorcs.ds(1) \"a mano\"", "click mirorcs.comando(6)", "rows mirorcb.elenco 0 2",
         "get mirorcb.elenco", "cell mirorcb.elenco 2 0", "cell mirorcb.elenco 1 2",
         "get mirorcs.ds(2)", "click mirorcs.comando(6)", "click mirorcb.bottone",
         "get mirorcs.ds(3)", "click mirorcs.comando(6)", "cell mirorcb.elenco 1 0",
         "click mirorcs.comando(5)", "click mirpref.bottone", "get mirorcs.ds(4)",
         "click mirorcs.comando(6)", "close mirorcb", "get mirorcs.ds(5)"});
    EXPECT_EQ(replies[2]["value"], (json{{"Preventivo", "Data", "Descrizione", ""},
                                         {"P1", "31/01/2024", "", "1"},
                                         {"", "", "", ""}}));
    EXPECT_EQ(replies[3]["value"]["rows"], 28);
    EXPECT_EQ(replies[4]["screen"], "mirorcb") << "a blank row is no choice";
    EXPECT_EQ(replies[5]["screen"], "mirorcs");
    EXPECT_EQ(replies[5]["focus"], "artic(0)");
    EXPECT_EQ(replies[6]["value"]["text"], "riga di P1");
    EXPECT_EQ(replies[9]["value"]["text"], "") << "nothing was chosen";
    EXPECT_EQ(replies[14]["value"]["text"], "riga di P1") << "the quote is still the chosen one";
    EXPECT_EQ(replies[17]["value"]["text"], "riga di P1") << "and is so by any way back";
}

TEST_F(imports, AnOrderOfAnyCustomerReplacesTheLines) {
    const auto replies =
        enter({"set mirorcs.ds(0) \"a mano\"", "click mirorcs.comando(5)",
               "rows mirpref.elenco 0 2", "cell mirpref.elenco 1 0", "get mirorcs.artic(0)",
               "get mirorcs.quantita(0)", "get mirorcs.civ(0)", "get mirorcs.civ(1)", "screens"});
    EXPECT_EQ(replies[1]["waiting"], true);
    EXPECT_EQ(replies[1]["screen"], "mirpref");
    EXPECT_EQ(replies[2]["value"], (json{{"Ordine", "Data", "Descrizione ordine", "Cliente", ""},
                                         {"O1", "01/02/2024", "", "BIANCHI", "1"},
                                         {"", "", "", "", ""}}));
    EXPECT_EQ(replies[3]["screen"], "mirorcs");
    EXPECT_FALSE(replies[3].contains("waiting"));
    EXPECT_EQ(replies[4]["value"]["text"], "A2");
    EXPECT_EQ(replies[5]["value"]["text"], "3");
    EXPECT_EQ(replies[6]["value"]["text"], "04");
    EXPECT_EQ(replies[7]["value"]["text"], "") << "a line without a price has no VAT code";
    for (const json& one : replies[8]["value"]) EXPECT_NE(one["name"], "mirpref");
}

TEST_F(imports, TheOrderStaysAliveBehindItsPicker) {
    const auto replies = enter({"set mirorcs.ds(0) \"a\"",
                                "click mirorcs.comando(5)",
                                "set mirorcs.ds(0) \"b\"",
                                "activate mirorcs",
                                "get mirorcs.ds(0)",
                                "set mirorcs.ds(0) \"c\"",
                                "close mirpref",
                                "get mirorcs.ds(0)",
                                "click mirorcs.comando(5)",
                                "close mirpref",
                                "click mirorcs.comando(5)",
                                "cell mirpref.elenco 1 0",
                                "get mirorcs.artic(0)",
                                "click mirorcs.comando(5)",
                                "click mirpref.bottone",
                                "get mirorcs.artic(0)",
                                "click mirorcs.comando(5)",
                                "activate mirorcs",
                                "click mirorcs.comando(0)",
                                "activate mirorc"});
    EXPECT_EQ(replies[2]["ok"], false) << "the picker is the active screen";
    EXPECT_EQ(replies[4]["value"]["text"], "") << "a fresh order starts over when it comes back";
    EXPECT_EQ(replies[6]["waiting"], true) << "closing the picker chooses nothing";
    EXPECT_EQ(replies[7]["value"]["text"], "c");
    EXPECT_FALSE(replies[11].contains("waiting")) << "one choice serves all waits";
    EXPECT_EQ(replies[12]["value"]["text"], "A2");
    EXPECT_EQ(replies[15]["value"]["text"], "") << "no choice leaves the order started over";
    EXPECT_EQ(replies[18]["screen"], "mirorc");
    EXPECT_FALSE(replies[18].contains("waiting")) << "the wait ends with the order";
    EXPECT_EQ(replies[19]["ok"], true);
}

/// Step by step, one read for every row.
template <class Row>
void import_plainly(std::vector<riga_ordine>& lines, std::size_t from, const channel<Row>& rows,
                    const channel<rec_art>& articles, int block) {
    for (int k = 1; k <= righe_blocco && from <= 200; ++k, ++from) {
        Row row;
        rec_art article;
        rows.read(block_record(block, k), row);
        riga_ordine& line = lines[from];
        line.articolo = std::max<std::int16_t>(row.articolo, 0);
        line.codice = "";
        if (row.articolo >= 1 && articles.read(row.articolo, article)) {
            line.codice = article.codice.full();
        }
        line.descrizione =
            std::string(row.descrizione.full()) + std::string(row.descrizione2.full());
        line.um = row.um.full();
        line.quantita = row.quantita;
        line.prezzo = row.prezzo;
        line.sc1 = row.sc1;
        line.sc2 = row.sc2;
        line.iva = row.prezzo == 0 ? std::int16_t{0} : std::int16_t{row.iva};
    }
}

template <class Row>
Row random_row(std::mt19937& random) {
    Row row;
    row.articolo = static_cast<std::int16_t>(static_cast<int>(random() % 5) - 1);
    row.descrizione = random() % 3 ? "" : "testo " + std::to_string(random() % 100);
    row.descrizione2 = random() % 3 ? "" : "coda";
    row.um = random() % 2 ? "PZ" : "KG";
    row.quantita = static_cast<int>(random() % 20) - 4;
    row.prezzo = static_cast<int>(random() % 3);
    row.sc1 = static_cast<std::int16_t>(random() % 90);
    row.sc2 = static_cast<std::int16_t>(random() % 90);
    row.iva = static_cast<std::int16_t>(random() % 24);
    return row;
}

TEST_F(imports, SessionsOfImportsComeOutAsStepByStep) {
    std::mt19937 random(11);
    for (int session = 0; session < 30; ++session) {
        for (int block = 1; block <= 2; ++block) {
            std::vector<rec_prv> quote(righe_blocco, rec_prv{});
            std::vector<rec_orc> order(righe_blocco, rec_orc{});
            for (auto& row : quote) make_blank(row);
            const std::size_t used = random() % 200;
            for (std::size_t i = 0; i < used; ++i) quote[i] = random_row<rec_prv>(random);
            for (auto& row : order) row = random_row<rec_orc>(random);
            company.files.prv.write_block(block_record(block, 1), quote);
            company.files.orc.write_block(block_record(block, 1), order);
        }
        righe_ordine lines;
        std::vector<riga_ordine> plain(201);
        for (int step = 0; step < 4; ++step) {
            const int block = static_cast<int>(random() % 3) + 1;
            if (random() % 4 == 0) {
                sostituisci_con_ordine(lines, company.files, block);
                import_plainly(plain, 1, company.files.orc, company.files.art, block);
            } else {
                std::size_t last = 200;
                while (last > 0 && plain[last].descrizione.trimmed().empty() &&
                       plain[last].codice.trimmed().empty() && plain[last].prezzo == 0) {
                    --last;
                }
                aggiungi_preventivo(lines, company.files, block);
                import_plainly(plain, last + 1, company.files.prv, company.files.art, block);
            }
            for (int n = 1; n <= 200; ++n) {
                const riga_ordine& line = lines[n];
                const riga_ordine& expected = plain[static_cast<std::size_t>(n)];
                ASSERT_TRUE(line.articolo == expected.articolo &&
                            line.codice.full() == expected.codice.full() &&
                            line.descrizione.full() == expected.descrizione.full() &&
                            line.um.full() == expected.um.full() &&
                            line.quantita == expected.quantita && line.prezzo == expected.prezzo &&
                            line.sc1 == expected.sc1 && line.sc2 == expected.sc2 &&
                            line.iva == expected.iva)
                    << session << " " << step << " line " << n;
            }
        }
    }
}

}  // namespace
}  // namespace vantora::test
