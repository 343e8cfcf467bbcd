#include "desktop/lists/list_saving.h"

#include "desktop/dialogs/file_dialog.h"
#include "desktop/lists/list_text.h"
#include "desktop/look/words.h"
#include "text/csv.h"

namespace vantora::ui::desktop {

namespace {

using add_row = void (*)(std::string&, list_cells);

void add_cells(std::string& text, const shown_list& list, int row, add_row add) {
    std::vector<std::string_view> cells;
    for (const int column : list.columns()) cells.push_back(list.text(row, column));
    add(text, cells);
}

}  // namespace

std::string tabbed_text(const shown_list& list, const std::set<int>& rows) {
    std::string text;
    for (const int row : rows) add_cells(text, list, row, add_tabbed_row);
    return text;
}

std::string csv_text(const shown_list& list) {
    std::string text(utf8_mark);
    std::vector<std::string_view> heads;
    for (const int column : list.columns()) heads.push_back(list.head(column));
    add_csv_row(text, heads);
    int last = list.rows() - 1;
    while (!list.holds_text(last) && last >= 0) --last;
    for (int row = 0; row <= last; ++row) add_cells(text, list, row, add_csv_row);
    return text;
}

void save_list(const shown_list& list, const QString& called, QWidget* above) {
    const QString file = ask_where_to_save(QString::fromUtf8(words::save_list), called,
                                           {QString::fromUtf8(words::csv_files), "csv"}, above);
    if (file.isEmpty()) return;
    save_whole(file, QByteArray::fromStdString(csv_text(list)), above);
}

}  // namespace vantora::ui::desktop
