#include "customer/mirsel.h"

#include "customer/customer_head.h"
#include "program/pick_list.h"
#include "store/key_index.h"
#include "store/record_stretches.h"
#include "text/number_text.h"
#include "ui/enter_key.h"

namespace vantora {

namespace {

constexpr int righe_minime = 26;

}  // namespace

/// What the list shows and tests of a customer.
struct mirsel::row_content {
    row_content() = default;
    explicit row_content(const rec_cli& customer)
        : intestazione1(customer.intestazione1),
          intestazione2(customer.intestazione2),
          indirizzo(customer.indirizzo),
          citta(customer.citta),
          partita_iva(customer.partita_iva),
          eliminato(customer.eliminato) {}

    /// `part` in capitals; an empty one is in every name.
    [[nodiscard]] bool name_holds(const std::string& part) const {
        return part.empty() || upper(intestazione1.trimmed()).find(part) != std::string::npos;
    }

    text<40> intestazione1;
    text<40> intestazione2;
    text<40> indirizzo;
    text<40> citta;
    text<11> partita_iva;
    i16le eliminato;
};

mirsel::mirsel(program& app)
    : form(app.desk, "mirsel", "Selezione cliente"),
      app_(app),
      lista_(elenco, app, righe_minime, numero) {
    add("elenco", elenco);
    elenco.empty_note = "Nessun risultato";
    add("srx", srx);
    add("selnome", selnome);
    add("indice", indice);
    add("xsfondo", xsfondo);
    for (auto& button : srx) button.set_text("Riordina");

    elenco.on_click = [this] { pick_row(); };
    ui::on_enter(selnome, [this] { build_list(); });
    indice.on_click = [this] { leave("", 0); };
    for (int i = 0; i < 5; ++i) {
        srx[i].on_click = [this, i] { lista_.sort(i, ui::sort_order::generic_ascending); };
    }
}

void mirsel::load() {
    elenco.set_columns({{"Nominativo", 3700},
                        {"", 3000},
                        {"Indirizzo", 3000},
                        {"Città"_cp, 3000},
                        {"Partita iva", 1800},
                        {"", 0}});
}

void mirsel::activate() {
    build_list();
}

void mirsel::close() {
    app_.selezione_cliente = 0;
    unload();
}

void mirsel::build_list() {
    lista_.build([this](list_rows& list) { list_customers(list); });
    elenco.set_focus();
}

void mirsel::list_customers(list_rows& list) {
    rec_tot counter;
    app_.archives.tot.read(contatori::clienti, counter);
    const std::string wanted = upper(trimmed(selnome.text()));
    record_stretches<rec_cli, row_content> customers(app_.archives.cli);
    const std::function<bool(std::int16_t, const rec_src&)> visit = [&](std::int16_t position,
                                                                        const rec_src& entry) {
        list.come_to(position, counter.quanti);
        const row_content& customer = customers.of(entry.numero);
        if (customer.eliminato == 0 && customer.name_holds(wanted)) {
            list_customer(list, customer, entry.numero);
        }
        return !list.full();
    };
    walk_index(app_.archives.src, counter.quanti, visit);
}

void mirsel::list_customer(list_rows& list, const row_content& customer, std::int16_t number) {
    list.next();
    list.write(nominativo, customer.intestazione1.trimmed());
    list.write(nominativo2, customer.intestazione2.trimmed());
    list.write(indirizzo, customer.indirizzo.trimmed());
    list.write(citta, customer.citta.trimmed());
    list.write(partita_iva, customer.partita_iva.trimmed());
    list.write(numero, std::to_string(number));
}

void mirsel::pick_row() {
    const double record = number_at_head(elenco.text(elenco.row(), numero));
    if (record <= 0) return;
    app_.cliente_scelto = static_cast<std::int16_t>(record);
    const std::string name(elenco.text(elenco.row(), nominativo));
    rec_cli now;
    if (app_.archives.cli.read(app_.cliente_scelto, now) && now.intestazione1.trimmed() != name &&
        app_.desk.guards().refuse("I clienti sono stati cambiati altrove: "
                                  "l'elenco viene riletto.")) {
        return build_list();
    }
    leave(name, elenco_clienti::scelta_fatta);
}

void mirsel::leave(const std::string& chosen_name, int outcome) {
    if (ui::screen_place* caller = chiamante(app_, app_.selezione_cliente)) {
        static_cast<customer_head&>(caller->use()).nome.set_text(chosen_name);
    }
    app_.selezione_cliente = outcome;
    unload();
}

}  // namespace vantora
