#include "entry/save_order.h"

#include <algorithm>
#include <map>
#include <vector>

#include "orders/order_rows.h"
#include "orders/stock.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

// New orders --------------------------------------------------------------------------------------

namespace {

/// The stock that a new order moves, so that it can be put back if the order comes to nothing.
class moved_stock {
 public:
    moved_stock(archive_change& change, channel<rec_art>& articles, int count)
        : change_(change), articles_(articles), count_(count) {}

    void order(const riga_ordine& line, bool commit) {
        if (line.quantita == 0) return;
        rec_art before;
        rec_art after;
        if (change_article(change_, articles_, line.articolo, count_, [&](rec_art& article) {
                before = article;
                order_stock(article, line.quantita, commit);
                after = article;
            })) {
            moved_.try_emplace(line.articolo, moved{before, {}}).first->second.after = after;
        }
    }

    [[nodiscard]] bool any() const { return !moved_.empty(); }

    /// False if an article can't be read or written.
    bool put_back() {
        bool all = true;
        for (const auto& [number, figures] : moved_) {
            all &= change_article(change_, articles_, number, count_, [&](rec_art& article) {
                restore_stock(article, figures.before, figures.after);
            });
        }
        return !any() || (change_.flush(articles_) && all);
    }

 private:
    struct moved {
        rec_art before;
        rec_art after;
    };

    archive_change& change_;
    channel<rec_art>& articles_;
    int count_;
    std::map<int, moved> moved_;
};

/// Writes the block, each row behind the stock of its article. False at the first row that refuses,
/// or if the disk doesn't take them all.
bool write_block(archive_change& change, archivi& files, int block, const testata_registrata& head,
                 double data_reg, const righe_ordine& lines, moved_stock& stock) {
    rec_orc row;
    for (int number = 1; number <= righe_blocco; ++number) {
        const riga_ordine& line = lines[number];
        fill_head(row, head, static_cast<std::size_t>(number));
        fill_line(row, line);
        row.data_reg = data_reg;
        stock.order(line, head.impegno);
        if (!change.write(files.orc, block_record(block, number), row)) return false;
    }
    if (stock.any()) change.flush(files.art);
    return change.flush(files.orc);
}

}  // namespace

change_outcome salva_nuovo_ordine(archivi& files, const testata_registrata& head, double data_reg,
                                  const righe_ordine& lines, std::int16_t articles) {
    archive_change change(files);
    change.recorded_as("ordine nuovo", head.numero);
    rec_tot counter;
    change.counts(files.tot, contatori::ordini, counter, files.orc);
    const int block = counter.quanti + 1;
    change.writes(files.orc, block_record(block, 1), righe_blocco);
    if (lines_with_stock(lines, articles) > 0) change.changes(files.art);
    if (!change.may_write()) return change.finish();

    counter.quanti = static_cast<std::int16_t>(block);
    counter.ultimo_numero = to_int16(number_at_head(head.numero)).value_or(counter.ultimo_numero);
    moved_stock stock(change, files.art, articles);
    if (write_block(change, files, block, head, data_reg, lines, stock) &&
        change.write(files.tot, contatori::ordini, counter)) {
        change.flush(files.tot);
    } else {
        change.take_back(stock.put_back());
    }
    return change.finish();
}

// Orders that are there ---------------------------------------------------------------------------

