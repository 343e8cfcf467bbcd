#include "documents/printed_document.h"

#include <gtest/gtest.h>

#include <set>

#include "documents/document_stage.h"
#include "documents/print_file_writer.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

using strings = std::vector<std::string>;

/// A text of its own in every place, and what all the fields print of them, with blanks between.
std::string fields_of(tipo_documento kind) {
    document_stage order;
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
    // A fourth rate is in the sums, a fourth exemption takes the last place.
    for (const std::size_t code : {2, 4, 9, 12}) {
        order.vat.imponibile_iva[code] = static_cast<double>(code);
        order.vat.imposta_iva[code] = 1;
        order.vat.esente_iva[code] = static_cast<double>(10 * code);
        order.tables.iva.aliquota_iva[code] = "r" + std::to_string(code);
        order.tables.iva.descrizione_iva[code] = "e" + std::to_string(code);
    }
    order.fill_lines(1);
    for (std::size_t n = 1; n < document_form(kind).campi.size(); ++n) {
        order.tables.tabella_layout[n].posizione = "010020";
    }
    std::string all;
    for (const std::string& text : order.texts(order.print(kind).at(0))) {
        all += (text.empty() ? "-" : text) + " ";
    }
    return all;
}

TEST(printed_document, EveryFieldHasItsSource) {
    std::string common;
    for (int n = 1; n <= 16; ++n) common += "ditta" + std::to_string(n) + "\t ";
    common +=
        "- T2_0 T2_1 T2_2 T2_3 T2_4 IT01234567890 T2_5 T2_8 T2_9 T2_10 T2_11 T2_12 T2_13 T2_14 "
        "T2_15 T3_0 T3_1 1 ";
    EXPECT_EQ(fields_of(tipo_documento::ordine),
              common +
                  "T3_3 T3_4 T3_5 Ordine cliente T3_2 T2_17 T2_18 T2_19 pagamento in coda - "
                  "2,00 r2 1,00 4,00 r4 1,00 9,00 r9 1,00 20,00 e2 40,00 e4 120,00 e12 27,00 4,00 "
                  "301,00 ORDINE CLIENTE T2_20 T2_21 ");
    EXPECT_EQ(fields_of(tipo_documento::documento_trasporto),
              common +
                  "pagamento T3_2 T3_3 aspetto porto trasporto - T2_17 T2_18 T2_19 T3_4 T3_5 "
                  "DOCUMENTO DI TRASPORTO T2_20 T2_21 ");
}

/// The last line of a full document has no place. Where no line fits, an order has one page, and a
/// transport document one for each line.
TEST(printed_document, PagesFollowFromTheHeightOfTheBody) {
    // Top and bottom, lines of the document, and how many are printed on each page.
    const std::tuple<const char*, const char*, int, std::vector<std::size_t>> cases[] = {
        {"100", "140", 10, {10}},         {"140", "100", 11, {10, 1}}, {"100", "140", 0, {}},
        {"100", "103", 3, {1}},           {"100", "104", 2, {1, 1}},   {"abc", "x", 3, {1}},
        {"010", "330", 200, {80, 80, 39}}};
    for (const auto kind : {tipo_documento::ordine, tipo_documento::documento_trasporto}) {
        for (auto [top, bottom, lines, expected] : cases) {
            if (lines == 3 && kind == tipo_documento::documento_trasporto) expected = {1, 1, 1};
            document_stage order;
            order.body(top, bottom, kind);
            const auto descriptions =
                static_cast<std::size_t>(document_form(kind).prima_colonna) + 1;
            order.tables.tabella_layout[descriptions].posizione = "050000";
            order.fill_lines(lines);
            std::vector<std::size_t> printed;
            for (const auto& page : order.print(kind)) {
                const strings texts = order.texts(page);
                printed.push_back(texts.size() - std::ranges::count(texts, ""));
            }
            EXPECT_EQ(printed, expected) << top << ' ' << lines;
        }
    }
}

