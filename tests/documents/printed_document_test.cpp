#include "documents/printed_document.h"

#include <gtest/gtest.h>

#include "documents/document_bench.h"
#include "documents/document_composer.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

using strings = std::vector<std::string>;

strings texts_of(const std::vector<ui::script::printed_text>& printed) {
    strings all;
    for (const auto& one : printed) all.emplace_back(trimmed(one.text));
    return all;
}

/// Head, customer and company with a text of its own in every place.
void fill_head(document_bench& order) {
    for (std::size_t i = 1; i <= 20; ++i) {
        order.tables.testi_intestazione[i] = " ditta" + std::to_string(i) + "\t";
    }
    for (std::size_t i = 0; i < 22; ++i) order.head.text2[i] = "T2\n_" + std::to_string(i);
    for (std::size_t i = 0; i < 6; ++i) order.head.text3[i] = "T3_" + std::to_string(i);
    order.head.text2[6] = " IT ";
    order.head.text2[7] = " 01234567890 ";
    order.head.combo1 = {"porto", "pagamento", "trasporto"};
    order.head.combo2 = "aspetto";
    order.customer.testo_documenti = "in coda";
    order.tables.iva.aliquota_iva[4] = "22";
    order.tables.iva.descrizione_iva[0] = "nessuna";
    order.tables.iva.descrizione_iva[2] = "Esente";
    order.vat.imponibile_iva[4] = 100;
    order.vat.imposta_iva[4] = 22;
    order.vat.esente_iva[2] = 8.5;
}

/// The texts of fields 17 on, with blanks between; "-" for none.
std::string fields_of(document_bench& order, tipo_documento kind) {
    order.fill_lines(1);
    for (std::size_t n = 1; n < forma_di(kind).campi.size(); ++n) {
        order.tables.tabella_layout[n].posizione = "010020";
    }
    const auto texts = texts_of(document_bench::texts(order.print(kind).at(0)));
    for (std::size_t n = 1; n <= 16; ++n) {
        EXPECT_EQ(texts.at(n - 1), "ditta" + std::to_string(n) + "\t");
    }
    std::string all;
    for (std::size_t i = 16; i < texts.size(); ++i) {
        all += (all.empty() ? "" : " ") + (texts[i].empty() ? "-" : texts[i]);
    }
    return all;
}

TEST(printed_document, EveryFieldHasItsSource) {
    const std::string common =
        "- T2_0 T2_1 T2_2 T2_3 T2_4 IT01234567890 T2_5 T2_8 T2_9 T2_10 T2_11 T2_12 T2_13 T2_14 "
        "T2_15 T3_0 T3_1 1 ";
    document_bench order;
    fill_head(order);
    EXPECT_EQ(fields_of(order, tipo_documento::ordine),
              common +
                  "T3_3 T3_4 T3_5 Ordine cliente T3_2 T2_17 T2_18 T2_19 pagamento in coda - "
                  "100,00 22 22,00 - - - - - - 8,50 Esente - nessuna - nessuna 100,00 22,00 "
                  "130,50 ORDINE CLIENTE T2_20 T2_21");
    document_bench goods;
    fill_head(goods);
    EXPECT_EQ(fields_of(goods, tipo_documento::documento_trasporto),
              common +
                  "pagamento T3_2 T3_3 aspetto porto trasporto - T2_17 T2_18 T2_19 T3_4 T3_5 "
                  "DOCUMENTO DI TRASPORTO T2_20 T2_21");
}

TEST(printed_document, AFourthRateIsInTheSumsAndAFourthExemptionTakesTheLastPlace) {
    document_bench order;
    for (const std::size_t code : {2, 4, 9, 12}) {
        order.vat.imponibile_iva[code] = static_cast<double>(code);
        order.vat.imposta_iva[code] = 1;
        order.vat.esente_iva[code] = static_cast<double>(10 * code);
        order.tables.iva.aliquota_iva[code] = "r" + std::to_string(code);
        order.tables.iva.descrizione_iva[code] = "e" + std::to_string(code);
    }
    order.fill_lines(1);
    for (std::size_t n = 47; n <= 64; ++n) order.tables.tabella_layout[n].posizione = "010020";
    EXPECT_EQ(texts_of(order.texts(order.print().at(0))),
              (strings{"2,00", "r2", "1,00", "4,00", "r4", "1,00", "9,00", "r9", "1,00", "20,00",
                       "e2", "40,00", "e4", "120,00", "e12", "27,00", "4,00", "301,00"}));
}

