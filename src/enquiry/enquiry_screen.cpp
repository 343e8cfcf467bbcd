#include "enquiry/enquiry_screen.h"

#include "ui/enter_key.h"

namespace vantora {

namespace {

constexpr int righe_minime = 20;
constexpr int tutte_le_colonne = 99;

}  // namespace

enquiry_screen::enquiry_screen(program& app, const tipo_ricerca& kind)
    : form(app.desk, kind.name, from_utf8(kind.title)),
      app_(app),
      lista_(elenco, app, righe_minime, tutte_le_colonne),
      kind_(kind) {
    add("elenco", elenco);
    for (std::size_t i = 0; i < kind.comandi.size(); ++i) {
        const int command = static_cast<int>(i);
        add_element("bottone", command, bottone[command]);
        bottone[command].set_text(from_utf8(kind.comandi[i]));
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

void enquiry_screen::show_columns() {
    std::vector<ui::grid_column> columns;
    for (const colonna_ricerca& one : kind_.colonne) columns.push_back(one.shown);
    elenco.set_columns(std::move(columns));
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
    const int by_day = kind_.colonne[static_cast<std::size_t>(column)].sorts_by;
    const auto order =
        by_day < 0 ? ui::sort_order::generic_ascending : ui::sort_order::numeric_ascending;
    lista_.sort(by_day < 0 ? column : by_day, order);
}

void enquiry_screen::command_clicked(int command) {
    if (command == 0) return go_back();
    if (in_use(elenco.row())) run_command(command, elenco.row());
}

std::string how_many(int count, const char* one, const char* many) {
    if (count == 0) return from_utf8(std::string("Nessun ") + one);
    return from_utf8(std::to_string(count) + " " + (count == 1 ? one : many));
}

}  // namespace vantora
