#include "entry/save_order.h"

#include "program/stock.h"
#include "store/instance_lock.h"
#include "store/text/int16.h"
#include "store/text/number_text.h"

namespace vantora {

bool salva_nuovo_ordine(archivi& files, const testata_registrata& head, double data_reg,
                        const righe_ordine& lines, std::int16_t articles) {
    const instance_lock alone(files.tot, instance_lock::kind::records);
    if (!alone.may_go_on()) return false;
    rec_tot counter;
    if (!files.tot.read(contatori::ordini, counter)) return false;
    const int block = counter.quanti + 1;
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
        if (line.quantita != 0 && change_article(files.art, line.articolo, articles, ordered)) {
            stock_moved = true;
        }
        files.orc.write(block_record(block, number), row);
    }
    if (stock_moved) files.art.flush();
    files.orc.flush();

    counter.quanti = add_int16(counter.quanti, 1).value_or(counter.quanti);
    counter.ultimo_numero = to_int16(number_at_head(head.numero)).value_or(counter.ultimo_numero);
    files.tot.write(contatori::ordini, counter);
    files.tot.flush();
    return true;
}

}  // namespace vantora
