#include "entry/import_picker.h"

#include <algorithm>

#include "entry/mirorcs.h"
#include "orders/customer_names.h"
#include "store/block_reader.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr int righe_minime = 28;

/// Walks the head rows of all blocks, one read each. A block counts as deleted by any mark.
template <class Row>
void list_heads(const channel<Row>& rows, int blocks, import_picker& picker, list_rows& list,
                const std::function<bool(const Row&)>& wanted,
                const std::function<void(const Row&)>& list_more) {
    block_reader<Row> heads(rows);
    heads.walk_heads(1, blocks);
    for (int block = 1; block <= blocks && !list.full(); ++block) {
        const Row& head = heads.first_row(block);
        list.come_to(block, blocks);
        if (head.annullato != 0 || !wanted(head)) continue;
        list.next();
        list.write(0, head.numero.trimmed());
        list.write(1, date_text_of_stored(head.data.full()));
        list.write(2, head.testo1.trimmed());
        list_more(head);
        list.write(picker.block_col(), std::to_string(block));
        picker.note({block, head}, heads.first_row_read());
    }
}

template <class Row>
std::optional<ordine_visto> look_into(const channel<Row>& rows, int block) {
    Row head;
    if (!rows.read(block_record(block, 1), head)) return {};
    return ordine_visto(block, head);
}

void list_quotes(program& app, import_picker& picker, list_rows& list) {
    rec_tot counter;
    app.archives.tot.read(contatori::preventivi, counter);
    list_heads<rec_prv>(
        app.archives.prv, counter.quanti, picker, list,
        [&app](const rec_prv& head) { return head.cliente == app.selezione_1; },
        [](const rec_prv&) {});
}

void list_orders(program& app, import_picker& picker, list_rows& list) {
    rec_tot counter;
    app.archives.tot.read(contatori::ordini, counter);
    customer_names names(app.archives.cli, INT16_MAX);
    list_heads<rec_orc>(
        app.archives.orc, counter.quanti, picker, list, [](const rec_orc&) { return true; },
        [&](const rec_orc& head) { list.write(3, names.as_read(head.cliente)); });
}

}  // namespace

import_picker::import_picker(program& app, import_picker_kind kind)
    : form(app.desk, kind.name, kind.title),
      app_(app),
      kind_(std::move(kind)),
      lista_(elenco, app, righe_minime, static_cast<int>(kind_.columns.size()) - 2) {
    add("elenco", elenco);
    add("Label1", Label1);
    add("bottone", bottone);
    Label1.set_text(kind_.hint);
    elenco.empty_note = kind_.empty;
    elenco.on_click = [this] { choose(elenco.row()); };
    bottone.on_click = [this] { leave(""); };
}

void import_picker::build_list() {
    app_.archives.tot.read(kind_.contatore, contatore_);
    visti_.clear();
    lista_.build([this](list_rows& list) { kind_.fill(app_, *this, list); });
}

void import_picker::choose(int row) {
    const std::string block(elenco.text(row, block_col()));
    if (number_at_head(block) <= 0) return;
    moved_elsewhere(row) ? tell_moved(row) : leave(block);
}

bool import_picker::moved_elsewhere(int row) const {
    if (row < 1 || row > static_cast<int>(visti_.size())) return false;
    const ordine_visto& listed = visti_[static_cast<std::size_t>(row - 1)];
    const auto there = kind_.look(app_.archives, listed.registrazione);
    rec_tot now;
    return listed.letto && there && app_.archives.tot.read(kind_.contatore, now) &&
           orders_since(now, contatore_, app_.archives.orc).took_away(listed, *there);
}

void import_picker::tell_moved(int row) {
    const ordine_visto chosen = visti_[static_cast<std::size_t>(row - 1)];
    app_.desk.warn("Un'altra postazione ha cambiato l'archivio: l'elenco viene riletto.");
    build_list();
    const auto again = std::ranges::find_if(
        visti_, [&](const ordine_visto& one) { return same_order(one, chosen); });
    if (again != visti_.end()) elenco.set_row(static_cast<int>(again - visti_.begin()) + 1);
}

// Quotes ------------------------------------------------------------------------------------------

mirorcb::mirorcb(program& app)
    : import_picker(
          app,
          {"mirorcb",
           "Seleziona preventivo da importare",
           "Clic sulla griglia per selezionare il preventivo da importare oppure clic sul bottone "
           "'indietro' per non importare alcun preventivo",
           "Nessun preventivo",
           {{"Preventivo", 1200}, {"Data", 1200}, {"Descrizione", 6000}, {"", 0}},
           list_quotes,
           contatori::preventivi,
           [](const archivi& files, int block) { return look_into(files.prv, block); }}) {}

void mirorcb::leave(const std::string& block) {
    app_.modo_ordine = 99;
    app_.selezione_2 = static_cast<std::int16_t>(number_at_head(block));
    hide();
    app_.mirorcs.use().show();
}

void mirorcb::close() {
    unload();
    app_.mirorcs.use().show();
}

// Orders ------------------------------------------------------------------------------------------

mirpref::mirpref(program& app)
    : import_picker(
          app, {"mirpref",
                "Seleziona ordine da importare",
                "Clic sulla griglia per selezionare l'ordine da importare oppure clic sul bottone "
                "'indietro' per non importare alcun ordine",
                "Nessun ordine",
                {{"Ordine", 1200},
                 {"Data", 1200},
                 {"Descrizione ordine", 5000},
                 {"Cliente", 5000},
                 {"", 0}},
                list_orders,
                contatori::ordini,
                [](const archivi& files, int block) { return look_into(files.orc, block); }}) {}

// Dropping the picker brings the order to the front, so what its activation does comes before the
// chosen lines do.
void mirpref::leave(const std::string& block) {
    app_.scelta_ordine = block;
    app_.mirorcs->numfat.set_text("1");
    unload();
}

// The order goes on waiting for a choice. It may have been left meanwhile.
void mirpref::close() {
    unload();
    if (app_.mirorcs.loaded()) app_.mirorcs.use().show();
}

}  // namespace vantora
