#include "enquiry/enquiry_screen.h"

#include "text/int16.h"
#include "text/number_text.h"
#include "ui/enter_key.h"

namespace vantora {

namespace {

constexpr int righe_minime = 20;
constexpr int tutte_le_colonne = 99;

}  // namespace

enquiry_screen::enquiry_screen(program& app, tipo_ricerca kind)
    : form(app.desk, kind.name, kind.title),
      app_(app),
      lista_(elenco, app, righe_minime, tutte_le_colonne),
      kind_(std::move(kind)) {
    add("elenco", elenco);
    for (int command = 0; command < commands(); ++command) {
        add_element("bottone", command, bottone[command]);
        bottone[command].set_text(kind_.comandi[static_cast<std::size_t>(command)]);
        bottone[command].on_click = [this, command] { command_clicked(command); };
    }
    add("esito", esito);
    elenco.on_click = [this] { clicked(); };
    ui::on_enter(elenco, [this] {
        if (in_use(elenco.row())) open_row(elenco.row());
    });
}

void enquiry_screen::load() {
    show_columns();
    elenco.set_rows(righe_minime);
}

void enquiry_screen::activate() {
    if (std::exchange(built_, true)) return;
    build();
    elenco.set_focus();
}

void enquiry_screen::build() {
    std::string said;
    lista_.build([&](list_rows& list) { said = fill(list); });
    finish(lista_.in_use(), said);
}

void enquiry_screen::finish(int in_use, std::string_view said) {
    lista_.finish(in_use);
    esito.set_text(said);
    elenco.set_row(in_use > 1 ? 1 : 0);
    elenco.set_top_row(1);
}

bool enquiry_screen::goes_on(list_rows& list, int passed, int of) {
    constexpr int orders_a_look = 256;
    list.come_to(passed, of);
    if (passed % orders_a_look == 0) desk().let_events_run();
    return visible();
}

void enquiry_screen::clicked() {
    if (!elenco.head_clicked() || !kind_.si_riordina) return;
    const int column = elenco.mouse_column();
    using enum ui::sort_order;
    if (column == kind_.giorno) return lista_.sort(kind_.giorno_stored, numeric_ascending);
    lista_.sort(column, generic_ascending);
}

void enquiry_screen::command_clicked(int command) {
    if (command == 0) return go_back();
    if (in_use(elenco.row())) run_command(command, elenco.row());
}

std::int16_t enquiry_screen::number_in(int row, int column) const {
    return to_int16(number_at_head(elenco.text(row, column))).value_or(0);
}

std::string how_many(int count, const char* one, const char* many) {
    if (count == 0) return std::string("Nessun ") + one;
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

}  // namespace vantora
