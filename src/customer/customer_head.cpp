#include "customer/customer_head.h"

#include "customer/customer_fields.h"
#include "customer/mirsel.h"
#include "customer/shipping_data.h"
#include "program/pick_list.h"
#include "store/key_index.h"
#include "text/int16.h"
#include "ui/day_field.h"
#include "ui/enter_key.h"

namespace vantora {

customer_head::customer_head(program& app, const customer_head_kind& kind)
    : form(app.desk, kind.name, kind.title), app_(app), kind_(kind) {
    add("nome", nome);
    add("b_cerca", b_cerca);
    add("b_lista", b_lista);
    add("HScroll1", HScroll1);
    add("Text2", Text2);
    add("Combo3", Combo3);
    add("Text3", Text3);
    add("text5", text5);
    add("Combo1", Combo1);
    add("bottone", bottone);
    add("Label2", Label2);
    Label2.set_text("Attenzione:questo cliente è stato eliminato!"_cp);
    // Until a customer is shown that is: the head of an order comes up without showing one.
    Label2.set_visible(false);
    limit_hands();
    wire_events();
}

void customer_head::limit_hands() {
    using ui::input_rule;
    // A record never stored: its fields have their full widths.
    const rec_cli widths;
    for (std::size_t i = 0; i < customer_fields.size(); ++i) {
        Text2[i].accepts = input_rule::text(customer_fields[i](widths).size());
    }
    // The carrier's last line comes from an order's row too, where there is more room.
    Text2[campo_cliente::vettore3].accepts = input_rule::text(decltype(rec_orc::testo3)::width);
    if (!kind_.of_order) return;
    Text3[campo_ordine::numero].accepts = input_rule::text(decltype(rec_orc::numero)::width);
    for (std::size_t i = campo_ordine::riferimento1; i <= campo_ordine::riferimento3; ++i) {
        Text3[i].accepts = input_rule::text(decltype(rec_orc::testo1)::width);
    }
}

void customer_head::wire_events() {
    b_cerca.on_click = [this] { search_by_hand(); };
    b_lista.on_click = [this] { open_pick_list(); };
    bottone.on_click = [this] { go_on(); };
    HScroll1.on_change = [this] {
        chosen_ = true;
        scrolled();
    };
    Combo3.on_click = [this] { take_carrier(); };
    ui::on_enter(nome, [this] { search_by_hand(); });
    for (std::size_t i = 0; i + 1 < campo_cliente::quanti; ++i)
        ui::enter_moves(Text2[i], Text2[i + 1]);
    for (int i = 0; i < 5; ++i) ui::enter_moves(Text3[i], Text3[i + 1]);
    for (int i = 0; i < 2; ++i) {
        ui::tie_day(Text3[kind_.date_fields[i]], text5[i], app_.desk.clock());
    }
}

void customer_head::load() {
    const tabella_suite table = read_suite_table(app_.files, app_.parameters.numero_azienda);
    vettori_ = table.vettori;
    std::vector<std::string> names;
    for (const vettore& carrier : vettori_) names.push_back(carrier[0]);
    Combo3.clear();
    Combo3.add_all(std::move(names));
    loading_ = true;
    Combo3.choose(0);
    loading_ = false;
    fill_lists(table);
    Combo1[porto].add_all({std::begin(voci_porto), std::end(voci_porto)});
    Combo1[trasporto].add_all({std::begin(voci_trasporto), std::end(voci_trasporto)});
    Combo1[porto].choose(0);
    Combo1[trasporto].choose(0);
}

bool customer_head::take_choice() {
    if (app_.selezione_cliente != elenco_clienti::scelta_fatta) return false;
    app_.selezione_cliente = 0;
    if (!app_.desk.guards().on() || !take_picked()) search();
    return true;
}

bool customer_head::take_picked() {
    app_.archives.tot.read(contatori::clienti, contatore_);
    const std::int16_t position = position_of(app_.cliente_scelto);
    if (position == 0) return false;
    chosen_ = true;  // even if it stood there already
    found_at(position);
    nome.set_text("");
    nome.set_focus();
    return true;
}

bool customer_head::left_list_without_choice() const {
    return picking_ && app_.desk.guards().on();
}

// An index tells a customer from a position and not the other way round, so it is walked, many
// entries to a read.
std::int16_t customer_head::position_of(std::int16_t customer) const {
    std::int16_t found = 0;
    const std::function<bool(std::int16_t, const rec_src&)> visit = [&](std::int16_t position,
                                                                        const rec_src& entry) {
        if (entry.numero == customer) found = position;
        return found == 0;
    };
    walk_index(app_.archives.src, contatore_.quanti, visit);
    return found;
}

void customer_head::start_at_first_customer() {
    posizione_cliente_ = 1;
    app_.archives.tot.read(contatori::clienti, contatore_);
    HScroll1.set_limits(1, contatore_.quanti);
    HScroll1.set_value(1);
    show_customer();
    chosen_ = contatore_.quanti == 1;
    nome.set_focus();
}

void customer_head::begin_document(int counter) {
    app_.archives.tot.read(counter, contatore_);
    for (auto& field : Text3) field.set_text("");
    // Both kinds of documents have their number there.
    const auto next = to_int16(contatore_.ultimo_numero + 1);
    if (next) Text3[campo_ordine::numero].set_text(std::to_string(*next));
    const std::string today = date_text(app_.desk.clock().now().day);
    for (const std::size_t date : kind_.date_fields) Text3[date].set_text(today);
}

void customer_head::close() {
    unload();
    app_.mirorc.use().show();
}

contenuto_testata customer_head::content() const {
    contenuto_testata now;
    for (std::size_t i = 0; i < now.text2.size(); ++i) now.text2[i] = Text2[i].text();
    for (std::size_t i = 0; i < now.text3.size(); ++i) now.text3[i] = Text3[i].text();
    for (std::size_t i = 0; i < now.combo1.size(); ++i) now.combo1[i] = Combo1[i].chosen();
    return now;
}

void customer_head::show_content(const contenuto_testata& content) {
    for (std::size_t i = 0; i < content.text2.size(); ++i) Text2[i].set_text(content.text2[i]);
    for (std::size_t i = 0; i < content.text3.size(); ++i) Text3[i].set_text(content.text3[i]);
    for (std::size_t i = 0; i < content.combo1.size(); ++i) Combo1[i].choose(content.combo1[i]);
}

void customer_head::fill_lists(const tabella_suite& table) {
    Combo1[pagamento].add_all(table.pagamenti);
}

void customer_head::show_customer() {
    if (posizione_cliente_ <= 0) return;
    read_customer();
    show_fields();
    Combo1[pagamento].choose(cliente_.pagamento - 1);
    if (!customer_deleted()) return;
    for (std::size_t i = campo_cliente::indirizzo; i < campo_cliente::quanti; ++i)
        Text2[i].set_text("");
}

void customer_head::read_customer() {
    app_.archives.src.read(posizione_cliente_, voce_);
    cliente_corrente_ = voce_.numero;
    app_.archives.cli.read(cliente_corrente_, cliente_);
}

void customer_head::show_fields() {
    for (std::size_t i = 0; i < customer_fields.size(); ++i) {
        Text2[i].set_text(customer_fields[i](cliente_));
    }
    Label2.set_visible(customer_deleted());
    // A deleted customer's name carries a mark in front.
    const std::string name = Text2[campo_cliente::intestazione1].text();
    if (customer_deleted() && !name.empty())
        Text2[campo_cliente::intestazione1].set_text(name.substr(1));
}

bool customer_head::customer_deleted() const {
    return cliente_.eliminato == 1;
}

bool customer_head::customer_usable() const {
    return cliente_.eliminato == 0 && cliente_corrente_ > 0;
}

void customer_head::scrolled() {
    app_.archives.tot.read(contatori::clienti, contatore_);
    if (contatore_.quanti < 2) return;
    posizione_cliente_ = static_cast<std::int16_t>(HScroll1.value());
    show_customer();
}

void customer_head::search_by_hand() {
    if (app_.desk.guards().on() && trimmed(nome.text()).empty()) {
        Text2[campo_cliente::intestazione1].set_focus();
    } else {
        search();
    }
}

void customer_head::search() {
    app_.archives.tot.read(contatori::clienti, contatore_);
    const std::int16_t found = find_customer(app_.archives.src, contatore_.quanti, nome.text());
    if (found > 0) {
        chosen_ = true;
        found_at(found);
    } else {
        app_.desk.warn("Anagrafica non trovata");
        show_customer();
    }
    nome.set_text("");
    nome.set_focus();
}

void customer_head::found_at(std::int16_t position) {
    posizione_cliente_ = position;
    HScroll1.set_value(position);
    show_customer();
}

void customer_head::open_pick_list() {
    app_.selezione_cliente = kind_.caller;
    app_.mirsel->selnome.set_text(kind_.of_order ? std::string_view(nome.text())
                                                 : trimmed(nome.text()));
    picking_ = true;
    app_.mirsel->show_modal();
    picking_ = false;
}

void customer_head::take_carrier() {
    if (loading_ || Combo3.chosen() < 0) return;
    const vettore& carrier = vettori_[static_cast<std::size_t>(Combo3.chosen())];
    for (std::size_t i = 0; i < carrier.size(); ++i) {
        const std::string_view line = trimmed(carrier[i]);
        if (line != "*") Text2[campo_cliente::vettore1 + i].set_text(line);
    }
}

}  // namespace vantora
