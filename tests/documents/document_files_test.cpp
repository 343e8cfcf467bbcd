#include "documents/document_tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>

#include "documents/print_file_reader.h"
#include "documents/print_file_writer.h"
#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class document_tables : public testing::Test {
 protected:
    /// Lines that count themselves from 1, but for those that are given.
    void write(const std::string& extension, int lines, std::map<int, std::string> others = {}) {
        std::filesystem::create_directories(company);
        std::ofstream file(company / ("vantora." + extension), std::ios::binary);
        for (int i = 1; i <= lines; ++i)
            file << others.emplace(i, std::to_string(i)).first->second << "\r\n";
    }
    void load(tipo_documento kind) { carica_documento(tables, kind, parameters, files); }
    std::string layout_row(std::size_t row) {
        const voce_layout& one = tables.tabella_layout[row];
        return one.posizione + "," + one.corpo + "," + one.carattere + "," + one.grassetto + "," +
               one.corsivo + "," + one.colore;
    }

    test::scratch_folder folder;
    drive files{folder.path()};
    std::filesystem::path company = folder.path() / "mirwin/mirwin/miraz0.000";
    tabelle_documento tables;
    parametri parameters;
};

TEST_F(document_tables, ALayoutIsReadRowByRowFromTheFileOfItsKindOrCountsAsMissing) {
    write("lyo", 600);
    load(tipo_documento::ordine);
    EXPECT_EQ(layout_row(1) + " " + layout_row(100), "1,2,3,4,5,6 595,596,597,598,599,600");
    write("lyb", 601, {{1, "altro"}});
    load(tipo_documento::documento_trasporto);
    EXPECT_EQ(layout_row(1), "altro,2,3,4,5,6");
    for (const int lines : {0, 1, 300, 599}) {
        write("lyo", lines);
        load(tipo_documento::ordine);
        for (const std::size_t row : {1, 100}) {
            EXPECT_EQ(layout_row(row), "000000,9,Arial,0,0, 0") << lines;
        }
        EXPECT_EQ(layout_row(98), ",,,0,0, 0") << lines;
    }
}

TEST_F(document_tables, WhatIsThereAndCantBeReadIsKnown) {
    for (const char* extension : {"int", "tab", "lyo", "pdf", "lko"}) write(extension, 9);
    test::faulty_files disk(files);
    const auto unreadable = [&] {
        carica_documento(tables, tipo_documento::ordine, parameters, disk);
        disegno drawing;
        carica_disegno(drawing, tipo_documento::ordine, 0, disk);
        std::string all = drawing.illeggibile ? "lko" : "";
        for (const auto& file : tables.illeggibili) all += " " + file;
        return all;
    };
    EXPECT_EQ(unreadable(), "");
    disk.read_fails = [](auto&&...) { return true; };
    EXPECT_EQ(unreadable(), "lko vantora.int vantora.tab vantora.lyo vantora.pdf");
}

TEST_F(document_tables, ADrawingReadsAllItsBlocksWhateverItsCountSays) {
    write("lko", 9,
          {{2, "Ordine, n."}, {3, "Arial"}, {4, "3,10, 20"}, {5, "0,0,255,12"}, {6, "1,0"}});
    disegno list;
    carica_disegno(list, tipo_documento::ordine, 0, files);
    EXPECT_EQ(list.elementi, 1);
    EXPECT_EQ(list.elenco[1].testi[0], "Ordine, n.");
    EXPECT_EQ(list.elenco[1].valori, (std::array<double, 9>{3, 10, 20, 0, 0, 255, 12, 1, 0}));
    EXPECT_EQ(list.elenco[2].testi[1], "8");
    EXPECT_EQ(list.elenco[2].valori, (std::array<double, 9>{9, 0, 0, 0, 0, 0, 0, 0, 0}));
}

using pages = std::vector<std::vector<record_di_stampa>>;

