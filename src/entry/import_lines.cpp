#include "entry/import_lines.h"

#include <span>
#include <vector>

#include "entry/stored_lines.h"
#include "store/records/order_block.h"

namespace vantora {

namespace {

/// Copies the first rows of a block into the lines from `first` on, as far as there are lines. One
/// read for the rows, and one for each article.
template <class Row>
void copy_rows(righe_ordine& lines, int first, const channel<Row>& rows,
               const channel<rec_art>& articles, std::int64_t block) {
    std::vector<Row> read(righe_blocco);
    const auto count = static_cast<std::size_t>(righe_ordine::massimo - first + 1);
    const bool together =
        count > 0 && rows.read_block(block_record(block, 1), std::span(read.data(), count));
    stored_lines into(articles);
    Row row;
    for (std::size_t i = 0; i < count; ++i) {
        if (together) {
            row = read[i];
        } else {
            rows.read(block_record(block, static_cast<std::int64_t>(i) + 1), row);
        }
        riga_ordine& line = lines[first + static_cast<int>(i)];
        into.read(row, line);
        if (line.prezzo == 0) line.iva = 0;
    }
}

}  // namespace

int ultima_riga_usata(const righe_ordine& lines) {
    for (int number = righe_ordine::massimo; number >= 1; --number) {
        const riga_ordine& line = lines[number];
        const bool used = !line.descrizione.trimmed().empty() || !line.codice.trimmed().empty() ||
                          line.prezzo != 0;
        if (used) return number;
    }
    return 0;
}

void aggiungi_preventivo(righe_ordine& lines, const archivi& files, std::int64_t block) {
    copy_rows(lines, ultima_riga_usata(lines) + 1, files.prv, files.art, block);
}

void sostituisci_con_ordine(righe_ordine& lines, const archivi& files, std::int64_t block) {
    copy_rows(lines, 1, files.orc, files.art, block);
}

}  // namespace vantora
