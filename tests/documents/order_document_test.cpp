#include "documents/order_document.h"

#include <gtest/gtest.h>

#include "documents/document_bench.h"
#include "documents/document_composer.h"

namespace vantora::test {
namespace {

using strings = std::vector<std::string>;

strings texts_of(const std::vector<ui::script::printed_text>& printed) {
    strings all;
    for (const auto& one : printed) all.push_back(one.text);
    return all;
}

TEST(order_document, EveryFieldHasItsSource) {
    document_bench order;
    for (std::size_t i = 1; i <= 20; ++i) {
        order.tables.testi_intestazione[i] = " ditta" + std::to_string(i) + "\t ";
    }
    for (std::size_t i = 0; i < 22; ++i) order.head.text2[i] = "T2\n_" + std::to_string(i);
    for (std::size_t i = 0; i < 6; ++i) order.head.text3[i] = "T3_" + std::to_string(i);
    order.head.text2[6] = " IT ";
    order.head.text2[7] = " 01234567890 ";
    order.head.pagamento = "Rimessa";
    order.customer.testo_documenti = "in coda";
    order.tables.iva.aliquota_iva[4] = "22";
    order.tables.iva.descrizione_iva[0] = "nessuna esenzione";
    order.tables.iva.descrizione_iva[2] = "Esente art. 10";
    order.vat.imponibile_iva[4] = 100;
    order.vat.imposta_iva[4] = 22;
    order.vat.esente_iva[2] = 8.5;
    order.body("100", "108");
    order.fill_lines(1);
    for (std::size_t n = 1; n <= 67; ++n) order.tables.tabella_layout[n].posizione = "010020";

    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 1U);
    strings expected;
    for (int i = 1; i <= 16; ++i) expected.push_back("ditta" + std::to_string(i) + "\t");
    for (const char* text : {"",
                             "T2_0",
                             "T2_1",
                             "T2_2",
                             "T2_3",
                             "T2_4",
                             "IT01234567890",
                             "T2_5",
                             "T2_8",
                             "T2_9",
                             "T2_10",
                             "T2_11",
                             "T2_12",
                             "T2_13",
                             "T2_14",
                             "T2_15",
                             "T3_0",
                             "T3_1",
                             "1",
                             "T3_3",
                             "T3_4",
                             "T3_5",
                             "Ordine cliente",
                             "T3_2",
                             "T2_17",
                             "T2_18",
                             "T2_19",
                             "Rimessa",
                             "in coda                             ",
                             "",
                             "100,00",
                             "22",
                             "22,00",
                             "",
                             "",
                             "",
                             "",
                             "",
                             "",
                             "8,50",
                             "Esente art. 10",
                             "",
                             "nessuna esenzione",
                             "",
                             "nessuna esenzione",
                             "100,00",
                             "22,00",
                             "130,50",
                             "ORDINE CLIENTE",
                             "T2_20",
                             "T2_21"}) {
        expected.emplace_back(text);
    }
    EXPECT_EQ(texts_of(order.texts(pages[0])), expected);
    const auto at_right = order.texts(pages[0])[46];
    EXPECT_LT(at_right.x, 10) << "an amount ends at its position";
}

TEST(order_document, AFourthRateIsInTheSumsAndAFourthExemptionTakesTheLastPlace) {
    document_bench order;
    for (const std::size_t code : {2, 4, 9, 12}) {
        order.vat.imponibile_iva[code] = static_cast<double>(code);
        order.vat.imposta_iva[code] = 1;
        order.vat.esente_iva[code] = static_cast<double>(10 * code);
        order.tables.iva.aliquota_iva[code] = "r" + std::to_string(code);
        order.tables.iva.descrizione_iva[code] = "e" + std::to_string(code);
    }
    order.body("100", "108");
    order.fill_lines(1);
    for (std::size_t n = 47; n <= 64; ++n) order.tables.tabella_layout[n].posizione = "010020";
    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(texts_of(order.texts(pages[0])),
              (strings{"2,00", "r2", "1,00", "4,00", "r4", "1,00", "9,00", "r9", "1,00", "20,00",
                       "e2", "40,00", "e4", "120,00", "e12", "27,00", "4,00", "301,00"}));
}

TEST(order_document, PagesFollowFromTheHeightOfTheBody) {
    const struct {
        const char* top;
        const char* bottom;
        int lines;
        int per_page;
        int pages;
    } cases[] = {
        {"100", "140", 10, 10, 1},   {"100", "140", 11, 10, 2}, {"140", "100", 11, 10, 2},
        {"100", "140", 0, 10, 0},    {"100", "103", 5, 1, 1},   {"100", "100", 5, 1, 1},
        {"100", "104", 5, 1, 5},     {"abc", "x", 3, 1, 1},     {"000", "999", 200, 249, 1},
        {"100", "140", 200, 10, 20},
    };
    for (const auto& one : cases) {
        document_bench order;
        order.body(one.top, one.bottom);
        order.fill_lines(one.lines);
        const auto pages = impagina({67, 68, 69, 70, 9}, order.tables, order.lines);
        EXPECT_EQ(pages.righe_pagina, one.per_page) << one.top << " to " << one.bottom;
        EXPECT_EQ(pages.pagine, one.pages) << one.lines << " lines";
    }
}

TEST(order_document, LinesShowTheirColumnsFromTheTopOfTheBody) {
    document_bench order;
    order.tables.iva.aliquota_iva[4] = "22";
    order.body("100", "112");
    for (std::size_t n = 70; n <= 78; ++n) order.tables.tabella_layout[n].posizione = "050";
    auto& full = order.lines[1];
    full.codice =
        "A\x01"
        "B";
    full.descrizione = "Vite";
    full.um = "PZ";
    full.quantita = 2.5;
    full.prezzo = 10;
    full.sc1 = 10;
    full.sc2 = 5;
    full.iva = 4;
    auto& bare = order.lines[2];
    bare.descrizione = "trasporto";
    bare.prezzo = 5.555;
    bare.sc2 = 5;
    bare.iva = 14;
    order.lines[3].descrizione = "solo sconto";
    order.lines[3].sc1 = -3;
    order.lines[3].iva = 4;

    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 1U);
    const auto printed = order.texts(pages[0]);
    const auto padded = [](std::string text, std::size_t width) {
        text.resize(width, ' ');
        return text;
    };
    EXPECT_EQ(texts_of(printed), (strings{padded("AB", 14),
                                          padded("Vite", 60),
                                          "2,50",
                                          "PZ",
                                          "10,00",
                                          "25,00",
                                          "21,37",
                                          " 10+5",
                                          "22",
                                          padded("", 15),
                                          padded("trasporto", 60),
                                          "",
                                          "  ",
                                          "5,56",
                                          "5,56",
                                          "5,28",
                                          "5",
                                          "",
                                          padded("", 15),
                                          padded("solo sconto", 60),
                                          "",
                                          "  ",
                                          "",
                                          "",
                                          "",
                                          "-3",
                                          ""}));
    EXPECT_EQ(order.lines[1].codice.trimmed(), "AB") << "printing cleans the line itself";
    EXPECT_EQ(printed[0].y, 100);
    EXPECT_EQ(printed[9].y, 104);
    EXPECT_EQ(printed[0].x, 50);
    const ui::font look{"Arial", 9, false, false};
    EXPECT_NEAR(printed[4].x, 50 - order.bench.paper.text_width("10,00", look), 1e-9);
}

