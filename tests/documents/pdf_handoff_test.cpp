#include "documents/pdf_handoff.h"

#include <gtest/gtest.h>

#include "documents/document_bench.h"

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

TEST(pdf_handoff, StartsTheProgramOnYesAndSaysWhenItCant) {
    document_bench order;
    const documento_stampato printed{tipo_documento::ordine, "1", false, "", order.tables};
    const auto offer = [&](std::initializer_list<ui::answer> answers) {
        for (const auto answer : answers) order.bench.desk.queue_answer(answer);
        offri_pdf(order.app, printed);
        std::vector<std::string> said;
        for (const auto& box : order.bench.desk.take_answered()) said.push_back(box.box.text);
        said.push_back(std::to_string(order.bench.programs.take_started().size()));
        return said;
    };
    const std::string question =
        "Generare il file PDF ed eventualmente inviarlo tramite posta elettronica?";
    using strings = std::vector<std::string>;
    EXPECT_EQ(offer({ui::answer::no}), (strings{question, "0"}));
    EXPECT_EQ(offer({ui::answer::yes}), (strings{question, "1"}));
    order.bench.programs.allow(false);
    EXPECT_EQ(
        offer({ui::answer::yes, ui::answer::ok}),
        (strings{question,
                 "Non è possibile eseguire il programma invio del documento a mezzo internet."_cp,
                 "0"}));
}

}  // namespace
}  // namespace vantora::test
