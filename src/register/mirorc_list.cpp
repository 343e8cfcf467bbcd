#include <algorithm>
#include <cstring>

#include "orders/order_rows.h"
#include "orders/stored_lines.h"
#include "orders/totals.h"
#include "register/mirorc.h"
#include "store/block_reader.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// Rows that the window shows; the view of the latest orders leaves so many at the bottom.
constexpr int righe_in_vista = 22;

constexpr int righe_raccontate = 6;

std::string line_text(const rec_orc& row) {
    const std::string description = filtra_stampa(description_of(row));
    std::string text;
    if (row.quantita != 0) {
        text = quantity_text(row.quantita) + " " + std::string(row.um.trimmed()) + "  ";
    }
    return text.append(trimmed(description));
}

std::string amount_text(double value, const valuta& in) {
    value = finite_or_zero(value);
    return value == 0 ? "0,00" : formato_importo(value, in);
}

/// What stands behind a row of the register, for who rests on it: the first lines of the order,
/// what is open of it, what it is worth. `block`: all its rows.
std::string order_hint(std::span<const rec_orc> block, const valuta& in) {
    righe_ordine all;
    righe_ordine open;
    int rows = 0;
    std::string text;
    for (const rec_orc& one : block) {
        const std::string line = line_text(one);
        if (line.empty() && one.prezzo == 0) continue;
        take_row(one, all[++rows]);
        if (is_open(one)) {
            open[rows] = all[rows];
            open[rows].quantita = finite_or_zero(open_quantity(one));
        }
        if (rows <= righe_raccontate) text += line + "\n";
    }
    if (rows > righe_raccontate) text += "... in tutto " + std::to_string(rows) + " righe\n";
    if (block.front().evaso_flag == 1) {
        text += "Evaso";
    } else {
        const totali_ordine left = sum_lines(open, in);
        const std::string pieces = left.pezzi == 0 ? "0" : quantity_text(left.pezzi);
        text += "Da evadere: " + pieces + " pezzi, " + amount_text(left.imponibile, in);
    }
    return text + "\nValore dell'ordine: " + amount_text(sum_lines(all, in).imponibile, in);
}

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
        visti_.emplace_back(registrazione, riga_).letto = orders.first_row_read();
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
    list.write(registr, std::to_string(registrazione));
    if (riga_.annullato == 1) return list.write(cliente, "Ordine eliminato");
    list.write(data_stored, riga_.data.full());
    list.write(ordine, riga_.numero.trimmed());
    list.write(data, date_text_of_stored(riga_.data.full()));
    list.write(cliente, names.of(riga_.cliente));
    list.write(descrizione, riga_.testo1.trimmed());
    list.write(evasione,
               riga_.evaso_flag == 1 ? "EVASO" : date_text_of_stored(riga_.data_evasione.full()));
}

// Of one row --------------------------------------------------------------------------------------

std::string mirorc::hint(int row) const {
    if (compacting_) return {};
    const int registrazione = order_in(row);
    if (registrazione < 1) return {};
    std::vector<rec_orc> block(righe_blocco);
    if (!app_.archives.orc.read_block(block_record(registrazione, 1), block)) return {};
    if (block.front().annullato == 1 || moved_elsewhere(registrazione, block.front())) return {};
    return order_hint(block, valuta(app_.parameters));
}

std::string mirorc::notice(int row) const {
    const std::string_view day = elenco.text(row, evasione);
    if (day.size() != 10) return {};  // "EVASO", or no date
    const auto planned = read_date(day);
    if (!planned) return {};
    const double late = date_number({app_.desk.clock().now().day}) - date_number({*planned});
    if (late < 1) return {};
    return late == 1 ? std::string("In ritardo di un giorno")
                     : "In ritardo di " + plain_text(late) + " giorni";
}

// Other stations ----------------------------------------------------------------------------------

// What other stations did to the archive since the list was read: orders that a compaction moved
// are not opened at their old places, and the list is brought up to date.

void mirorc::see_again(int registrazione) {
    const ordine_visto* listed = seen(registrazione);
    rec_orc row;
    if (!listed || listed->dated() ||
        !app_.archives.orc.read(block_record(registrazione, 1), row)) {
        return;
    }
    visti_[static_cast<std::size_t>(registrazione - primo_visto_)] = {registrazione, row};
}

const ordine_visto* mirorc::seen(int registrazione) const {
    const int place = registrazione - primo_visto_;
    if (place < 0 || place >= static_cast<int>(visti_.size())) return nullptr;
    const ordine_visto& one = visti_[static_cast<std::size_t>(place)];
    return one.letto ? &one : nullptr;
}

std::optional<ordine_visto> mirorc::seen_in(int row) const {
    const ordine_visto* one = seen(order_in(row));
    return one ? std::optional(*one) : std::nullopt;
}

bool mirorc::moved_elsewhere(int registrazione, const rec_orc& row) const {
    const ordine_visto* listed = seen(registrazione);
    rec_tot now;
    // A counter that can't be read tells nothing of other stations.
    return listed && app_.archives.tot.read(contatori::ordini, now) &&
           orders_since(now, listato_, app_.archives.orc).took_away(*listed, row);
}

int mirorc::row_of(const ordine_visto& order) const {
    int found = 0;
    for (int row = 1; row < lista_.in_use(); ++row) {
        const auto one = seen_in(row);
        if (!one || !same_order(*one, order)) continue;
        if (one->registrazione == order.registrazione) return row;
        if (found == 0) found = row;
    }
    return found;
}

void mirorc::list_anew() {
    const auto marked = seen_in(elenco.row());
    const auto top = seen_in(elenco.top_row());
    const bool at_end = elenco.shows_end();
    const auto sorted = ordinata_per_;
    ui::control* const worked_on = app_.desk.focus();
    build_list();
    if (sorted) sort_by(*sorted);
    if (worked_on && worked_on != app_.desk.focus()) app_.desk.give_focus(*worked_on);
    if (const int row = marked ? row_of(*marked) : 0; row > 0) elenco.set_row(row);
    if (at_end) return;
    if (const int row = top ? row_of(*top) : 0; row > 0) elenco.set_top_row(row);
}

void mirorc::tell_moved() {
    app_.desk.message(
        "Un'altra postazione ha compattato l'archivio: l'elenco degli ordini viene riletto.",
        ui::attention, ui::icon::warning);
    list_anew();
}

void mirorc::catch_up() {
    rec_tot now;
    if (compacting_ || !app_.archives.tot.read(contatori::ordini, now)) return;
    const bool same = std::memcmp(&now, &listato_, sizeof now) == 0 &&
                      app_.archives.orc.last_write() == scritto_alle_;
    if (!same) list_anew();
}

}  // namespace vantora
