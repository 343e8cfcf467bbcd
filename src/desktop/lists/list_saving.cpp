#include "desktop/lists/list_saving.h"

#include <algorithm>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/words.h"
#include "text/code_page.h"
#include "text/csv.h"

namespace vantora::ui::desktop {

namespace {

/// The whole list with its heads as Italian spreadsheets open it.
std::string csv_text(const shown_list& list) {
    std::string text(utf8_mark);
    const auto columns = list.columns();
    const auto add_row = [&](const auto& cell_in) {
        for (const int column : columns) {
            if (column != columns.front()) text += ';';
            add_csv_cell(text, to_utf8(harmless(cell_in(column))), ';');
        }
        text += "\r\n";
    };
    add_row([&](int column) { return list.head(column); });
    int last = list.rows() - 1;
    while (!list.holds_text(last) && last >= 0) --last;
    for (int row = 0; row <= last; ++row) {
        add_row([&](int column) { return list.text(row, column); });
    }
    return text;
}

}  // namespace

std::string harmless(std::string_view cell) {
    constexpr std::string_view begins_formula = "=@\t\r\n";
    const auto passed_over = [](unsigned char one) { return one <= ' ' || one == '"'; };
    const auto begin = std::ranges::find_if_not(cell, passed_over);
    const std::string_view shown(begin, cell.end());
    const bool is_signed = shown.starts_with('+') || shown.starts_with('-');
    const std::string_view rest = shown.substr(is_signed ? 1 : 0);
    const bool is_number = rest.find_first_not_of("0123456789., ") == std::string_view::npos;
    const bool is_rule = cell.find_first_not_of("-+= ") == std::string_view::npos;
    const bool is_formula = is_signed ? !is_number
                                      : shown.find_first_of(begins_formula) == 0 ||
                                            cell.find_first_of(begins_formula) == 0;
    return (is_formula && !is_rule ? "'" : "") + std::string(cell);
}

std::string tabbed_text(const shown_list& list, const std::set<int>& rows) {
    std::string text;
    const auto columns = list.columns();
    for (const int row : rows) {
        for (const int column : columns) {
            if (column != columns.front()) text += '\t';
            std::string cell = harmless(list.text(row, column));
            std::ranges::replace_if(
                cell, [](char one) { return static_cast<unsigned char>(one) < ' '; }, ' ');
            text += to_utf8(cell);
        }
        text += '\n';
    }
    return text;
}

void save_list(const shown_list& list, const QString& called, QWidget* above) {
    const QString file =
        ask_where_to_save(words::save_list, called, {words::csv_files, "csv"}, above);
    if (file.isEmpty()) return;
    save_whole(file, QByteArray::fromStdString(csv_text(list)), above);
}

}  // namespace vantora::ui::desktop
