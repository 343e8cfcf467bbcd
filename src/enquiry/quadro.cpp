#include "enquiry/quadro.h"

#include <algorithm>

#include "orders/article_texts.h"
#include "orders/customer_names.h"
#include "store/record_runs.h"
#include "store/records/order_block.h"
#include "text/number_text.h"

namespace vantora {

namespace {

std::vector<ui::grid_column> order_columns() {
    return {{"Ordine", 1000}, {"Data", 1000}, {"Cliente", 4000}, {"Descrizione", 5000}, {"", 0}};
}

std::vector<ui::grid_column> movement_columns() {
    using enum ui::alignment;
    return {
        {"Movimento", 1500},          {"Data", 1000},         {"Cliente", 3500}, {"Articolo", 4000},
        {"Quantit\xE0", 1000, right}, {"Valore", 1200, right}};
}

/// Some records of a file in this order, read ahead; those that can't be read are passed over.
template <class Record, class Take>
void for_each_of(const channel<Record>& from, const std::vector<std::int16_t>& numbers,
                 int records_apart, Take take) {
    records_ahead<Record> ahead(from, numbers.size(), [&](std::size_t i) {
        return record_run{(std::int64_t{numbers[i]} - 1) * records_apart + 1, 1};
    });
    Record one;
    for (const std::int16_t number : numbers) {
        if (ahead.next(one)) take(number, one);
    }
}

double highest_of(const std::vector<barra>& bars) {
    double most = 0;
    for (const barra& one : bars) most = std::max(most, one.valore);
    return most;
}

}  // namespace

quadro::quadro(program& app)
    : enquiry_screen(
          app,
          {"quadro",
           "Quadro degli ordini",
           {{"Grafico", 3000}, {"Voce", 5000}, {"Valore", 1500, ui::alignment::right}, {"", 0}},
           {"&Indietro", "&Stampa"},
           false}) {}

std::vector<quadro::gruppo> quadro::groups() const {
    return {{"Da evadere per settimana", figures_.da_evadere, true},
            {"Da evadere per mese d'ordine", figures_.aperto, true},
            {"Consegnato per mese", figures_.consegnato, true},
            {"Primi clienti", figures_.clienti, true},
            {"Primi articoli", figures_.articoli, true},
            {"Articoli mancanti (quantit\xE0)", figures_.mancanti, false}};
}

std::string quadro::fill(list_rows& list) {
    if (!behind_) return fill_bars(list);
    return behind_->movimenti.empty() ? fill_orders(list, *behind_)
                                      : fill_movements(list, *behind_);
}

std::string quadro::fill_bars(list_rows& list) {
    const valuta currency(app_.parameters);
    if (!counted_) {
        figures_ = count_company(app_.archives, currency, app_.desk.clock().now().day,
                                 [&](int passed, int of) { return goes_on(list, passed, of); });
        counted_ = true;
    }
    bars_.assign(1, nullptr);
    for (const gruppo& one : groups()) {
        const double most = highest_of(one.barre);
        for (const barra& bar : one.barre) {
            list.next();
            list.write(sezione, one.titolo);
            list.write(voce, bar.etichetta);
            list.write(valore, one.importi ? formato_importo(bar.valore, currency)
                                           : quantity_text(bar.valore));
            const double share = most > 0 ? std::max(bar.valore, 0.0) / most : 0;
            list.write(millesimi, std::to_string(static_cast<int>(share * 1000)));
            bars_.push_back(&bar);
        }
    }
    return bars_.size() > 1 ? "Invio su una barra: gli ordini o i movimenti che ci stanno dietro"
                            : "Nessun ordine";
}

std::string quadro::fill_orders(list_rows& list, const barra& of) {
    customer_names names(app_.archives);
    for_each_of(app_.archives.orc, of.ordini, righe_blocco, [&](int block, const rec_orc& head) {
        if (list.full()) return;
        list.next();
        list.write(ordine, head.numero.trimmed());
        list.write(data, date_text_of_stored(head.data.full()));
        list.write(cliente, names.of(head.cliente));
        list.write(descrizione, head.testo1.trimmed());
        list.write(registrazione, std::to_string(block));
    });
    return of.etichetta + ": " + how_many(list.in_use() - 1, "ordine", "ordini");
}

std::string quadro::fill_movements(list_rows& list, const barra& of) {
    const valuta currency(app_.parameters);
    customer_names names(app_.archives);
    article_texts articles(app_.archives.art);
    for_each_of(app_.archives.mag, of.movimenti, 1, [&](int, const rec_mag& one) {
        if (list.full()) return;
        list.next();
        list.write(movimento, one.movimento.trimmed());
        list.write(giorno, date_text_of_stored(one.data.full()));
        list.write(destinatario, names.of(one.cliente));
        list.write(articolo, articles.of(one.articolo));
        list.write(quantita, quantity_text(one.quantita));
        list.write(importo, formato_importo(movement_value(one), currency));
    });
    return of.etichetta + ": " + how_many(list.in_use() - 1, "movimento", "movimenti");
}

void quadro::open_row(int row) {
    if (behind_) {
        if (!behind_->movimenti.empty()) return;
        app_.ordine_cercato = {number_in(row, registrazione), 1};
        return leave();
    }
    const barra* bar = bars_[static_cast<std::size_t>(row)];
    if (!bar || (bar->ordini.empty() && bar->movimenti.empty())) return;
    behind_ = bar;
    at_ = row;
    elenco.set_columns(bar->movimenti.empty() ? order_columns() : movement_columns());
    build();
}

void quadro::go_back() {
    if (!behind_) return leave();
    behind_ = nullptr;
    show_columns();
    build();
    elenco.set_row(at_);
}

void quadro::run_command(int /*command*/, int /*row*/) {
    print();
}

// On paper ----------------------------------------------------------------------------------------

void quadro::print() const {
    constexpr double left = 15;
    constexpr double bars = 95;
    constexpr double longest = 70;
    constexpr double values = 195;
    constexpr double step = 5.5;
    constexpr double top = 15;
    constexpr double last = 280;
    constexpr ui::colour blue = 0xB07030;
    const ui::font plain{"Arial", 9, false, false};
    const ui::font bold{"Arial", 10, true, false};
    const valuta currency(app_.parameters);
    ui::printer& paper = app_.desk.printer();
    paper.set_job_name("Quadro degli ordini");
    double y = top;
    const auto go_down = [&](double by) {
        y += by;
        if (y <= last) return;
        paper.new_page();
        y = top;
    };
    paper.text(left, y, "Quadro degli ordini al " + date_text(app_.desk.clock().now().day), bold,
               0);
    go_down(2 * step);
    for (const gruppo& one : groups()) {
        if (one.barre.empty()) continue;
        // A chart stays on one page.
        const double tall = step * static_cast<double>(one.barre.size()) + step;
        if (y + tall > last) go_down(last);
        paper.text(left, y, one.titolo, bold, 0);
        go_down(step + 1);
        const double most = highest_of(one.barre);
        for (const barra& bar : one.barre) {
            const std::string value =
                one.importi ? formato_importo(bar.valore, currency) : quantity_text(bar.valore);
            paper.text(left, y, std::string_view(bar.etichetta).substr(0, 44), plain, 0);
            const double length = most > 0 ? longest * std::max(bar.valore, 0.0) / most : 0;
            if (length > 0) paper.box(bars, y + 0.5, bars + length, y + 3.5, blue, true);
            paper.text(values - paper.text_width(value, plain), y, value, plain, 0);
            go_down(step);
        }
        go_down(step / 2);
    }
    paper.new_page();
    paper.end_job();
}

}  // namespace vantora
