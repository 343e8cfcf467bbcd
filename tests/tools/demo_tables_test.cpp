#include <gtest/gtest.h>

#include "demo_folder.h"
#include "store/drive.h"
#include "store/parameters.h"
#include "store/suite_table.h"
#include "store/text_reader.h"

namespace vantora::test {
namespace {

class demo_tables : public testing::Test {
 protected:
    demo_folder made_{{.numero_azienda = 7, .orders = 3, .articles = 5, .customers = 4}};
};

TEST_F(demo_tables, suite_table_gives_the_program_its_lists) {
    drive suite(made_.drive());
    const tabella_suite table = leggi_tabella_suite(suite, 7);
    EXPECT_EQ(table.iva.aliquota_iva[1], "22");
    EXPECT_EQ(table.iva.aliquota_iva[4], "5");
    EXPECT_EQ(table.iva.descrizione_iva[4], "Non imp. art. 8, lett. c")
        << "the comma belongs to the wording";
    ASSERT_EQ(table.pagamenti.size(), 60U);
    EXPECT_EQ(table.pagamenti[0], "Rimessa diretta");
    EXPECT_EQ(table.pagamenti[30], "Ri.Ba. 30 gg d.f.f.m. + 10");
    EXPECT_EQ(table.causali[0], "Vendita");
    EXPECT_EQ(table.vettori[7][0], "Corriere espresso");
    EXPECT_EQ(table.vettori[7][1], "*");
}

TEST_F(demo_tables, drawings_hold_as_many_elements_as_they_say) {
    for (const std::string extension : {"lko", "lkb"}) {
        text_reader drawing(bytes_of(made_.file(extension)));
        double elements = 0;
        ASSERT_TRUE(drawing.item(elements));
        EXPECT_GT(elements, 30);
        for (int i = 0; i < static_cast<int>(elements); ++i) {
            std::string text;
            ASSERT_TRUE(drawing.line(text) && drawing.line(text));
            double value[9] = {};
            for (double& one : value) ASSERT_TRUE(drawing.item(one));
            EXPECT_TRUE(value[0] >= 1 && value[0] <= 4);
            EXPECT_TRUE(value[1] > 0 && value[1] <= 210 && value[2] <= 297) << i;
        }
        EXPECT_TRUE(drawing.at_end()) << extension;
    }
}

TEST_F(demo_tables, program_start_reads_the_parameters_without_repairs) {
    drive suite(made_.drive());
    const std::string before = bytes_of(made_.file("gnr"));
    parametri read;
    read.numero_azienda = 7;
    carica_parametri(read, suite);
    EXPECT_EQ(bytes_of(made_.file("gnr")), before);
    EXPECT_EQ(read.intestazione_ditta[1], "Ferramenta & Idraulica Bassani S.r.l.");
    EXPECT_EQ(read.parametri_valuta[valuta_slot::modo_decimali], "1");
    EXPECT_EQ(read.parametri_valuta[valuta_slot::valuta_principale], "EUR");
    EXPECT_EQ(read.parametri_valuta[valuta_slot::settima_riga], "9");
    EXPECT_EQ(read.tabella_stampa[0].margine_destro, 960);
    EXPECT_EQ(read.tabella_stampa[2].sfondo, 16777215);
}

}  // namespace
}  // namespace vantora::test
