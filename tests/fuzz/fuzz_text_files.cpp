// Whatever the suite's text files hold, loading them ends, with values in their ranges.

#include <map>
#include <memory>

#include "documents/document_tables.h"
#include "fuzz/fuzz_driver.h"
#include "store/values.h"

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

}  // namespace

std::vector<std::string> fuzz_seeds() {
    std::string layout;
    for (int i = 0; i < 600; ++i) layout += std::to_string(i) + "\r\n";
    std::string tables;
    for (int i = 0; i < 300; ++i) tables += "voce " + std::to_string(i) + ", resto\r\n\"a,b\"\r\n";
    return {"0,1936.27,\"ITL\",\"EUR\",3\r\nsesta\r\nsettima\r\n",
            "30,950,30,950,2\r\n4\r\nArial\r\n9\r\n0\r\n0\r\n16777215\r\n1E300\r\n-5\r\n",
            layout,
            tables,
            "3\r\ntesto\r\nArial\r\n1,2,3,4,5,6,7,8,9\r\n",
            "\n\n\n",
            ""};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    one_content files(std::string(reinterpret_cast<const char*>(data), size));
    parametri parameters;
    carica_parametri(parameters, files);
    const std::string& mode = parameters.parametri_valuta[valuta_slot::modo_decimali];
    require(mode == "0" || mode == "1");
    require(parameters.gnr.formato_gnr.full() == "9");
    const valuta currency(parameters);
    require(currency.decimali_prezzo >= 2 && currency.decimali_prezzo <= 5);
    formato_prezzo(parameters.tabella_stampa[0].sfondo, currency);

    tabelle_documento tables;
    carica_documento(tables, tipo_documento::ordine, parameters, files);
    require(!parameters.parametri_valuta[valuta_slot::cartella_pdf].empty());
    require(leggi_tabella_suite(files, 1).pagamenti.size() <= 60);
    const auto drawing = std::make_unique<disegno>();
    carica_disegno(*drawing, tipo_documento::documento_trasporto, 1, files);
    return 0;
}