namespace {

/// Whether taking the stored rows out moves any stock; if they can't be told, they may.
bool rows_move_stock(const archivi& files, const ordine_esistente& order) {
    std::vector<rec_orc> rows(righe_blocco);
    if (!files.orc.read_block(block_record(order.visto.registrazione, 1), rows)) return true;
    return std::ranges::any_of(rows, [&](const rec_orc& row) {
        return row.quantita != 0 && is_article(row.articolo, order.articoli);
    });
}

/// Takes what a stored row still has open out of its article. The check box counts as it is now,
/// not as it was when the row was stored.
bool undo_row(archive_change& change, archivi& files, const ordine_esistente& order,
              const rec_orc& row) {
    if (row.quantita == 0) return false;
    return change_article(change, files.art, row.articolo, order.articoli, [&](rec_art& article) {
        release_stock(article, open_quantity(row), order.impegno);
    });
}

bool apply_line(archive_change& change, archivi& files, const ordine_esistente& order,
                const riga_ordine& line) {
    if (line.quantita == 0) return false;
    return change_article(change, files.art, line.articolo, order.articoli, [&](rec_art& article) {
        order_stock(article, line.quantita - line.evaso, order.impegno);
    });
}

/// The rows that are going to be written over are those awaited, or the user is asked first.
void look_for_other_rows(archive_change& change, const archivi& files,
                         const ordine_esistente& order, const orders_since& meanwhile) {
    if (!order.attese || !change.may_write()) return;
    const stored_rows<rec_orc> there(files.orc, order.visto.registrazione);
    change.require(there.unread().empty(), files.orc.name());
    if (order.attese->same_as(there)) return;
    change.give_up(meanwhile.took_away(order.visto, there[1]) ? change_outcome::order_moved
                                                              : change_outcome::to_be_asked);
}

/// Goes over the order's rows: what a stored row still had open is taken out of its article, then
/// `renew(change, number, row)` makes the row new and tells whether it moved stock itself.
template <class Renew>
change_outcome change_rows(archivi& files, const ordine_esistente& order, bool lines_move_stock,
                           const char* called, const Renew& renew) {
    archive_change change(files);
    change.recorded_as(called, std::string(order.visto.numero.trimmed()));
    rec_tot now;
    change.reads(files.tot, contatori::ordini, now);
    change.writes(files.orc, block_record(order.visto.registrazione, 1), righe_blocco);
    if (lines_move_stock || rows_move_stock(files, order)) change.changes(files.art);
    const orders_since meanwhile(now, order.contatore, files.orc);
    look_for_other_rows(change, files, order, meanwhile);

    bool recognised = false;
    bool deleted = false;  // by another station, which took these rows out of their articles
    bool stock_moved = false;
    rec_orc row;
    for (int number = 1; change.may_write() && number <= righe_blocco; ++number) {
        const std::int64_t record = block_record(order.visto.registrazione, number);
        if (!change.read(files.orc, record, row)) continue;
        if (!recognised && meanwhile.took_away(order.visto, row)) {
            change.give_up(change_outcome::order_moved);
            break;
        }
        deleted = recognised ? deleted : row.annullato == 1;
        recognised = true;
        if (!deleted || row.annullato != 1) stock_moved |= undo_row(change, files, order, row);
        stock_moved |= renew(change, number, row);
        change.write(files.orc, record, row);
    }
    if (change.may_write()) {
        if (stock_moved) change.flush(files.art);
        change.flush(files.orc);
    }
    return change.finish();
}

}  // namespace

change_outcome salva_ordine(archivi& files, const ordine_esistente& order,
                            const testata_registrata& head, bool evaso, const righe_ordine& lines) {
    return change_rows(files, order, lines_with_stock(lines, order.articoli) > 0, "ordine cambiato",
                       [&](archive_change& change, int number, rec_orc& row) {
                           const riga_ordine& line = lines[number];
                           fill_head(row, head, static_cast<std::size_t>(number));
                           fill_line(row, line);
                           row.evaso = line.evaso;
                           row.evaso_flag = evaso ? 1 : 0;
                           row.annullato = 0;
                           return apply_line(change, files, order, line);
                       });
}

change_outcome elimina_ordine(archivi& files, const ordine_esistente& order) {
    return change_rows(files, order, false, "ordine eliminato",
                       [](archive_change&, int, rec_orc& row) {
                           row.annullato = 1;
                           return false;
                       });
}

}  // namespace vantora
