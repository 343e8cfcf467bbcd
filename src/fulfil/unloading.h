#pragma once

#include <functional>
#include <string>

#include "orders/order_lines.h"
#include "store/archive_change.h"
#include "store/money.h"

namespace vantora {

/// What the warehouse movements of one document have in common.
struct movimento_magazzino {
    std::string data;       ///< yyyymmdd
    std::string documento;  ///< reference
    std::string movimento;  ///< kind of movement as typed
    double data_reg = 0;    ///< date number of the confirmation
    std::int16_t cliente = 0;
};

/// The day of a movement as it is stored; empty if the text is no date of ten characters.
std::string movement_day(std::string_view dd_mm_yyyy);

/// Takes the goods of a document out of the warehouse: for each line with a quantity of an article
/// the article is written, then its movement; behind all of them, with all of it on the disk, the
/// counter that makes the movements count. Before anything is written, and with no other station
/// kept waiting, `unload_anyway` is asked about each line that takes more than there is in stock as
/// the lines before leave it; on no the line is emptied and `line_dropped` told. Where other
/// stations took from the stock meanwhile, further lines are asked about.
///
/// Has no protection: what can't be read or written ends the program, and the articles and
/// movements written so far stay, uncounted. `articles`: how many.
change_outcome scarica_magazzino(
    archivi& files, const movimento_magazzino& movement, righe_ordine& lines, std::int16_t articles,
    const valuta& amounts,
    const std::function<bool(const riga_ordine&, const rec_art&)>& unload_anyway,
    const std::function<void()>& line_dropped);

}  // namespace vantora
