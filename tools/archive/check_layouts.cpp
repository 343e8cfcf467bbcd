#include "archive/check.h"
#include "store/suite_paths.h"
#include "store/suite_table.h"
#include "store/text_reader.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

constexpr const char* correct =
    "Correggerlo dove si disegnano i documenti, o rimettere il file da "
    "una copia.";

/// Blank counts as 0 and is no fault.
bool is_number_or_blank(std::string_view text) {
    return trimmed(text).empty() || whole_number_text(trimmed(text)).has_value();
}

void tell_value(const std::string& name, const std::string& place, std::string_view value,
                findings& into) {
    constexpr std::size_t shown_most = 40;
    into.push_back({gravity::warning, "layout-value", name,
                    place + ": «" + words_of(value.substr(0, shown_most)) + "» non è un numero",
                    correct});
}

struct layout_numbers {
    int line;  ///< of the six of an entry
    const char* name;
};

constexpr layout_numbers numbers_of_an_entry[] = {
    {0, "la posizione"}, {1, "il corpo"}, {5, "il colore"}};

/// Whether the layout asks for a drawing behind the page. A short layout counts as none at all.
bool check_layout(company_files& company, const std::string& name, const std::string& path,
                  findings& into) {
    constexpr int entries = 100;
    constexpr int lines_each = 6;
    constexpr int frame_switch = 99;
    text_reader reader(company.files().read_whole(path).value_or(""));
    bool frame = false;
    for (int entry = 1; entry <= entries; ++entry) {
        std::array<std::string, lines_each> lines;
        for (std::string& line : lines) {
            if (!reader.line(line)) return false;
        }
        for (const layout_numbers& one : numbers_of_an_entry) {
            const std::string& value = lines[static_cast<std::size_t>(one.line)];
            if (is_number_or_blank(value)) continue;
            tell_value(name,
                       "riga " + std::to_string((entry - 1) * lines_each + one.line + 1) + ", " +
                           one.name + " della voce " + std::to_string(entry),
                       value, into);
        }
        if (entry == frame_switch) frame = number_at_head(lines[0]) == 1;
    }
    return frame;
}

void check_drawing(company_files& company, const std::string& name, const std::string& path,
                   findings& into) {
    constexpr int elements_most = 500;
    constexpr int values_each = 9;
    const std::string obstacle = obstacle_at(company, path);
    const auto tell = [&](std::string what) {
        into.push_back({gravity::warning, "drawing", name, std::move(what), correct});
    };
    if (!obstacle.empty()) return tell(obstacle + ": il documento si stampa senza sfondo");
    text_reader reader(company.files().read_whole(path).value_or(""));
    std::string value;
    if (!reader.item(value) || !whole_number_text(trimmed(value))) {
        return tell("la prima riga non dice quanti elementi ci sono: lo sfondo resta bianco");
    }
    const double said = number_at_head(value);
    if (said < 0 || said > elements_most) {
        return tell("dice " + plain_text(said) + " elementi, e se ne leggono al massimo 500");
    }
    for (int element = 1; element <= static_cast<int>(said); ++element) {
        std::string text;
        bool whole = reader.line(text) && reader.line(text);
        for (int i = 0; i < values_each && whole; ++i) {
            whole = reader.item(value);
            if (!whole || is_number_or_blank(value)) continue;
            tell_value(name, "elemento " + std::to_string(element), value, into);
        }
        if (!whole) {
            return tell("finisce all'elemento " + std::to_string(element) + " di " +
                        plain_text(said));
        }
    }
}

void check_rates(company_files& company, findings& into) {
    const auto table = read_suite_table(company.files(), company.numero_azienda());
    for (std::size_t code = 1; code < table.iva.aliquota_iva.size(); ++code) {
        const std::string& rate = table.iva.aliquota_iva[code];
        const auto number = whole_number_text(trimmed(rate));
        if (trimmed(rate).empty() || (number && *number >= 0 && *number <= 100)) continue;
        into.push_back({gravity::warning, "vat-rate", "vantora.tab",
                        "l'aliquota " + two_digits(static_cast<int>(code)) + " («" +
                            words_of(rate) + "») non è una percentuale",
                        "Correggerla dove si tengono le tabelle: così l'IVA si calcola male."});
    }
}

}  // namespace

void check_layouts(company_files& company, findings& into) {
    struct document {
        const char* layout;
        const char* drawing;
    };
    for (const document& one : {document{"lyo", "lko"}, document{"lyb", "lkb"}}) {
        const auto path = [&](const char* extension) {
            return company_path(company.numero_azienda(), extension);
        };
        if (check_layout(company, std::string("vantora.") + one.layout, path(one.layout), into)) {
            check_drawing(company, std::string("vantora.") + one.drawing, path(one.drawing), into);
        }
    }
    check_rates(company, into);
}

}  // namespace vantora::archive
