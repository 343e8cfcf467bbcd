#include "documents/pdf_handoff.h"

#include <gtest/gtest.h>

namespace vantora::test {
namespace {

TEST(pdf_handoff, TheCommandNamesLayoutFileAndAddress) {
    const struct {
        const char* folder;
        const char* number;
        bool mail;
        const char* address;
        const char* extra;
        const char* arguments;
    } cases[] = {
        {"C:", "12", false, "a@b.it", "", "C:\\orc12.pdf,***"},
        {" C:\\doc ", "00012", false, "", "", "C:\\doc\\orc12.pdf,***"},
        {"C:", "12/B", true, " a@b.it  ", "", "C:\\orc12.pdf,a@b.it"},
        {"C:", "B12", true, "", " x y ", "C:\\orc0.pdf,,x y"},
        {"C:", "1.5", false, "", "z", "C:\\orc1.5.pdf,***,z"},
    };
    for (const auto& one : cases) {
        tabelle_documento tables;
        tables.pdf[6][3] = one.extra;
        parametri parameters;
        parameters.numero_azienda = 7;
        parameters.parametri_valuta[valuta_slot::cartella_pdf] = one.folder;
        EXPECT_EQ(comando_pdf(parameters,
                              {tipo_documento::ordine, one.number, one.mail, one.address, tables}),
                  "\\mirwin\\mirwin\\mirxpdf \\mirwin\\mirwin\\miraz0.007\\vantora.lxo,"
                  "c:\\mirdoc.rto," +
                      std::string(one.arguments));
    }
}

}  // namespace
}  // namespace vantora::test
