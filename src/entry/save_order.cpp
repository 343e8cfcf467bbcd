#include "entry/save_order.h"

#include <map>

#include "orders/stock.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

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

}  // namespace vantora