TEST(printed_document, PagesFollowFromTheHeightOfTheBody) {
    const struct {
        const char* top;
        const char* bottom;
        int lines;
        int per_page;
        int pages;
    } cases[] = {
        {"100", "140", 10, 10, 1}, {"140", "100", 11, 10, 2}, {"100", "140", 0, 10, 0},
        {"100", "103", 5, 1, 1},   {"100", "104", 5, 1, 5},   {"abc", "x", 3, 1, 1},
    };
    for (const auto kind : {tipo_documento::ordine, tipo_documento::documento_trasporto}) {
        for (const auto& one : cases) {
            document_bench order;
            order.body(one.top, one.bottom, kind);
            order.fill_lines(one.lines);
            const auto pages = impagina(forma_di(kind), order.tables, order.lines);
            EXPECT_EQ(pages.righe_pagina, one.per_page) << one.top << " to " << one.bottom;
            EXPECT_EQ(pages.pagine, one.pages) << one.lines << " lines";
        }
    }
}

TEST(printed_document, LinesShowTheirColumnsFromTheTopOfTheBody) {
    document_bench order;
    order.tables.iva.aliquota_iva[4] = "22";
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
    const struct {
        tipo_documento kind;
        strings printed;
    } cases[] = {
        {tipo_documento::ordine,
         {"AB", "Vite",        "2,50", "PZ", "10,00", "25,00", "21,37", "10+5", "22",
          "",   "trasporto",   "",     "",   "5,56",  "5,56",  "5,28",  "5",    "",
          "",   "solo sconto", "",     "",   "",      "",      "",      "-3",   ""}},
        {tipo_documento::documento_trasporto,
         {"AB", "Vite", "2,50", "PZ", "10,00", "10+5", "", "trasporto", "", "", "5,56", "5", "",
          "solo sconto", "", "", "", "-3"}},
    };
    for (const auto& one : cases) {
        const forma_documento& shape = forma_di(one.kind);
        for (auto& row : order.tables.tabella_layout) row.posizione = "000000";
        order.body("100", "112", one.kind);
        const auto first = static_cast<std::size_t>(shape.prima_colonna);
        const std::size_t columns = shape.colonne.size();
        for (std::size_t n = 0; n < columns; ++n) {
            order.tables.tabella_layout[first + n].posizione = "050";
        }
        const auto printed = order.texts(order.print(one.kind).at(0));
        EXPECT_EQ(texts_of(printed), one.printed);
        EXPECT_EQ(printed[columns - (one.kind == tipo_documento::ordine ? 2 : 1)].text, " 10+5");
        EXPECT_EQ(order.lines[1].codice.trimmed(), "AB") << "printing cleans the line itself";
        EXPECT_EQ(printed[0].x, 50);
        EXPECT_EQ(printed[0].y, 100);
        EXPECT_EQ(printed[columns].y, 104);
        const ui::font look{"Arial", 9, false, false};
        EXPECT_NEAR(printed[4].x, 50 - order.bench.paper.text_width("10,00", look), 1e-9);
    }
}

TEST(printed_document, OnlyAPlaceWithBothHalvesIsPrintedAndTheLookIsTheLayouts) {
    document_bench order;
    order.fill_lines(1);
    auto& layout = order.tables.tabella_layout;
    layout[39] = {"012034", "12", "Verdana", "1", " 0", "255"};
    layout[65] = {"012000", "9", "Arial", "0", "0", "0"};
    layout[35] = {"000034", "9", "Arial", "0", "0", "0"};
    layout[40] = {"020030", "0", "", "0", "0", "-1"};
    order.head.text3[2] = "06/05/2024";
    const auto printed = order.texts(order.print().at(0));
    ASSERT_EQ(texts_of(printed), (strings{"Ordine cliente", "06/05/2024"}));
    EXPECT_EQ(std::tie(printed[0].x, printed[0].y), std::make_tuple(12.0, 34.0));
    EXPECT_EQ(printed[0].font, (ui::font{"Verdana", 12, true, true}));
    EXPECT_EQ(printed[0].ink, 255U);
    EXPECT_EQ(printed[1].font, (ui::font{"Verdana", 12, false, false}))
        << "no size and no name leave what was before";
    EXPECT_EQ(printed[1].ink, 255U);
}