std::string shown(const pages& all) {
    std::ostringstream out;
    for (const auto& page : all) {
        out << "\n-";
        for (const record_di_stampa& one : page) {
            out << '|' << static_cast<int>(one.tipo);
            for (const double value : {one.x1, one.y1, one.x2, one.y2, one.corpo, one.colore}) {
                out << ' ' << value;
            }
            out << ' ' << one.testo << ' ' << one.carattere << ' ' << one.grassetto << ' '
                << one.corsivo;
        }
    }
    return out.str();
}

/// What is read from a print file, or what is wrong with it.
std::string read(std::string_view content) {
    const auto fault = [](const errore_di_stampa& one) {
        const char* names[] = {"no mark", "cut", "no kind", "no number", "too large"};
        return names[static_cast<int>(one.difetto)] + (" in line " + std::to_string(one.riga));
    };
    const auto found = read_print_file(content);
    if (const auto* error = std::get_if<errore_di_stampa>(&found)) return fault(*error);
    const auto& document = std::get<documento_di_stampa>(found);
    std::string all = document.orizzontale ? "landscape" : "upright";
    if (document.anomalie > 0) {
        all += ", " + std::to_string(document.anomalie) + " odd: " + fault(document.prima_anomalia);
    }
    return all + shown(document.pagine);
}

class print_file : public testing::Test {
 protected:
    void write(std::string_view mark, const pages& all) {
        print_file_writer out(files, mark);
        for (const auto& page : all) {
            for (const auto& record : page) out.write(record);
            out.end_page();
        }
    }
    std::string content() { return files.read_whole(file_di_stampa).value_or("no file"); }

    test::scratch_folder folder;
    drive files{folder.path()};
};

using enum tipo_record;

const record_di_stampa heading{testo, 100, 20, 0, 0, 12, 0, "ORDINE CLIENTE", "Arial", 1, 0};
const record_di_stampa logo{figura, 9, 10, 40, -2, 0, 0, "\\mirwin\\logo.bmp", "", 0, 0};
const record_di_stampa rule{linea, 0, -1.5, 210, 31, 0, 0xAAAAAA, "", "", 1, 0};
const record_di_stampa shade{riquadro, 10, 40, 200, 44, 0, 0xFFFFFF, "", "", 1, 0};
const record_di_stampa amount{testo, 190.25, 60, 0, 1, 8.5, 255, " 12,50 ", "Verdana", 0, 1};

TEST_F(print_file, WhatIsWrittenIsReadAgainUnlessItIsCutInsideARecord) {
    // The second page has nothing on it, the third more than the writer hands over at once.
    pages long_one = {{logo, rule, shade, heading, amount}, {}};
    long_one.emplace_back(9000, amount);
    write(marca_orizzontale, long_one);
    EXPECT_EQ(read(content()), "landscape" + shown(long_one));
    write(marca_verticale, {{heading, shade}, {logo, amount}});
    const std::string whole = content();
    std::size_t line_ends = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::string cut = whole.substr(0, size);
        line_ends += cut.ends_with("\r\n");
        const bool between_records = cut.ends_with("\r\n") && line_ends % righe_per_record == 1;
        EXPECT_EQ(read(cut).starts_with("upright"), between_records) << size;
    }
}

TEST_F(print_file, ANewFileTakesThePlaceOfTheOldOneWhichItsReadersKeep) {
    write(marca_verticale, {{heading}});
    const std::string before = content();
    std::ifstream reader(folder.path() / "mirdoc.rto", std::ios::binary);
    reader.get();
    write(marca_orizzontale, {{heading, heading}});
    reader.seekg(0);
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), before);
    EXPECT_NE(content(), before);
    std::filesystem::remove(folder.path() / "mirdoc.rto");
    std::filesystem::create_directory(folder.path() / "mirdoc.rto");
    EXPECT_FALSE(print_file_writer(files, marca_verticale).finish());
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "mirdoc.rto"));
    std::filesystem::remove(folder.path() / "mirdoc.rto");
    std::ofstream(folder.path() / "other") << "somebody's";
    std::filesystem::create_symlink("other", folder.path() / "mirdoc.rto");
    write(marca_verticale, {{heading}});
    EXPECT_EQ(content(), before);
    EXPECT_EQ(files.read_whole("\\other"), "somebody's") << "not written through a link";
    std::filesystem::permissions(folder.path() / "mirdoc.rto", std::filesystem::perms(0640));
    write(marca_verticale, {{heading}});
    EXPECT_EQ(std::filesystem::status(folder.path() / "mirdoc.rto").permissions(),
              std::filesystem::perms(0640));
}

