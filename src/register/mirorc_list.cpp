#include <algorithm>
#include <charconv>

#include "register/mirorc.h"
#include "store/block_reader.h"
#include "text/dates.h"

namespace vantora {

namespace {

/// Rows that the window shows; the view of the latest orders leaves so many at the bottom.
constexpr int righe_in_vista = 22;

}  // namespace

void mirorc::build_list() {
    // Blocks are on the move; the compaction ends with a build.
    if (compacting_) return;
    ordinata_per_.reset();
    lista_.build([this](list_rows& list) { list_orders(list); });
    if (visua[1].on() && lista_.in_use() > righe_in_vista + 1) {
        elenco.show_end(righe_in_vista);
    }
}

int mirorc::first_listed(int last) const {
    int first = 1;
    if (selvis[1].on()) first = last - 999;
    if (selvis[2].on()) first = last - 4999;
    return std::max(first, 1);
}

// One read for each order, and one for every 32 customers in question.
void mirorc::list_orders(list_rows& list) {
    rec_tot customers;
    scritto_alle_ = app_.archives.orc.last_write();
    app_.archives.tot.read(contatori::ordini, contatore_);
    app_.archives.tot.read(contatori::clienti, customers);
    customer_names names(app_.archives.cli, customers.quanti);
    const int last = contatore_.quanti;
    const int first = first_listed(last);
    listato_ = contatore_;
    visti_.clear();
    primo_visto_ = first;
    block_reader<rec_orc> orders(app_.archives.orc, riga_);
    orders.walk_heads(first, last);
    int registrazione = first;
    for (; registrazione <= last && !list.full(); ++registrazione) {
        riga_ = orders.first_row(registrazione);
        remember(registrazione, riga_, orders.first_row_read());
        list_order(list, registrazione, names);
        list.come_to(registrazione - first + 1, last - first + 1);
    }
    if (registrazione <= last) {
        avviso.set_text("(mancano le ultime " + std::to_string(last - registrazione + 1) + ")");
    }
    avviso.set_visible(registrazione <= last);
}

void mirorc::list_order(list_rows& list, int registrazione, customer_names& names) {
    list.next();
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, registrazione).ptr;
    const std::string_view number(digits, static_cast<std::size_t>(end - digits));
    if (riga_.annullato == 1) {
        list.write(registr, number);
        list.write(cliente, "Ordine eliminato");
        return;
    }
    list.write(data_stored, riga_.data.full());
    list.write(registr, number);
    list.write(ordine, riga_.numero.trimmed());
    list.write(data, date_text_of_stored(riga_.data.full()));
    list.write(cliente, names.of(riga_.cliente));
    list.write(descrizione, riga_.testo1.trimmed());
    if (riga_.evaso_flag == 1) {
        list.write(evasione, "EVASO");
    } else {
        list.write(evasione, date_text_of_stored(riga_.data_evasione.full()));
    }
}

}  // namespace vantora