TEST(printed_document, TheLastLineHasNoPlace) {
    document_bench order;
    order.body("100", "140");
    order.tables.tabella_layout[71].posizione = "050000";
    order.fill_lines(200);
    const auto pages = order.print();
    ASSERT_EQ(pages.size(), 20U);
    EXPECT_EQ(order.texts(pages[18]).size(), 10U);
    EXPECT_EQ(texts_of(order.texts(pages[19])).back(), "riga 199");
}

TEST(printed_document, ThePrintFileDescribesEachItem) {
    document_bench order;
    order.fill_lines(1);
    order.tables.tabella_layout[65] = {"100020", "12", "Arial", "1", "0", "0"};
    order.print();
    EXPECT_EQ(order.print_file(),
              "#FILEFORMAT=KLP-RTO\r\n 3 \r\n 100 \r\n 20 \r\n 0 \r\n 0 \r\n 12 \r\n 0 \r\n"
              "ORDINE CLIENTE\r\nArial\r\n 1 \r\n 0 \r\n 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n"
              "\r\n");
    order.lines[1].descrizione = "\x02";
    EXPECT_TRUE(order.print().empty());
    EXPECT_EQ(order.outcome, esito_stampa::completa) << "without a description: no page";
    EXPECT_EQ(order.print_file(), "#FILEFORMAT=KLP-RTO\r\n");
}

TEST(printed_document, CopiesAreAskedForUnderTheNameOfTheDocumentAndEndInAPdf) {
    const struct {
        tipo_documento kind;
        std::string answers;  ///< to: begin, another copy, ..., PDF
        strings titles;
        std::string pdf;
    } cases[] = {
        {tipo_documento::ordine, "ynn", {"Stampa ordine", "Stampa ordine", "Attenzione"}, ""},
        {tipo_documento::documento_trasporto,
         "yynny",
         {"Stampa documento di trasporto", "Stampa documento di trasporto",
          "Stampa documento di trasporto", "Stampa documento di trasporto", "Attenzione"},
         "\\mirwin\\mirwin\\mirxpdf \\mirwin\\mirwin\\miraz0.000\\vantora.lxb,c:\\mirdoc.rto,"
         "\\bll7.pdf,a@b.it"},
    };
    for (const auto& one : cases) {
        document_bench order;
        order.fill_lines(1);
        order.head.text3[0] = "07/B";
        order.customer.email = "a@b.it";
        for (const char answer : one.answers) {
            order.bench.desk.queue_answer(answer == 'y' ? ui::answer::yes : ui::answer::no);
        }
        offri_copie(order.app, order.document(one.kind), true);
        strings titles;
        for (const auto& box : order.bench.desk.take_answered()) titles.push_back(box.box.title);
        EXPECT_EQ(titles, one.titles);
        std::string started;
        for (const auto& command : order.bench.programs.take_started()) started += command;
        EXPECT_EQ(started, one.pdf);
    }
}

/// A printer that fails is the front end's affair; a print file that fails keeps the PDF away.
TEST(printed_document, APrintFileThatIsNotWholeTakesNothingFromThePaperAndIsNotHandedOver) {
    for (int fault = 0; fault <= 2; ++fault) {
        document_bench order;
        faulty_files faulty(order.files);
        program app{faulty, order.bench.desk, order.pictures};
        order.body("100", "140");
        order.fill_lines(199);
        // More than is handed over to the disk at once.
        for (std::size_t n = 70; n <= 78; ++n) {
            order.tables.tabella_layout[n] = {"050000", "9", "Arial", "0", "0", "0"};
        }
        int writes = 0;
        faulty.write_fails = [&](const std::string&, std::int64_t) { return ++writes == fault; };
        for (int i = 0; i < 4; ++i) {
            order.bench.desk.queue_answer(i == 1   ? ui::answer::no
                                          : i == 3 ? ui::answer::ok
                                                   : ui::answer::yes);
        }
        offri_copie(app, order.document(), false);
        EXPECT_EQ(order.bench.paper.take_jobs().at(0).pages.size(), 20U) << fault;
        EXPECT_EQ(order.bench.programs.take_started().size(), fault == 0 ? 1U : 0U) << fault;
        EXPECT_EQ(order.bench.desk.take_answered().size(), fault == 0 ? 3U : 4U) << fault;
        EXPECT_EQ(order.print_file().empty(), fault != 0) << "empty rather than misleading";
    }
}

}  // namespace
}  // namespace vantora::test
