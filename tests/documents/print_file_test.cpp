#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <optional>
#include <sstream>

#include "documents/print_file_reader.h"
#include "documents/print_file_writer.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class print_file : public testing::Test {
 protected:
    void write(std::string_view mark, const std::vector<std::vector<record_di_stampa>>& pages) {
        print_file_writer out(files, mark);
        for (const auto& page : pages) {
            for (const auto& record : page) out.write(record);
            out.end_page();
        }
    }
    std::string content() { return files.read_whole(file_di_stampa).value_or("no file"); }
    documento_di_stampa read() {
        return std::get<documento_di_stampa>(leggi_file_di_stampa(content()));
    }

    test::scratch_folder folder;
    drive files{folder.path()};
};

using enum tipo_record;

const record_di_stampa heading{testo, 100, 20, 0, 0, 12, 0, "ORDINE CLIENTE", "Arial", 1, 0};
const record_di_stampa logo{figura, 9, 10, 40, -2, 0, 0, "\\mirwin\\logo.bmp", "", 0, 0};
const record_di_stampa rule{linea, 0, -1.5, 210, 31, 0, 0xAAAAAA, "", "", 1, 0};
const record_di_stampa shade{riquadro, 10, 40, 200, 44, 0, 0xFFFFFF, "", "", 1, 0};
const record_di_stampa amount{testo, 190.25, 60, 0, 1, 8.5, 255, " 12,50 ", "Verdana", 0, 1};

TEST_F(print_file, LinesThatAKindDoesNotUseAreEmpty) {
    write(marca_orizzontale, {{logo, rule}});
    EXPECT_EQ(content(),
              "#FILEFORMAT=KLP-RTO-O\r\n"
              " 0 \r\n 9 \r\n 10 \r\n 40 \r\n-2 \r\n 0 \r\n\r\n\\mirwin\\logo.bmp\r\n\r\n 0 \r\n 0 "
              "\r\n"
              " 1 \r\n 0 \r\n-1.5 \r\n 210 \r\n 31 \r\n 0 \r\n 11184810 \r\n\r\n\r\n 1 \r\n 0 \r\n"
              " 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

void expect_same(const record_di_stampa& one, const record_di_stampa& other) {
    const auto parts = [](const record_di_stampa& of) {
        return std::tie(of.tipo, of.x1, of.y1, of.x2, of.y2, of.corpo, of.colore, of.testo,
                        of.carattere, of.grassetto, of.corsivo);
    };
    EXPECT_TRUE(parts(one) == parts(other));
}

TEST_F(print_file, WhatIsWrittenIsReadAgain) {
    // The second page has nothing on it, the third more than the writer hands over at once.
    std::vector<std::vector<record_di_stampa>> pages = {{logo, rule, shade, heading, amount}, {}};
    pages.emplace_back(3000, amount);
    for (const auto mark : {marca_verticale, marca_orizzontale}) {
        write(mark, pages);
        const auto document = read();
        EXPECT_EQ(document.orizzontale, mark == marca_orizzontale);
        ASSERT_EQ(document.pagine.size(), pages.size());
        for (std::size_t p = 0; p < pages.size(); ++p) {
            ASSERT_EQ(document.pagine[p].size(), pages[p].size());
            for (std::size_t i = 0; i < pages[p].size(); ++i) {
                expect_same(document.pagine[p][i], pages[p][i]);
            }
        }
    }
}

TEST_F(print_file, ANewFileTakesThePlaceOfTheOldOneWhichItsReadersKeep) {
    write(marca_verticale, {{heading}});
    const std::string before = content();
    std::ifstream reader(folder.path() / "mirdoc.rto", std::ios::binary);
    reader.get();
    write(marca_orizzontale, {{heading, heading}});
    reader.seekg(0);
    std::ostringstream still;
    still << reader.rdbuf();
    EXPECT_EQ(still.str(), before);
    EXPECT_NE(content(), before);
    std::filesystem::remove(folder.path() / "mirdoc.rto");
    std::filesystem::create_directory(folder.path() / "mirdoc.rto");
    EXPECT_FALSE(print_file_writer(files, marca_verticale).finish());
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "mirdoc.rto"));
}

/// Every write fails in turn, once and from there on: nothing is left that could be taken for a
/// document, and nothing is written behind the failure.
TEST_F(print_file, AFileThatCannotBeFilledIsLeftEmpty) {
    for (const bool for_good : {false, true}) {
        for (int n = 1;; ++n) {
            test::faulty_files faulty(files);
            int writes = 0;
            faulty.write_fails = [&](const std::string&, std::int64_t) {
                ++writes;
                return writes == n || (for_good && writes > n);
            };
            print_file_writer out(faulty, marca_verticale);
            for (int i = 0; i < 3000; ++i) out.write(heading);
            out.end_page();
            const bool whole = out.finish();
            EXPECT_EQ(whole, writes < n);
            if (whole) break;
            EXPECT_EQ(writes, n);
            EXPECT_EQ(content(), "");
        }
    }
}

/// A record of eleven lines, as a test wants them.
std::string lines(const std::vector<std::string>& eleven, const std::string& line_end = "\r\n") {
    std::string all;
    for (const auto& line : eleven) all += line + line_end;
    return all;
}

const std::string upright = "#FILEFORMAT=KLP-RTO\r\n";
const std::string end_of_page = " 9 \r\n" + lines(std::vector<std::string>(10));

