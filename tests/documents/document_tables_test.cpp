#include "documents/document_tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>

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

}  // namespace
}  // namespace vantora
