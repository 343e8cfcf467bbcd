#include "fulfil/mirorca.h"

#include <gtest/gtest.h>

#include <fstream>

#include "fulfil/fulfil_stage.h"

namespace vantora::test {
namespace {

/// The lines of a document's snapshot.
std::vector<std::string> snapshot(const small_company& company, const std::string& name) {
    std::ifstream in(company.file("x").parent_path() / name, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        EXPECT_TRUE(line.ends_with('\r'));
        line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

/// A document of five pieces of A1, a text and 200 pieces of A2, more than there are.
struct document_stage : fulfil_stage {
    explicit document_stage(int automatic_weight = 1) {
        order(1, 1, {{1, 5}, {0, 0, 0, "fragile"}, {2, 200}});
        rec_gnr general{};
        channel<rec_gnr> file(real.open_records("\\mirwin\\mirwin\\miraz0.001\\vantora.gnr"));
        file.read(1, general);
        general.peso_automatico = static_cast<std::int16_t>(automatic_weight);
        file.write(1, general);
        company.counter(contatori::documenti_trasporto, 7, 41);
        company.counter(contatori::magazzino, 9);
        run();
        open_worklist(1);
        click(1, mirorcr::ordine);
        book();
    }
    mirorca& screen() { return *app.mirorca; }
};

TEST(mirorca, OpensOnTheRowsThatLeave) {
    document_stage stage;
    EXPECT_EQ(stage.screen().artic[0].text(), "A1");
    EXPECT_EQ(stage.screen().quantita[2].text(), "200");
    EXPECT_EQ(stage.screen().ds[1].text(), "fragile");
    EXPECT_EQ(stage.screen().artic[1].text(), "");
    EXPECT_EQ(stage.screen().text1[1].text(), "DDT n.42");
    EXPECT_EQ(stage.screen().Text.text(), "06/05/2024");
    EXPECT_TRUE(stage.screen().prezz[1].on());
    EXPECT_TRUE(stage.screen().scarica.on());
    EXPECT_EQ(stage.screen().tota[0].text(), "205 ");
    // The text has a price of its own, which counts once.
    EXPECT_EQ(stage.screen().tota[1].text(), "1.854,00 ");
    EXPECT_EQ(stage.app.mirorcc->Text3[3].text(), "51,25");
    stage.desk.dispatch([&] { stage.screen().quantita[0].set_text("4"); });
    EXPECT_EQ(stage.app.mirorcc->Text3[3].text(), "51");
    stage.desk.dispatch([&] { stage.screen().quantita[0].set_text("0.0001"); });
    EXPECT_EQ(stage.app.mirorcc->Text3[3].text(), "50,");
    EXPECT_EQ(document_stage(0).app.mirorcc->Text3[3].text(), "");
}

/// The ways in which a fulfilment ends.
TEST(mirorca, EndsBookedAndMovedAndDocumentedAsTheUserWants) {
    const struct {
        const char* what;
        bool cancel;
        bool unload;
        std::vector<bool> answers;
        double stock;  // of A1, which had 100
        int movements;
        int documents;
    } cases[] = {
        {"booked alone", true, true, {true}, 100, 9, 7},
        {"booked and moved", false, true, {true, false}, 95, 11, 7},
        {"moved without the line that was refused", false, true, {false, false}, 95, 10, 7},
        {"documented without a movement", false, false, {true, false, false}, 100, 9, 8},
        {"all of it", false, true, {true, true, false, false}, 95, 11, 8},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        document_stage stage;
        if (!one.unload) stage.desk.dispatch([&] { stage.screen().scarica.toggle(); });
        if (one.cancel) {
            stage.desk.queue_answer(ui::answer::yes);
            stage.desk.dispatch([&] { stage.screen().comando[0].click(); });
        } else {
            stage.confirm(one.answers);
        }
        EXPECT_EQ(stage.row_now(1, 1).evaso, 5);
        EXPECT_EQ(stage.row_now(1, 1).evaso_flag, 1);
        EXPECT_EQ(stage.article_now(1).giacenza, one.stock);
        const rec_tot movements = stage.counter_now(contatori::magazzino);
        EXPECT_EQ(movements.quanti, one.movements);
        EXPECT_EQ(movements.modificato, one.unload && !one.cancel);
        const rec_tot documents = stage.counter_now(contatori::documenti_trasporto);
        EXPECT_EQ(documents.quanti, one.documents);
        EXPECT_EQ(documents.ultimo_numero, one.documents == 8 ? 42 : 41);
        EXPECT_EQ(snapshot(stage.company, "b1").size(), one.documents == 8 ? 2020U : 0U);
        EXPECT_EQ(stage.desk.active()->name(), "mirorc");
        EXPECT_EQ(stage.app.mirorc->elenco.text(1, mirorc::evasione), "EVASO");
        EXPECT_TRUE(stage.app.mirorca.loaded());
    }
}

TEST(mirorca, MovementRecordAndSnapshotSayWhatLeft) {
    document_stage stage;
    stage.desk.dispatch([&] {
        stage.screen().sc2[0].set_text("5");
        stage.screen().text1[0].set_text("rif. 7");
        stage.screen().Text.choose({2024, 5, 7});
    });
    stage.confirm({false, true, false, false});
    rec_mag moved;
    stage.company.files.mag.read(10, moved);
    EXPECT_EQ(moved.data.full(), "20240507");
    EXPECT_EQ(moved.documento.trimmed(), "rif. 7");
    EXPECT_EQ(moved.movimento.full(), "DDT n.42    ");
    EXPECT_EQ(moved.articolo, 1);
    EXPECT_EQ(moved.quantita, 5);
    EXPECT_EQ(moved.prezzo, 8.55);
    EXPECT_EQ(moved.data_reg, stage.app.data_sistema);
    EXPECT_EQ(stage.article_now(1).valore_scaricato, 8.55 * 5);
    rec_bol stored;
    stage.company.files.bol.read(8, stored);
    EXPECT_EQ(stored.numero, 42);
    EXPECT_EQ(stored.data.full(), "20240506");
    EXPECT_EQ(stored.progressivo, 1.0F);
    EXPECT_EQ(stored.cliente, 1);
    EXPECT_EQ(stored.senza_scarico, 0);
    EXPECT_EQ(stored.testo2.full(), std::string(36, ' '));

    const auto lines = snapshot(stage.company, "b1");
    const std::vector<std::string> head = {"1",
                                           "42",
                                           "06/05/2024",
                                           "",
                                           "1,25",
                                           "06/05/2024",
                                           "10:20",
                                           "0",
                                           "0",
                                           "00",
                                           "1",
                                           std::string(15, ' '),
                                           "A1" + std::string(13, ' '),
                                           "merce" + std::string(55, ' '),
                                           "PZ",
                                           "10",
                                           "5",
                                           "4",
                                           "5",
                                           "10"};
    ASSERT_EQ(lines.size(), 2020U);
    EXPECT_EQ((std::vector(lines.begin(), lines.begin() + 20)), head);
    EXPECT_EQ(lines[10 + 20], "0") << "the line that was refused is gone";
    EXPECT_EQ(lines[10 + 28], "0");
    EXPECT_EQ(
        (std::vector(lines.end() - 10, lines.end())),
        (std::vector<std::string>{"amm 1", "amm 2", "amm indirizzo", "06012", "amm citta",
                                  "corriere 1", "corriere 2", "corriere 3", "nota 1", "nota 2"}));
}

TEST(mirorca, DocumentCountersAtTheirLimits) {
    const struct {
        float progressive;
        float next;
        const char* file;
    } cases[] = {{0, 1, "b1"},
                 {16777216, 16777216, "b16777216"},
                 {1e9F, 1e9F, "b1000000000"},
                 {1.0001e9F, 1, "b1"},
                 {-3, -2, "b-2"},
                 {std::numeric_limits<float>::infinity(), 1, "b1"},
                 {std::numeric_limits<float>::quiet_NaN(), 0, "b0"}};
    for (const auto& one : cases) {
        document_stage stage;
        rec_tot counter{};
        counter.quanti = 32767;
        counter.ultimo_numero = 41;
        counter.progressivo = one.progressive;
        stage.company.files.tot.write(contatori::documenti_trasporto, counter);
        stage.app.mirorcc->Text3[0].set_text("40000");
        stage.desk.dispatch([&] { stage.screen().scarica.toggle(); });
        stage.confirm({true, false, false});
        counter = stage.counter_now(contatori::documenti_trasporto);
        EXPECT_EQ(counter.quanti, 32767);
        EXPECT_EQ(counter.ultimo_numero, 41);
        EXPECT_TRUE(counter.progressivo == one.next || one.next == 0) << counter.progressivo;
        EXPECT_EQ(snapshot(stage.company, one.file).size(), 2020U) << one.progressive;
        EXPECT_EQ(std::filesystem::file_size(stage.company.file("bol")), 32767U * 97);
    }
}

TEST(mirorca, ClosingWritesNothingAndBoxesStayTickedUntilThen) {
    document_stage stage;
    stage.desk.dispatch([&] { stage.screen().scarica.toggle(); });
    stage.confirm({false});
    const auto writes = stage.faults.writes;
    stage.open_worklist(1);
    stage.book();
    EXPECT_FALSE(stage.screen().scarica.on());
    EXPECT_EQ(stage.screen().artic[0].text(), "");
    stage.desk.dispatch([&] { stage.desk.close(stage.screen()); });
    EXPECT_EQ(stage.faults.writes, writes);
    EXPECT_EQ(stage.desk.active()->name(), "mirorc");
    EXPECT_FALSE(stage.app.mirorca.loaded());
}

}  // namespace
}  // namespace vantora::test
