#include "reports/order_rows_report.h"

#include "orders/customer_names.h"
#include "store/money.h"
#include "text/dates.h"

namespace vantora {

// One read an order or two, many at once, and one for every 32 customers and articles in question.
void order_rows_report::fill(list_rows& list, const limiti_ordini& orders) {
    customer_names names(app_.archives.cli, clienti_.quanti);
    article_texts articles(app_.archives.art);
    begin_walk(orders);
    for (int order = orders.primo; order <= orders.ultimo && !list.cut(); ++order) {
        bool shown = false;
        std::int64_t record = block_record(order, 1);
        for (const rec_orc& row : rows_of(order)) {
            const std::int64_t number = record++;
            if (!takes(row)) continue;
            const std::string_view customer = names.of(row.cliente);
            list.next();
            list.write(places().numero_record, std::to_string(number));
            if (!shown) {
                list.write(places().registrazione, std::to_string(order));
                list_head(list, row, customer);
                shown = true;
            }
            if (whole_orders()) list_row(list, row, articles);
        }
        if (!carry_on(share_done(order, orders))) return;
    }
}

void order_rows_report::list_head(list_rows& list, const rec_orc& row,
                                  std::string_view customer) const {
    list.write(ordine, row.numero.trimmed());
    list.write(data, date_text_of_stored(row.data.full()));
    list.write(descrizione, row.testo1.trimmed());
    list.write(places().evasione, date_text_of_stored(row.data_evasione.full()));
    list.write(places().cliente, customer);
}

void order_rows_report::list_row(list_rows& list, const rec_orc& row,
                                 article_texts& articles) const {
    list.write(places().articolo,
               trimmed(row.articolo < 1 ? description_of(row) : articles.padded(row.articolo)));
    list.write(places().ordinato, quantity_text(row.quantita));
    list.write(places().evaso, quantity_text(row.evaso));
}

}  // namespace vantora
