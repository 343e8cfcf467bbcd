// Whatever stands in a text file of the suite, a print file, a drawing or a picture: reading it
// ends, with values in their ranges, and so does drawing it.

#include <cmath>
#include <memory>

#include "documents/print_file_reader.h"
#include "documents/printed_document.h"
#include "fuzz/fuzz_driver.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace {

using namespace vantora;

/// Every file of the drive has the same content.
class one_content final : public file_port {
 public:
    explicit one_content(std::string content) : content_(std::move(content)) {}

    std::unique_ptr<file> open_records(std::string_view) override { return nullptr; }
    std::optional<std::string> read_whole(std::string_view) override { return content_; }
    bool exists(std::string_view) override { return true; }
    std::unique_ptr<file> create(std::string_view) override { return nullptr; }
    bool create_folder(std::string_view) override { return false; }

 private:
    std::string content_;
};

void read_as_print_file(std::string_view content) {
    const auto read = leggi_file_di_stampa(content);
    if (const auto* error = std::get_if<errore_di_stampa>(&read)) {
        require(error->riga >= 1 && error->riga <= content.size() + righe_per_record);
        return;
    }
    for (const auto& page : std::get<documento_di_stampa>(read).pagine) {
        for (const auto& one : page) {
            require(one.tipo != tipo_record::pagina && std::isfinite(one.colore));
            for (const double value : {one.x1, one.y1, one.x2, one.y2, one.corpo}) {
                require(std::abs(value) <= 100'000);
            }
        }
    }
}

void read_as_parameters(parametri& parameters, one_content& files) {
    carica_parametri(parameters, files);
    const std::string& mode = parameters.parametri_valuta[valuta_slot::modo_decimali];
    require(mode == "0" || mode == "1");
    require(parameters.gnr.formato_gnr.full() == "9");
    const valuta currency(parameters);
    require(currency.decimali_prezzo >= 2 && currency.decimali_prezzo <= 5);
    formato_prezzo(parameters.tabella_stampa[0].sfondo, currency);
    require(leggi_tabella_suite(files, 1).pagamenti.size() <= 60);
}

void read_as_picture(std::string_view content) {
    ui::pixbuf_decoder decoder;
    const auto picture = decoder.decode(content);
    if (!picture.image) return;
    const auto points = static_cast<std::size_t>(picture.image->width) *
                        static_cast<std::size_t>(picture.image->height);
    require(points <= 4'000'000 && picture.image->points.size() == points);
}

/// Layout, drawing and pictures of a document all have the content.
void print_document(one_content& files) {
    ui::test::bench_desk around;
    ui::pixbuf_decoder decoder;
    program app{files, around.desk, decoder};
    const auto tables = std::make_unique<tabelle_documento>();
    carica_documento(*tables, tipo_documento::ordine, app.parameters, files);
    require(!app.parameters.parametri_valuta[valuta_slot::cartella_pdf].empty());
    tables->tabella_layout[99].posizione = "1";  // the drawing is wanted
    const auto drawing = std::make_unique<disegno>();
    carica_disegno(*drawing, tipo_documento::documento_trasporto, 1, files);
    righe_ordine lines;
    for (int number = 1; number <= 3; ++number) lines[number].descrizione = "riga";
    ui::picture figure;
    for (int i = 0; i < 2; ++i) around.user.answers.keep(ui::answer::yes);
    stampa_documento(app,
                     {tipo_documento::ordine, {}, lines, {}, {}, {}, *tables, *drawing, figure});
    for (const auto& job : around.paper.take_jobs()) require(job.pages.size() <= 200);
}

}  // namespace

std::vector<std::string> fuzz_seeds() {
    std::string tables;
    for (int i = 0; i < 600; ++i) tables += "voce " + std::to_string(i) + ", resto\r\n";
    std::string drawing = "5\r\n";
    for (const char* kind : {"1", "2", "3", "4", "4"}) {
        drawing += std::string("testo\r\nArial\r\n") + kind + ",10,20,300,-5,255,1,1,0\r\n";
    }
    std::string printed = "#FILEFORMAT=KLP-RTO\r\n";
    for (const char* kind : {" 3 ", " 2 ", " 1 ", " 0 ", " 9 "}) {
        printed += std::string(kind) + "\r\n 10 \r\n-2.5 \r\n 100 \r\n 1 \r\n 9 \r\n 255 " +
                   "\r\n\\logo.bmp\r\nArial\r\n 1 \r\n0\r\n";
    }
    return {"0,1936.27,\"ITL\",\"EUR\",3\r\nsesta\r\nsettima\r\n",
            "30,950,30,950,2\r\n4\r\nArial\r\n9\r\n0\r\n0\r\n16777215\r\n1E300\r\n-5\r\n",
            tables,
            drawing,
            printed,
            "P6 10 10 255\n" + std::string(300, '\x7F'),
            "/* XPM */ static char *x[] = {\"2 2 1 1\", \"a c #FF0000\", \"aa\", \"aa\"};",
            ""};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string content(reinterpret_cast<const char*>(data), size);
    read_as_print_file(content);
    read_as_picture(content);
    one_content files(content);
    parametri parameters;
    read_as_parameters(parameters, files);
    print_document(files);
    return 0;
}
