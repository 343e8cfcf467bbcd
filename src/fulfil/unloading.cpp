#include "fulfil/unloading.h"

#include <array>
#include <map>
#include <utility>

#include "errors/run_time_errors.h"
#include "orders/stock.h"
#include "orders/totals.h"
#include "text/dates.h"
#include "text/int16.h"

namespace vantora {

namespace {

rec_mag movement_of(const movimento_magazzino& all, const riga_ordine& line, double price) {
    rec_mag one;
    one.data = all.data;
    one.documento = all.documento;
    one.tipo = 1;
    one.movimento = all.movimento;
    one.data_reg = all.data_reg;
    one.articolo = line.articolo;
    one.cliente = all.cliente;
    one.quantita = line.quantita;
    one.prezzo = price;
    one.segno = 1;
    one.zero = 0;
    return one;
}

/// The line is gone from the document too; its discounts are worth nothing without a price.
void drop_line(riga_ordine& line) {
    const std::int16_t sc1 = line.sc1;
    const std::int16_t sc2 = line.sc2;
    line = riga_ordine{};
    line.sc1 = sc1;
    line.sc2 = sc2;
}

/// Hands over each line that takes more than there is in stock, with its article, in order and on
/// the stock as the lines before would leave it; `visit` tells whether the line leaves all the
/// same.
void visit_short_lines(const archivi& files, const righe_ordine& lines, int articles,
                       const std::function<bool(int, const rec_art&)>& visit) {
    std::map<int, rec_art> stock;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        const riga_ordine& line = lines[number];
        if (line.quantita == 0 || !is_article(line.articolo, articles)) continue;
        auto known = stock.find(line.articolo);
        if (known == stock.end()) {
            rec_art article;
            if (!files.art.read(line.articolo, article)) throw device_error(files.art.name());
            known = stock.emplace(line.articolo, article).first;
        }
        const double quantity = line.quantita;
        rec_art& article = known->second;
        if (quantity > article.giacenza && !visit(number, article)) continue;
        unload_stock(article, quantity, 0);
    }
}

/// Writes what leaves: each article, then its movement; the counter behind all of them, once the
/// disk has them.
void unload(archive_change& change, archivi& files, const movimento_magazzino& movement,
            const righe_ordine& lines, int articles, const valuta& amounts, rec_tot counter) {
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        const riga_ordine& line = lines[number];
        if (line.quantita == 0 || !is_article(line.articolo, articles)) continue;
        rec_art article;
        change.read(files.art, line.articolo, article);
        const double price = checked(net_price(line, amounts));
        unload_stock(article, line.quantita, price);
        change.write(files.art, line.articolo, article);
        counter.quanti = to_int16(counter.quanti + 1).value_or(counter.quanti);
        change.write(files.mag, counter.quanti, movement_of(movement, line, price));
    }
    change.flush(files.art);
    if (!change.flush(files.mag)) return;
    counter.modificato = 1;
    change.write(files.tot, contatori::magazzino, counter);
    change.flush(files.tot);
}

/// Goods don't leave if the document that goes with them can't be counted any more.
void look_for_a_document(archive_change& change, const archivi& files) {
    rec_tot counter;
    const bool known = files.tot.read(contatori::documenti_trasporto, counter);
    if (known && counter.quanti == INT16_MAX) {
        change.give_up(change_outcome::full, files.bol.name());
    }
}

}  // namespace

std::string movement_day(std::string_view dd_mm_yyyy) {
    const std::string_view typed = trimmed(dd_mm_yyyy);
    if (typed.size() != 10 || !read_date(typed)) return {};
    return stored_of_date_text(typed);
}

change_outcome scarica_magazzino(
    archivi& files, const movimento_magazzino& movement, righe_ordine& lines, std::int16_t articles,
    const valuta& amounts,
    const std::function<bool(const riga_ordine&, const rec_art&)>& unload_anyway,
    const std::function<void()>& line_dropped) {
    std::array<bool, righe_ordine::massimo + 1> asked{};
    while (true) {
        archive_change change(files, archive_change::faults::end_the_program);
        change.recorded_as("scarico di magazzino", movement.documento);
        rec_tot counter;
        const int moving = lines_with_stock(lines, articles);
        change.counts(files.tot, contatori::magazzino, counter, files.mag, moving);
        if (moving > 0) {
            change.changes(files.art);
            change.writes(files.mag, counter.quanti + 1, moving);
        }
        look_for_a_document(change, files);
        if (!change.may_write()) return change.finish();
        // Nobody else waits for an answer; and behind it all is looked at anew.
        bool all_asked = true;
        visit_short_lines(files, lines, articles, [&](int line, const rec_art&) {
            all_asked &= asked[static_cast<std::size_t>(line)];
            return true;
        });
        if (all_asked) {
            unload(change, files, movement, lines, articles, amounts, counter);
            return change.finish();
        }
        change.finish();
        visit_short_lines(files, lines, articles, [&](int line, const rec_art& article) {
            if (std::exchange(asked[static_cast<std::size_t>(line)], true)) return true;
            if (unload_anyway(lines[line], article)) return true;
            drop_line(lines[line]);
            line_dropped();
            return false;
        });
    }
}

}  // namespace vantora
