#include "entry/save_order.h"

#include "program/stock.h"
#include "store/text/dates.h"
#include "store/text/int16.h"
#include "store/text/number_text.h"

namespace vantora {

namespace {

void fill_head(rec_orc& row, const testata_registrata& head, std::size_t number) {
    row.numero = head.numero;
    row.data = stored_of_date_text(head.data);
    row.data_evasione = stored_of_date_text(head.data_evasione);
    row.cliente = head.cliente;
    row.data_reg = head.data_reg;
    row.impegno = head.impegno ? "1" : "0";
    if (number > head.testi.size()) return;
    const auto& texts = head.testi[number - 1];
    row.testo1 = texts[0];
    row.testo2 = texts[1];
    row.testo3 = texts[2];
}

void fill_line(rec_orc& row, const riga_ordine& line) {
    const std::string_view description = line.descrizione.full();
    row.articolo = line.articolo;
    row.descrizione = description.substr(0, 40);
    row.descrizione2 = description.substr(40, 10);
    row.um = line.um.full();
    row.quantita = line.quantita;
    row.prezzo = line.prezzo;
    row.iva = line.iva;
    row.sc1 = line.sc1;
    row.sc2 = line.sc2;
}

}  // namespace

bool salva_nuovo_ordine(archivi& files, const testata_registrata& head, const righe_ordine& lines,
                        std::int16_t articles) {
    rec_tot counter;
    if (!files.tot.read(contatori::ordini, counter)) return false;
    const int block = counter.quanti + 1;
    rec_orc row;
    bool stock_moved = false;
    for (int number = 1; number <= righe_blocco; ++number) {
        const riga_ordine& line = lines[number];
        fill_head(row, head, static_cast<std::size_t>(number));
        fill_line(row, line);
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
