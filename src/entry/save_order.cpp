#include "entry/save_order.h"

#include "orders/stock.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

write_outcome salva_nuovo_ordine(archivi& files, const testata_registrata& head, double data_reg,
                                 const righe_ordine& lines, std::int16_t articles) {
    const instance_lock alone(files, instance_lock::kind::records);
    write_plan plan;
    rec_tot counter;
    plan.counts(files.tot, contatori::ordini, counter);
    const int block = counter.quanti + 1;
    plan.writes(files.orc, block_record(block, 1), righe_blocco);
    if (lines_with_stock(lines, articles) > 0) plan.changes(files.art);
    write_outcome outcome(alone, plan);
    if (!outcome.begun()) return outcome;
    write_faults& faults = outcome.faults;

    rec_orc row;
    bool stock_moved = false;
    for (int number = 1; number <= righe_blocco; ++number) {
        const riga_ordine& line = lines[number];
        fill_head(row, head, static_cast<std::size_t>(number));
        fill_line(row, line);
        row.data_reg = data_reg;
        const auto ordered = [&](rec_art& article) {
            order_stock(article, line.quantita, head.impegno);
        };
        if (line.quantita != 0 &&
            change_article(files.art, line.articolo, articles, faults, ordered)) {
            stock_moved = true;
        }
        faults.note(files.orc.write(block_record(block, number), row), files.orc);
    }
    if (stock_moved) faults.note(files.art.flush(), files.art);
    faults.note(files.orc.flush(), files.orc);

    counter.quanti = add_int16(counter.quanti, 1).value_or(counter.quanti);
    counter.ultimo_numero = to_int16(number_at_head(head.numero)).value_or(counter.ultimo_numero);
    faults.note(files.tot.write(contatori::ordini, counter), files.tot);
    faults.note(files.tot.flush(), files.tot);
    return outcome;
}

}  // namespace vantora
