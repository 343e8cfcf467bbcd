#include "enquiry/quadro.h"

#include <algorithm>

#include "enquiry/all_records.h"
#include "orders/customer_names.h"
#include "store/records/order_block.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

const tipo_ricerca& tipo_quadro() {
    static const tipo_ricerca kind{
        "quadro",
        "Quadro degli ordini",
        {{{"", 3000}}, {{"", 5000}}, {{"Valore", 1500, ui::alignment::right}}, {{"", 0}}},
        {"&Indietro", "&Stampa"},
        false};
    return kind;
}

std::vector<ui::grid_column> order_columns() {
    return {{"Ordine", 1000}, {"Data", 1000}, {"Cliente", 4000}, {"Descrizione", 5000}, {"", 0}};
}

double highest_of(const std::vector<barra>& bars) {
    double most = 0;
    for (const barra& one : bars) most = std::max(most, one.valore);
    return most;
}

}  // namespace

quadro::quadro(program& app) : enquiry_screen(app, tipo_quadro()) {}

std::vector<quadro::gruppo> quadro::groups() const {
    return {{"Da evadere per settimana", figures_.da_evadere, true},
            {"Ordinato per mese", figures_.ordinato, true},
            {"Consegnato per mese", figures_.consegnato, true},
            {"Primi clienti", figures_.clienti, true},
            {"Primi articoli", figures_.articoli, true},
            {"Articoli mancanti (quantit\xE0)", figures_.mancanti, false}};
}

std::string quadro::fill(list_rows& list) {
    return behind_ ? fill_orders(list, *behind_) : fill_bars(list);
}

std::string quadro::fill_bars(list_rows& list) {
    const valuta currency(app_.parameters);
    if (!counted_) {
        figures_ = conta_azienda(app_.archives, currency, app_.desk.clock().now().day,
                                 [&](int passed, int of) { return goes_on(list, passed, of); });
        counted_ = true;
    }
    bars_.assign(1, nullptr);
    for (const gruppo& one : groups()) {
        const double most = highest_of(one.barre);
        bool first = true;
        for (const barra& bar : one.barre) {
            list.next();
            if (std::exchange(first, false)) list.write(sezione, one.titolo);
            list.write(voce, bar.etichetta);
            list.write(valore, one.importi ? formato_importo(bar.valore, currency)
                                           : testo_quantita(bar.valore));
            const double share = most > 0 ? std::max(bar.valore, 0.0) / most : 0;
            list.write(millesimi, std::to_string(static_cast<int>(share * 1000)));
            bars_.push_back(&bar);
        }
    }
    return bars_.size() > 1 ? std::string() : "Nessun ordine";
}

std::string quadro::fill_orders(list_rows& list, const barra& of) {
    customer_names names(app_.archives.cli,
                         static_cast<std::int16_t>(in_uso(app_.archives, contatori::clienti)));
    for (const std::int16_t block : of.ordini) {
        rec_orc head;
        if (list.full() || !app_.archives.orc.read(block_record(block, 1), head)) continue;
        list.next();
        list.write(ordine, head.numero.trimmed());
        list.write(data, date_text_of_stored(head.data.full()));
        list.write(cliente, names.of(head.cliente));
        list.write(descrizione, head.testo1.trimmed());
        list.write(registrazione, std::to_string(block));
    }
    return of.etichetta + ": " + quanti_sono(list.in_use() - 1, "ordine", "ordini");
}

void quadro::open_row(int row) {
    if (behind_) {
        const std::string_view block = elenco.text(row, registrazione);
        app_.ordine_cercato = {to_int16(number_at_head(block)).value_or(0), 1};
        return leave();
    }
    const barra* bar = bars_[static_cast<std::size_t>(row)];
    if (!bar || bar->ordini.empty()) return;
    behind_ = bar;
    elenco.set_columns(order_columns());
    build();
}

void quadro::go_back() {
    if (!behind_) return leave();
    behind_ = nullptr;
    show_columns();
    build();
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
    for (const gruppo& one : groups()) {
        if (one.barre.empty()) continue;
        paper.text(left, y, one.titolo, bold, 0);
        go_down(step + 1);
        const double most = highest_of(one.barre);
        for (const barra& bar : one.barre) {
            const std::string value =
                one.importi ? formato_importo(bar.valore, currency) : testo_quantita(bar.valore);
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