TEST(order_document, OnlyAPlaceWithBothHalvesIsPrintedAndTheLookIsTheLayouts) {
    document_bench order;
    order.body("100", "108");
    order.fill_lines(1);
    auto& layout = order.tables.tabella_layout;
    layout[39] = {"012034", "12", "Verdana", "1", " 0", "255"};
    layout[65] = {"012000", "9", "Arial", "0", "0", "0"};
    layout[35] = {"000034", "9", "Arial", "0", "0", "0"};
    layout[40] = {"020030", "0", "", "0", "0", "-1"};
    order.head.text3[2] = "06/05/2024";
    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 1U);
    const auto printed = order.texts(pages[0]);
    ASSERT_EQ(texts_of(printed), (strings{"Ordine cliente", "06/05/2024"}));
    EXPECT_EQ(printed[0].x, 12);
    EXPECT_EQ(printed[0].y, 34);
    EXPECT_EQ(printed[0].font, (ui::font{"Verdana", 12, true, true}));
    EXPECT_EQ(printed[0].ink, 255U);
    EXPECT_EQ(printed[1].font, (ui::font{"Verdana", 12, false, false}))
        << "no size and no name leave what was before";
    EXPECT_EQ(printed[1].ink, 255U);
}

TEST(order_document, TheLastLineHasNoPlace) {
    document_bench order;
    order.body("100", "140");
    order.tables.tabella_layout[71].posizione = "050000";
    order.fill_lines(200);
    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 20U);
    EXPECT_EQ(order.texts(pages[18]).size(), 10U);
    const auto last = order.texts(pages[19]);
    ASSERT_EQ(last.size(), 9U);
    EXPECT_EQ(trimmed(last.back().text), "riga 199");
}

TEST(order_document, ThePrintFileDescribesEachItem) {
    document_bench order;
    order.body("100", "104");
    order.fill_lines(1);
    order.tables.tabella_layout[65] = {"100020", "12", "Arial", "1", "0", "0"};
    order.print();
    strings expected = {"#FILEFORMAT=KLP-RTO\r",
                        " 3 \r",
                        " 100 \r",
                        " 20 \r",
                        " 0 \r",
                        " 0 \r",
                        " 12 \r",
                        " 0 \r",
                        "ORDINE CLIENTE\r",
                        "Arial\r",
                        " 1 \r",
                        " 0 \r",
                        " 9 \r"};
    expected.insert(expected.end(), 10, "\r");
    EXPECT_EQ(order.print_file(), expected);
}

TEST(order_document, WithoutAnyDescriptionThereIsNoPageButADocument) {
    document_bench order;
    order.body("100", "140");
    order.lines[1].prezzo = 10;
    order.lines[2].descrizione = "\x02";
    order.bench.desk.queue_answer(ui::answer::yes);
    EXPECT_TRUE(
        stampa_ordine(order.app, {order.head, order.lines, order.vat, order.customer,
                                  order.currency, order.tables, order.background, order.figure}));
    EXPECT_TRUE(order.bench.paper.take_jobs().empty());
    EXPECT_EQ(order.print_file(), (strings{"#FILEFORMAT=KLP-RTO\r"}));
}

TEST(order_document, NoAnswerChangesNothing) {
    document_bench order;
    order.body("100", "140");
    order.fill_lines(3);
    order.bench.desk.queue_answer(ui::answer::no);
    EXPECT_FALSE(
        stampa_ordine(order.app, {order.head, order.lines, order.vat, order.customer,
                                  order.currency, order.tables, order.background, order.figure}));
    EXPECT_TRUE(order.print_file().empty());
}

TEST(order_document, APrintFileThatCantBeCreatedTakesNothingFromThePaper) {
    document_bench order;
    order.body("100", "104");
    order.fill_lines(1);
    order.tables.tabella_layout[65].posizione = "100020";
    std::filesystem::create_directory(order.folder.path() / "mirdoc.rto");
    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(order.texts(pages[0]).size(), 1U);
}

}  // namespace
}  // namespace vantora::test