/// The eleven lines of a text, one of them with another content.
std::string text_with(std::size_t line = 1, const std::string& content = " 3 ",
                      const std::string& line_end = "\r\n") {
    std::string eleven[] = {" 3 ", " 1 ", " 2 ",   " 0 ", " 0 ", " 9 ",
                            " 0 ", "x",   "Arial", " 0 ", "0"};
    eleven[line - 1] = content;
    std::string all;
    for (const auto& one : eleven) all += one + line_end;
    return all;
}

TEST(print_file_reading, TakesOtherWritersFormsAndPassesOverWhatIsOdd) {
    const std::string mark = "#FILEFORMAT=KLP-RTO\r\n";
    const std::string end = " 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    const std::string good = text_with();
    const std::string x = "|3 1 2 0 0 9 0 x Arial 0 0";
    const std::pair<std::string, std::string> cases[] = {
        {" #FILEFORMAT=KLP-RTO \r\n" + good + end, "upright\n-" + x},
        {"#FILEFORMAT=KLP-RTO\n" + text_with(1, "3", "\n") + "9\n\n\n\n\n\n\n\n\n\n\n",
         "upright\n-" + x},
        {mark + end + good, "upright\n-\n-" + x},
        {mark + text_with(2, "12,5") + end, "upright\n-|3 12.5 2 0 0 9 0 x Arial 0 0"},
        {mark + text_with(6, " -8,25 "), "upright\n-|3 1 2 0 0 -8.25 0 x Arial 0 0"},
        {mark + text_with(8, "one\nother ") + end,
         "upright\n-|3 1 2 0 0 9 0 one\nother  Arial 0 0"},
        {mark + text_with(8, "one\rother") + end, "upright\n-|3 1 2 0 0 9 0 one\rother Arial 0 0"},
        {mark + text_with(7, "1E300") + end, "upright\n-|3 1 2 0 0 9 1e+300 x Arial 0 0"},
        {"", "no mark in line 1"},
        {"#FILEFORMAT=KLP-RTO-O-O\r\n", "no mark in line 1"},
        {"#FILEFORMAT=KLP-RTO", "cut in line 1"},
        {mark + good + text_with(1, "noise") + text_with(1, "noise"), "no kind in line 13"},
    };
    for (const auto& [content, expected] : cases) EXPECT_EQ(read(content), expected);

    const std::string endless(5'000'000, 'w');
    EXPECT_EQ(read(mark + text_with(8, endless) + end),
              "upright\n-|3 1 2 0 0 9 0 " + endless.substr(0, 2000) + " Arial 0 0");

    // A line with odd content among good records, and what is left of its own one.
    const std::tuple<std::size_t, const char*, const char*, const char*> odd[] = {
        {1, "4", "no kind in line 13", ""},
        {1, "2.5", "no kind in line 13", ""},
        {11, "- ", "no number in line 23", ""},
        {2, "100001", "too large in line 14", "|3 100000 2 0 0 9 0 x Arial 0 0"},
        {6, "-1E300", "too large in line 18", "|3 1 2 0 0 -100000 0 x Arial 0 0"}};
    for (const auto& [line, content, fault, left] : odd) {
        EXPECT_EQ(read(mark + good + text_with(line, content) + good + end),
                  std::string("upright, 1 odd: ") + fault + "\n-" + x + left + x);
    }
}

}  // namespace
}  // namespace vantora
