#include "documents/document_tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "store/drive.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class document_tables : public testing::Test {
 protected:
    void write(const std::string& extension, const std::vector<std::string>& lines) {
        std::filesystem::create_directories(company);
        std::ofstream file(company / ("vantora." + extension), std::ios::binary);
        for (const auto& line : lines) file << line << "\r\n";
    }
    void load(tipo_documento kind) {
        drive files(folder.path());
        parameters.numero_azienda = 1;
        carica_documento(tables, kind, parameters, files);
    }
    /// Lines that count themselves from 1.
    static std::vector<std::string> counted(int lines) {
        std::vector<std::string> all;
        for (int i = 1; i <= lines; ++i) all.push_back(std::to_string(i));
        return all;
    }

    test::scratch_folder folder;
    std::filesystem::path company = folder.path() / "mirwin/mirwin/miraz0.001";
    tabelle_documento tables;
    parametri parameters;
};

TEST_F(document_tables, LayoutsAreReadRowByRowFromTheFileOfTheirKind) {
    write("lyo", counted(600));
    write("lyb", counted(601));
    load(tipo_documento::ordine);
    EXPECT_EQ(tables.tabella_layout[1].posizione, "1");
    EXPECT_EQ(tables.tabella_layout[100].colore, "600");
    tables.tabella_layout[1].posizione.clear();
    load(tipo_documento::documento_trasporto);
    EXPECT_EQ(tables.tabella_layout[2].grassetto, "10");
    EXPECT_EQ(tables.tabella_layout[1].posizione, "1");
}

TEST_F(document_tables, AShortLayoutCountsAsMissing) {
    for (const int lines : {0, 1, 300, 599}) {
        write("lyo", counted(lines));
        load(tipo_documento::ordine);
        EXPECT_EQ(tables.tabella_layout[1].posizione, "000000") << lines;
        EXPECT_EQ(tables.tabella_layout[50].carattere, "Arial") << lines;
        EXPECT_EQ(tables.tabella_layout[100].colore, " 0") << lines;
        const voce_layout& odd = tables.tabella_layout[98];
        EXPECT_EQ(odd.posizione + odd.corpo + odd.carattere + odd.grassetto, "0") << lines;
    }
}

TEST_F(document_tables, TheHeadingIsTwentyWholeLines) {
    auto lines = counted(21);
    lines[4] = "  Via Roma, 1 \"bis\" ";
    write("int", lines);
    load(tipo_documento::ordine);
    EXPECT_EQ(tables.testi_intestazione[0], "");
    EXPECT_EQ(tables.testi_intestazione[5], "  Via Roma, 1 \"bis\" ");
    EXPECT_EQ(tables.testi_intestazione[20], "20");
}

TEST_F(document_tables, PdfSettingsGoToTheirSlots) {
    auto lines = counted(80);
    lines[4 * 5 + 2] = "  C:\\PDF ";
    lines[4 * 4 + 2] = " ";
    write("pdf", lines);
    load(tipo_documento::ordine);
    EXPECT_EQ(parameters.parametri_valuta[valuta_slot::riservato_pdf], "21");
    EXPECT_EQ(parameters.parametri_valuta[valuta_slot::invio_email], "22");
    EXPECT_EQ(parameters.parametri_valuta[valuta_slot::cartella_pdf], "C:\\PDF");
    EXPECT_EQ(tables.pdf[6][3], "24");
    load(tipo_documento::documento_trasporto);
    EXPECT_EQ(parameters.parametri_valuta[valuta_slot::cartella_pdf], "C:");
}

TEST_F(document_tables, ADrawingReadsAllItsBlocksWhateverItsCountSays) {
    drive files(folder.path());
    auto list = std::make_unique<disegno>();
    write("lko", {"1", "Ordine, n.", "Arial", "3,10, 20", "0,0,255,12", "1,0", "altro", "Verdana",
                  "1,2,3"});
    carica_disegno(*list, tipo_documento::ordine, 1, files);
    EXPECT_EQ(list->elementi, 1);
    EXPECT_EQ(list->elenco[1].testi[0], "Ordine, n.");
    EXPECT_EQ(list->elenco[1].valori, (std::array<double, 9>{3, 10, 20, 0, 0, 255, 12, 1, 0}));
    EXPECT_EQ(list->elenco[2].testi[1], "Verdana");
    EXPECT_EQ(list->elenco[2].valori[2], 3);
    EXPECT_EQ(list->elenco[2].valori[3], 0);
}

}  // namespace
}  // namespace vantora