TEST(print_file_reading, OtherWritersFormsOfTheSameAreTaken) {
    const std::vector<std::string> text = {"3",   "12,5", " -3 ",    "0", "1", " 8,25 ",
                                           "255", "a b ", "Verdana", "0", "0"};
    const struct {
        const char* what;
        std::string content;
        std::size_t pages;
    } cases[] = {
        {"comma for decimals, no sign position", upright + lines(text) + end_of_page, 1},
        {"lines ended by one character",
         "#FILEFORMAT=KLP-RTO\n" + lines(text, "\n") + "9\n\n\n\n\n\n\n\n\n\n\n", 1},
        {"blanks around the mark", " #FILEFORMAT=KLP-RTO \r\n" + lines(text) + end_of_page, 1},
        {"no page record at the end", upright + end_of_page + lines(text), 2},
    };
    for (const auto& one : cases) {
        const auto read = leggi_file_di_stampa(one.content);
        const auto* document = std::get_if<documento_di_stampa>(&read);
        ASSERT_TRUE(document) << one.what;
        ASSERT_EQ(document->pagine.size(), one.pages) << one.what;
        const auto& record = document->pagine.back().at(0);
        expect_same(record, {testo, 12.5, -3, 0, 1, 8.25, 255, "a b ", "Verdana", 0, 0});
    }
}

TEST(print_file_reading, ALineEndInsideATextOfAReportBreaksNoRecord) {
    std::string content = upright;
    for (const char* text : {"one\nother", "one\rother"}) {
        content += lines({"3", "1", "2", "0", "0", "9", "0", text, "Arial", "0", "0"});
    }
    const auto read = leggi_file_di_stampa(content + end_of_page);
    const auto& page = std::get<documento_di_stampa>(read).pagine.at(0);
    ASSERT_EQ(page.size(), 2U);
    EXPECT_EQ(page[0].testo, "one\nother");
    EXPECT_EQ(page[1].testo, "one\rother");
}

/// Six records of a page, one of them with an odd value.
TEST(print_file_reading, OddValuesAreCorrectedOrTheirRecordPassedOver) {
    using enum difetto_di_stampa;
    const struct {
        std::size_t line;
        const char* content;
        std::optional<difetto_di_stampa> fault;
        std::size_t kept;
    } cases[] = {
        {1, "4", tipo_sconosciuto, 3},        {1, "2.5", tipo_sconosciuto, 3},
        {2, "Arial", numero_illeggibile, 3},  {11, "- ", numero_illeggibile, 3},
        {2, "100001", numero_fuori_campo, 4}, {6, "-1E300", numero_fuori_campo, 4},
        {7, "1E300", std::nullopt, 4},
    };
    for (const auto& one : cases) {
        std::vector<std::string> good = {" 3 ", " 1 ", " 2 ",   " 0 ", " 0 ", " 9 ",
                                         " 0 ", "x",   "Arial", " 0 ", " 0 "};
        auto odd = good;
        odd[one.line - 1] = one.content;
        const auto read = leggi_file_di_stampa(upright + lines(good) + lines(odd) + lines(good) +
                                               lines(good) + end_of_page);
        const auto& document = std::get<documento_di_stampa>(read);
        EXPECT_EQ(document.anomalie, one.fault ? 1U : 0U) << one.content;
        if (one.fault) {
            EXPECT_EQ(document.prima_anomalia.difetto, *one.fault) << one.content;
            EXPECT_EQ(document.prima_anomalia.riga, 12 + one.line) << one.content;
        }
        ASSERT_EQ(document.pagine.size(), 1U);
        EXPECT_EQ(document.pagine[0].size(), one.kept) << one.content;
        for (const auto& record : document.pagine[0]) {
            EXPECT_LE(std::abs(record.x1) + std::abs(record.corpo), 100'010);
        }
    }
}

TEST(print_file_reading, WhatIsNoPrintFileIsToldWithItsLine) {
    using enum difetto_di_stampa;
    const struct {
        std::string content;
        difetto_di_stampa fault;
        std::size_t line;
    } cases[] = {
        {"", senza_marca, 1},
        {"#FILEFORMAT=KLP-RTO-O-O\r\n", senza_marca, 1},
        {"%PDF-1.4\r\n", senza_marca, 1},
        {"#FILEFORMAT=KLP-RTO", troncato, 1},
        {upright + lines(std::vector<std::string>(22, "noise")), tipo_sconosciuto, 2},
    };
    for (const auto& one : cases) {
        const auto read = leggi_file_di_stampa(one.content);
        const auto* error = std::get_if<errore_di_stampa>(&read);
        ASSERT_TRUE(error) << one.content;
        EXPECT_EQ(error->difetto, one.fault) << one.content;
        EXPECT_EQ(error->riga, one.line) << one.content;
    }
}

TEST_F(print_file, AFileCutInsideARecordIsRefused) {
    write(marca_verticale, {{heading, shade}, {logo, amount}});
    const std::string whole = content();
    std::size_t line_ends = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        if (size >= 2 && whole.substr(size - 2, 2) == "\r\n") ++line_ends;
        const bool between_records =
            whole.substr(0, size).ends_with("\r\n") && line_ends % righe_per_record == 1;
        const auto read = leggi_file_di_stampa(whole.substr(0, size));
        EXPECT_EQ(std::holds_alternative<documento_di_stampa>(read), between_records) << size;
    }
}

}  // namespace
}  // namespace vantora
