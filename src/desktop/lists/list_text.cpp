#include "desktop/lists/list_text.h"

#include <algorithm>

#include "text/code_page.h"

namespace vantora::ui {

void add_tabbed_row(std::string& text, list_cells row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0) text += '\t';
        std::string cell(row[i]);
        std::ranges::replace_if(
            cell, [](char one) { return static_cast<unsigned char>(one) < ' '; }, ' ');
        text += to_utf8(cell);
    }
    text += '\n';
}

void add_csv_row(std::string& text, list_cells row) {
    for (std::size_t i = 0; i < row.size(); ++i) {
        if (i > 0) text += ';';
        const bool quoted = row[i].find_first_of(";\"\r\n\t") != std::string_view::npos;
        if (quoted) text += '"';
        for (const char one : to_utf8(row[i])) text.append(one == '"' ? 2 : 1, one);
        if (quoted) text += '"';
    }
    text += "\r\n";
}

}  // namespace vantora::ui