TEST(printed_document, LinesShowTheirColumnsFromTheTopOfTheBody) {
    document_stage order;
    order.tables.iva.aliquota_iva[4] = "22";
    order.tables.iva.aliquota_iva[14] = "exempt";
    order.lines[1] = {.codice{"A\tB"},
                      .descrizione{"Vite"},
                      .um{"PZ"},
                      .iva = 4,
                      .quantita = 2.5,
                      .prezzo = 10,
                      .sc1 = 10,
                      .sc2 = 5};
    order.lines[2] = {.descrizione{"trasporto"}, .iva = 14, .prezzo = 5.555, .sc2 = 5};
    order.lines[3] = {.descrizione{"solo sconto"}, .iva = 4, .sc1 = -3};
    const std::pair<tipo_documento, strings> cases[] = {
        {tipo_documento::ordine,
         {"AB", "Vite",        "2,50", "PZ", "10,00", "25,00", "21,37", "10+5", "22",
          "",   "trasporto",   "",     "",   "5,56",  "5,56",  "5,28",  "5",    "",
          "",   "solo sconto", "",     "",   "",      "",      "",      "-3",   ""}},
        {tipo_documento::documento_trasporto,
         {"AB", "Vite", "2,50", "PZ", "10,00", "10+5", "", "trasporto", "", "", "5,56", "5", "",
          "solo sconto", "", "", "", "-3"}},
    };
    for (const auto& [kind, printed] : cases) {
        const forma_documento& shape = document_form(kind);
        for (auto& row : order.tables.tabella_layout) row.posizione = "000000";
        order.body("100", "112", kind);
        const auto first = static_cast<std::size_t>(shape.prima_colonna);
        for (std::size_t n = 0; n < shape.colonne.size(); ++n) {
            order.tables.tabella_layout[first + n].posizione = "050";
        }
        const auto page = order.print(kind).at(0);
        EXPECT_EQ(order.texts(page), printed);
        EXPECT_EQ(order.lines[1].codice.trimmed(), "AB") << "printing cleans the line itself";
        const std::string shown = order.shown(page);
        EXPECT_TRUE(shown.starts_with("text 50 100 AB ")) << shown;
        EXPECT_NE(shown.find("\ntext 50 100  10+5,"), std::string::npos) << "behind its sign";
        EXPECT_NE(shown.find("\ntext 50 104 trasporto "), std::string::npos);
        const auto& price = std::get<ui::script::printed_text>(page[4]);
        EXPECT_NEAR(price.x + order.paper.text_width("10,00", price.font), 50, 1e-9);
    }
}

TEST(printed_document, OnlyAPlaceWithBothHalvesIsPrintedAndTheLookIsTheLayouts) {
    document_stage order;
    order.fill_lines(1);
    auto& layout = order.tables.tabella_layout;
    layout[39] = {"012034", "12", "Verdana", "1", " 0", "255"};
    layout[65] = {"012000", "9", "Arial", "0", "0", "0"};
    layout[35] = {"000034", "9", "Arial", "0", "0", "0"};
    // No size and no name leave what was before.
    layout[40] = {"020030", "0", "", "0", "0", "-1"};
    order.head.text3[2] = "06/05/2024";
    EXPECT_EQ(order.shown(order.print().at(0)),
              "text 12 34 Ordine cliente, Verdana 12 bold italic ink 255\n"
              "text 20 30 06/05/2024, Verdana 12 ink 255\n");
    EXPECT_NE(order.print_file().find("\r\n 0 \r\n-1 \r\n06/05/2024\r\n\r\n 0 \r\n 0 \r\n 9 \r\n"),
              std::string::npos)
        << "in the file they stay empty";
    order.lines[1].descrizione = "\x02";
    EXPECT_TRUE(order.print().empty());
    EXPECT_EQ(order.outcome, esito_stampa::completa) << "without a description: no page";
    EXPECT_EQ(order.print_file(), "#FILEFORMAT=KLP-RTO\r\n");
}

TEST(printed_document, CopiesAreAskedForUnderTheNameOfTheDocumentAndEndInAPdf) {
    const auto bolla = tipo_documento::documento_trasporto;
    const auto ordine = tipo_documento::ordine;
    const struct {
        tipo_documento kind;
        std::string answers;  ///< to: begin, another copy, ..., PDF
        const char* folder;
        const char* number;
        bool mail;
        const char* address;
        const char* extra;
        std::string pdf;
    } cases[] = {
        {ordine, "ynn", "C:", "1", false, "", "", ""},
        {bolla, "yynny", "", "07/B", true, "a@b.it", "", "b,c:\\mirdoc.rto,\\bll7.pdf,a@b.it"},
        {ordine, "yny", "C:", "12", false, "a@b.it", "", "o,c:\\mirdoc.rto,C:\\orc12.pdf,***"},
        {ordine, "yny", " C:\\doc ", "00012", false, "", "",
         "o,c:\\mirdoc.rto,C:\\doc\\orc12.pdf,***"},
        {ordine, "yny", "C:", "12/B", true, " a@b.it  ", "",
         "o,c:\\mirdoc.rto,C:\\orc12.pdf,a@b.it"},
        {ordine, "yny", "C:", "B12", true, "", " x y ", "o,c:\\mirdoc.rto,C:\\orc0.pdf,,x y"},
        {ordine, "yny", "C:", "1.5", false, "", "z", "o,c:\\mirdoc.rto,C:\\orc1.5.pdf,***,z"},
    };
    for (const auto& one : cases) {
        document_stage order;
        order.app.parameters.numero_azienda = 7;
        order.app.parameters.parametri_valuta[valuta_slot::cartella_pdf] = one.folder;
        order.tables.pdf[static_cast<std::size_t>(one.kind)][3] = one.extra;
        order.fill_lines(1);
        order.head.text3[0] = one.number;
        order.customer.email = one.address;
        for (const char answer : one.answers) {
            order.front.answers.keep(answer == 'y' ? ui::answer::yes : ui::answer::no);
        }
        offer_copies(order.app, order.document(one.kind), one.mail);
        const std::string over =
            one.kind == ordine ? "Stampa ordine" : "Stampa documento di trasporto";
        strings expected(one.answers.size(), over);
        expected.back() = "Attenzione";
        strings titles;
        for (const auto& box : order.front.answers.take_answered()) {
            titles.push_back(box.box.title);
        }
        EXPECT_EQ(titles, expected);
        std::string started;
        for (const auto& command : order.programs.take_started()) started += command;
        const std::string program =
            "\\mirwin\\mirwin\\mirxpdf \\mirwin\\mirwin\\miraz0.007\\vantora.lx";
        EXPECT_EQ(started, one.pdf.empty() ? one.pdf : program + one.pdf);
    }
}

