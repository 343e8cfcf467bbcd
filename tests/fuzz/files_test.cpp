// Whatever stands in a text file of the suite, a print file, a drawing or a picture: reading it
// ends, with values in their ranges, and so does drawing it.

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>

#include "demo/demo_company.h"
#include "documents/print_file_reader.h"
#include "documents/printed_document.h"
#include "support/file_bytes.h"
#include "support/long_sessions.h"
#include "support/picture_file.h"
#include "support/scratch_folder.h"
#include "ui/desk_stage.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora {
namespace {

/// Every file of the drive has the same content.
class one_content final : public file_port {
 public:
    explicit one_content(std::string content) : content_(std::move(content)) {}

    std::unique_ptr<file> open_records(std::string_view) override { return nullptr; }
    std::optional<std::string> read_whole(std::string_view) override { return content_; }
    bool exists(std::string_view) override { return true; }
    std::unique_ptr<file> create(std::string_view) override { return nullptr; }
    bool create_folder(std::string_view) override { return false; }
    std::filesystem::path locate(std::string_view) const override { return {}; }

 private:
    std::string content_;
};

void read_as_print_file(std::string_view content) {
    const auto read = read_print_file(content);
    if (const auto* error = std::get_if<errore_di_stampa>(&read)) {
        EXPECT_GE(error->riga, 1U);
        EXPECT_LE(error->riga, content.size() + righe_per_record);
        return;
    }
    for (const auto& page : std::get<documento_di_stampa>(read).pagine) {
        for (const auto& one : page) {
            EXPECT_TRUE(one.tipo != tipo_record::pagina && std::isfinite(one.colore));
            for (const double value : {one.x1, one.y1, one.x2, one.y2, one.corpo}) {
                EXPECT_LE(std::abs(value), 100'000);
            }
        }
    }
}

void read_as_parameters(parametri& parameters, one_content& files) {
    carica_parametri(parameters, files);
    const std::string& mode = parameters.parametri_valuta[valuta_slot::modo_decimali];
    EXPECT_TRUE(mode == "0" || mode == "1");
    EXPECT_EQ(parameters.gnr.formato_gnr.full(), "9");
    const valuta currency(parameters);
    EXPECT_TRUE(currency.decimali_prezzo >= 2 && currency.decimali_prezzo <= 5);
    formato_prezzo(parameters.tabella_stampa[0].sfondo, currency);
    EXPECT_LE(read_suite_table(files, 1).pagamenti.size(), 60U);
}

void read_as_picture(std::string_view content) {
    const auto picture = ui::pixbuf_decoder().decode(content).image;
    if (!picture) return;
    const auto points =
        static_cast<std::size_t>(picture->width) * static_cast<std::size_t>(picture->height);
    EXPECT_LE(points, 4'000'000U);
    EXPECT_EQ(picture->points.size(), points);
}

/// Layout, drawing and pictures of a document all have the content.
void print_document(one_content& files) {
    ui::test::desk_stage around;
    ui::pixbuf_decoder decoder;
    program app{files, around.desk, decoder};
    const auto tables = std::make_unique<tabelle_documento>();
    carica_documento(*tables, tipo_documento::ordine, app.parameters, files);
    EXPECT_NE(app.parameters.parametri_valuta[valuta_slot::cartella_pdf], "");
    tables->tabella_layout[99].posizione = "1";  // the drawing is wanted
    const auto drawing = std::make_unique<disegno>();
    carica_disegno(*drawing, tipo_documento::documento_trasporto, 1, files);
    righe_ordine lines;
    for (int number = 1; number <= 3; ++number) lines[number].descrizione = "riga";
    ui::picture figure;
    for (int i = 0; i < 2; ++i) around.user.answers.keep(ui::answer::yes);
    stampa_documento(app,
                     {tipo_documento::ordine, {}, lines, {}, {}, {}, *tables, *drawing, figure});
    for (const auto& job : around.paper.take_jobs()) EXPECT_LE(job.pages.size(), 200U);
}

/// What a company has of texts and pictures, a print file, and pictures of other kinds.
std::vector<std::string> good_contents() {
    std::string printed = "#FILEFORMAT=KLP-RTO\r\n";
    for (const std::string kind : {" 3 ", " 2 ", " 1 ", " 0 ", " 9 "}) {
        const std::string bottom = kind == " 2 " ? "1E9" : " 1 ";  // one beyond all paper
        printed += kind + "\r\n 10 \r\n-2.5 \r\n 100 \r\n" + bottom + "\r\n 9 \r\n 255 \r\n" +
                   "\\logo.bmp\r\nArial\r\n 1 \r\n0\r\n";
    }
    std::vector<std::string> all{
        printed, test::picture_file(10, 10),
        "/* XPM */ static char *x[] = {\"2 2 1 1\", \"a c #FF0000\", \"aa\", \"aa\"};", ""};
    const test::scratch_folder folder;
    demo::make_company({.numero_azienda = 1}, folder.path());
    for (const auto& [name, content] : test::files_under(folder.path())) {
        if (content.size() < 10'000) all.push_back(content);
    }
    return all;
}

/// Changes some bytes, takes a stretch out, doubles one, or cuts the end off.
void mutate(std::string& input, std::mt19937& random) {
    for (auto changes = random() % 7; changes > 0; --changes) {
        const std::size_t at = input.empty() ? 0 : random() % input.size();
        switch (random() % 6) {
            case 0:
                input.resize(at);
                break;
            case 1:
                input.erase(at, random() % 40);
                break;
            case 2:
                input.insert(at, input.substr(at, random() % 40));
                break;
            case 3:
                input.insert(at, 1, "\r\n,\"\0\xFF-9E."[random() % 10]);
                break;
            default:
                if (!input.empty()) input[at] = static_cast<char>(random());
        }
    }
}

TEST(any_file, IsReadAndDrawnWithValuesInTheirRanges) {
    const auto good = good_contents();
    const unsigned seeds = test::long_sessions() ? 6000 : 1200;
    for (unsigned seed = 0; seed < seeds && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        std::string content = good[random() % good.size()];
        mutate(content, random);
        read_as_print_file(content);
        read_as_picture(content);
        one_content files(content);
        parametri parameters;
        read_as_parameters(parameters, files);
        print_document(files);
    }
}

}  // namespace
}  // namespace vantora
