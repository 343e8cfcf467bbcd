#include "entry/import_lines.h"

#include "orders/stored_lines.h"

namespace vantora {

namespace {

/// Copies the first rows of a block into the lines from `first` on, as far as there are lines. One
/// read for the rows, and one for each article.
template <class Row>
std::vector<int> copy_rows(righe_ordine& lines, int first, const channel<Row>& from,
                           const channel<rec_art>& articles, std::int64_t block) {
    const stored_rows<Row> rows(from, block);
    if (!rows.unread().empty()) return rows.unread();
    stored_lines into(articles);
    for (int number = first; number <= righe_ordine::massimo; ++number) {
        riga_ordine& line = lines[number];
        into.read(rows[number - first + 1], line);
        if (line.prezzo == 0) line.iva = 0;
    }
    return {};
}

}  // namespace

std::vector<int> aggiungi_preventivo(righe_ordine& lines, const archivi& files,
                                     std::int64_t block) {
    return copy_rows(lines, last_used_line(lines) + 1, files.prv, files.art, block);
}

std::vector<int> sostituisci_con_ordine(righe_ordine& lines, const archivi& files,
                                        std::int64_t block) {
    return copy_rows(lines, 1, files.orc, files.art, block);
}

}  // namespace vantora
