#include "documents/print_file_reader.h"

#include <algorithm>
#include <cmath>

#include "store/text/code_page.h"
#include "store/text/number_text.h"
#include "store/text_reader.h"

namespace vantora {

namespace {

/// Positions beyond this are no place on any paper.
constexpr double farthest = 100'000;

struct reader {
    text_reader lines;
    std::size_t at = 0;  ///< number of the line last read
    std::optional<errore_di_stampa> error;

    void fail(std::string what) {
        if (!error) error = errore_di_stampa{std::move(what), at};
    }

    std::string line() {
        std::string text;
        ++at;
        if (!lines.line(text)) fail("the file ends inside a record");
        return text;
    }

    double number(bool may_be_empty = false) {
        std::string text(trimmed(line()));
        std::ranges::replace(text, ',', '.');
        if (text.empty() && may_be_empty) return 0;
        const auto value = whole_number_text(text);
        if (!value) {
            fail("a number is expected");
            return 0;
        }
        return *value;
    }

    double position() {
        const double value = number();
        if (std::abs(value) > farthest) fail("a position lies off every page");
        return value;
    }

    record_di_stampa record() {
        record_di_stampa made;
        const double type = number();
        if (type != 0 && type != 1 && type != 2 && type != 3 && type != 9) {
            fail("there is no such kind of record");
            return made;
        }
        made.tipo = static_cast<tipo_record>(static_cast<int>(type));
        if (made.tipo == tipo_record::pagina) {
            for (int i = 1; i < righe_per_record; ++i) line();
            return made;
        }
        made.x1 = position();
        made.y1 = position();
        made.x2 = position();
        made.y2 = position();
        made.corpo = number();
        made.colore = number(true);
        made.testo = line();
        made.carattere = line();
        made.grassetto = number();
        made.corsivo = number();
        return made;
    }
};

}  // namespace

std::variant<documento_di_stampa, errore_di_stampa> leggi_file_di_stampa(std::string_view content) {
    reader in{text_reader(std::string(content)), 0, {}};
    documento_di_stampa document;
    const std::string mark(trimmed(in.line()));
    document.orizzontale = mark == marca_orizzontale;
    if (mark != marca_verticale && mark != marca_orizzontale) in.fail("this is no print file");

    std::vector<record_di_stampa> page;
    while (!in.error && !in.lines.at_end()) {
        record_di_stampa one = in.record();
        if (one.tipo == tipo_record::pagina) {
            document.pagine.push_back(std::move(page));
            page.clear();
        } else {
            page.push_back(std::move(one));
        }
    }
    if (in.error) return *in.error;
    // What follows the last page record is a page of its own.
    if (!page.empty()) document.pagine.push_back(std::move(page));
    return document;
}

}  // namespace vantora