/// Prints a document of twenty pages and wants its PDF, on files that somebody disturbs; tells
/// whether a program was started, and gives the print file.
template <class Disturb>
std::pair<bool, std::string> print_and_hand_over(const Disturb& disturb) {
    document_stage order;
    faulty_files faulty(order.files);
    program app{faulty, order.desk, order.pictures};
    print_file_writer(order.files, "the one before");
    order.body("100", "140");
    order.fill_lines(199);
    // More than is handed over to the disk at once.
    for (std::size_t n = 70; n <= 78; ++n) {
        order.tables.tabella_layout[n] = {"050000", "9", std::string(600, 'x'), "0", "0", "0"};
    }
    disturb(order, faulty);
    using enum ui::answer;
    for (const auto answer : {yes, no, yes, ok}) order.front.answers.keep(answer);
    offer_copies(app, order.document(), false);
    EXPECT_EQ(order.paper.take_jobs().at(0).pages.size(), 20U);
    const bool started = !order.programs.take_started().empty();
    EXPECT_EQ(order.front.answers.take_answered().size(), started ? 3U : 4U);
    return {started, order.print_file()};
}

/// A printer that fails is the front end's affair; a print file that fails keeps the PDF away.
TEST(printed_document, WhatItLacksIsAskedAboutBeforeAnythingIsPrinted) {
    for (const bool goes_on : {false, true}) {
        document_stage order;
        order.fill_lines(1);
        order.tables.illeggibili = {"vantora.lyo"};
        order.background.illeggibile = true;
        order.front.answers.keep(ui::answer::yes);
        order.front.answers.keep(goes_on ? ui::answer::yes : ui::answer::no);
        order.outcome = stampa_documento(order.app, order.document());
        EXPECT_EQ(order.outcome, goes_on ? esito_stampa::completa : esito_stampa::rifiutata);
        const auto boxes = order.front.answers.take_answered();
        EXPECT_EQ(boxes.at(1).box.text,
                  "Il documento non è completo: impossibile leggere vantora.lyo, vantora.lko. "
                  "Stamparlo ugualmente?"_cp);
        EXPECT_EQ(order.print_file() == "no file", !goes_on);
    }
}

TEST(printed_document, APrintFileThatIsNotWholeAndItsOwnIsNotHandedOver) {
    std::set<std::string> left;
    bool failed = true;
    for (std::size_t fault = 0; failed; ++fault) {
        const auto& [started, print_file] =
            print_and_hand_over([&](document_stage&, faulty_files& faulty) {
                faulty.fail_at(fault / 2, fault % 2 == 1, failed);
            });
        EXPECT_EQ(started, !failed) << fault;
        if (fault % 2 == 0) left.insert(print_file);
    }
    EXPECT_EQ(left.size(), 3U) << "the one before, an empty one, or the whole document";

    int reads = 0;
    const auto replace = [&](document_stage& order, faulty_files& faulty) {
        faulty.read_fails = [&](auto&&...) {
            if (++reads == 2) print_file_writer(order.files, "another program's");
            return false;
        };
    };
    const auto& [started, print_file] = print_and_hand_over(replace);
    EXPECT_TRUE(started && left.contains(print_file)) << "it is written anew";
}

}  // namespace
}  // namespace vantora::test
