// Whatever a print file holds, reading it ends, with numbers that drawing can take.

#include <cmath>

#include "documents/print_file_reader.h"
#include "fuzz/fuzz_driver.h"

namespace {

using namespace vantora;

std::string record(const std::string& kind, const std::string& text) {
    return kind + "\r\n 10 \r\n-2.5 \r\n 100 \r\n 1 \r\n 9 \r\n 255 \r\n" + text +
           "\r\nArial\r\n 1 \r\n0\r\n";
}

}  // namespace

std::vector<std::string> fuzz_seeds() {
    const std::string page = " 9 \r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n";
    const std::string marks = record(" 3 ", "Totale") + record(" 2 ", "") + record(" 1 ", "") +
                              record(" 0 ", "\\logo.bmp");
    return {"#FILEFORMAT=KLP-RTO\r\n" + marks + page + marks + page,
            "#FILEFORMAT=KLP-RTO-O\n3\n1,5\n2\n0\n0\n9\n0\ntesto\nArial\n0\n0\n",
            "#FILEFORMAT=KLP-RTO\r\n", ""};
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = leggi_file_di_stampa({reinterpret_cast<const char*>(data), size});
    if (const auto* error = std::get_if<errore_di_stampa>(&read)) {
        require(error->riga >= 1 && error->riga <= size + righe_per_record);
        return 0;
    }
    std::size_t records = 0;
    for (const auto& page : std::get<documento_di_stampa>(read).pagine) {
        records += page.size() + 1;
        for (const auto& one : page) {
            require(one.tipo != tipo_record::pagina);
            for (const double value : {one.x1, one.y1, one.x2, one.y2, one.corpo}) {
                require(std::abs(value) <= 100'000);
            }
            require(std::isfinite(one.colore));
        }
    }
    require(records <= size / righe_per_record + 1);
    return 0;
}
