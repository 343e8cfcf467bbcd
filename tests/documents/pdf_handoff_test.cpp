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

TEST(pdf_handoff, StartsTheProgramOnYesAndSaysWhenItCantOrMayNot) {
    const struct {
        bool yes, can_start, whole;
        std::size_t boxes, started;
    } cases[] = {
        {false, true, true, 1, 0},
        {true, true, true, 1, 1},
        {true, false, true, 2, 0},
        {true, true, false, 2, 0},
    };
    for (const auto& one : cases) {
        document_bench order;
        order.bench.programs.allow(one.can_start);
        order.bench.desk.queue_answer(one.yes ? ui::answer::yes : ui::answer::no);
        order.bench.desk.queue_answer(ui::answer::ok);
        offri_pdf(order.app, {tipo_documento::ordine, "1", false, "", order.tables, one.whole});
        const auto boxes = order.bench.desk.take_answered();
        ASSERT_EQ(boxes.size(), one.boxes);
        EXPECT_EQ(boxes[0].box.text,
                  "Generare il file PDF ed eventualmente inviarlo tramite posta elettronica?");
        if (one.boxes == 2) {
            EXPECT_EQ(
                boxes[1].box.text,
                "Non è possibile eseguire il programma invio del documento a mezzo internet."_cp);
        }
        EXPECT_EQ(order.bench.programs.take_started().size(), one.started);
    }
}

}  // namespace
}  // namespace vantora::test
