#include "fulfil/unloading.h"

#include "fulfil/faults.h"
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

}  // namespace

std::string giorno_movimento(std::string_view dd_mm_yyyy) {
    const std::string_view typed = trimmed(dd_mm_yyyy);
    if (typed.size() != 10 || !read_date(typed)) return {};
    return stored_of_date_text(typed);
}

write_outcome scarica_magazzino(archivi& files, const movimento_magazzino& movement,
                                righe_ordine& lines, std::int16_t articles, const valuta& amounts,
                                const std::function<bool(const rec_art&)>& unload_anyway,
                                const std::function<void()>& line_dropped) {
    const instance_lock alone(files, instance_lock::kind::records);
    write_plan plan;
    rec_tot counter;
    plan.counts(files.tot, contatori::magazzino, counter);
    if (const int moving = lines_with_stock(lines, articles); moving > 0) {
        plan.changes(files.art);
        plan.writes(files.mag, counter.quanti + 1, moving);
    }
    write_outcome outcome(alone, plan);
    if (!outcome.begun()) return outcome;

    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        riga_ordine& line = lines[number];
        if (line.quantita == 0 || !is_article(line.articolo, articles)) continue;
        rec_art article;
        require(files.art.read(line.articolo, article));
        if (line.quantita > article.giacenza) {
            if (!unload_anyway(article)) {
                drop_line(line);
                line_dropped();
                continue;
            }
            // The user may have thought about it for long.
            require(files.art.read(line.articolo, article));
        }
        const double price = checked(net_price(line, amounts));
        unload_stock(article, line.quantita, price);
        require(files.art.write(line.articolo, article));

        const auto next = add_int16(counter.quanti, 1);
        if (!next) throw overflow_error();
        counter.quanti = *next;
        require(files.mag.write(*next, movement_of(movement, line, price)));
    }
    outcome.faults.note(files.art.flush(), files.art);
    outcome.faults.note(files.mag.flush(), files.mag);
    counter.modificato = 1;
    require(files.tot.write(contatori::magazzino, counter));
    outcome.faults.note(files.tot.flush(), files.tot);
    return outcome;
}

}  // namespace vantora
