#include <algorithm>
#include <charconv>

#include "program/list_grid.h"
#include "register/mirorc.h"
#include "store/text/dates.h"

namespace vantora {

namespace {

/// Rows that the window shows; the view of the latest orders leaves so many at the bottom.
constexpr int righe_in_vista = 22;
constexpr int ordini_elencabili = righe_riservate - 2;

}  // namespace

void mirorc::build_list() {
    const bool had_focus = elenco.has_focus();
    app_.desk.set_pointer(ui::pointer::busy);
    elenco.set_visible(false);
    empty_list(elenco);
    app_.riga_elenco = 1;

    rec_tot customers;
    app_.archives.tot.read(contatori::ordini, contatore_);
    app_.archives.tot.read(contatori::clienti, customers);
    list_orders(contatore_.quanti, customers.quanti);

    righe_registro_ = app_.riga_elenco;
    cut_list(elenco, righe_registro_, righe_minime);
    if (visua[1].on() && righe_registro_ > righe_in_vista + 1) {
        elenco.show_end(righe_in_vista);
    }
    paint_stripes(elenco, evasione, app_.parameters.gnr);
    elenco.set_visible(true);
    if (had_focus) elenco.set_focus();
    app_.desk.set_pointer(ui::pointer::normal);
}

int mirorc::first_listed(int last) const {
    int first = 1;
    if (selvis[1].on()) first = last - 999;
    if (selvis[2].on()) first = last - 4999;
    return std::max(first, 1);
}

void mirorc::list_orders(int last, std::int16_t customers) {
    customer_names names(app_.archives.cli, customers);
    const int first = first_listed(last);
    last = std::min(last, first + ordini_elencabili - 1);
    for (int registrazione = first; registrazione <= last; ++registrazione) {
        app_.archives.orc.read(block_record(registrazione, 1), riga_);
        list_order(registrazione, names);
    }
}

void mirorc::list_order(int registrazione, customer_names& names) {
    const int row = app_.riga_elenco++;
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, registrazione).ptr;
    const std::string_view number(digits, static_cast<std::size_t>(end - digits));
    if (riga_.annullato == 1) {
        elenco.set_text(row, registr, number);
        elenco.set_text(row, cliente, "Ordine eliminato");
        return;
    }
    elenco.set_text(row, data_stored, riga_.data.full());
    elenco.set_text(row, registr, number);
    elenco.set_text(row, ordine, riga_.numero.trimmed());
    elenco.set_text(row, data, date_text_of_stored(riga_.data.full()));
    elenco.set_text(row, cliente, names.of(riga_.cliente));
    elenco.set_text(row, descrizione, riga_.testo1.trimmed());
    if (riga_.evaso_flag == 1) {
        elenco.set_text(row, evasione, "EVASO");
    } else {
        elenco.set_text(row, evasione, date_text_of_stored(riga_.data_evasione.full()));
    }
}

}  // namespace vantora
