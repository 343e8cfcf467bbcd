#include "entry/draft_taking.h"

#include <algorithm>

#include "customer/mirorcm.h"
#include "customer/mirorcx.h"
#include "entry/draft_files.h"
#include "entry/mirorcs.h"
#include "entry/mirorcz.h"
#include "orders/stored_lines.h"
#include "store/block_reader.h"
#include "text/dates.h"

namespace vantora {

namespace {

/// The first block whose head answers yes; 0 if none does.
int find_order(program& app, const std::function<bool(const rec_orc&)>& wanted) {
    rec_tot counter;
    if (!app.archives.tot.read(contatori::ordini, counter)) return 0;
    block_reader<rec_orc> heads(app.archives.orc);
    heads.walk_heads(1, counter.quanti);
    for (int block = 1; block <= counter.quanti; ++block) {
        const rec_orc& head = heads.first_row(block);
        if (head.annullato != 1 && wanted(head)) return block;
    }
    return 0;
}

/// A save that was cut short may have stored the order, and not yet dropped its draft.
bool seems_saved(program& app, const bozza& draft) {
    const auto kept = read_clock(draft.salvata);
    if (!kept) return false;
    const double since = date_number(*kept);
    return find_order(app, [&](const rec_orc& head) {
               return head.data_reg >= since && head.cliente == draft.cliente &&
                      head.numero.trimmed() == draft.testata.text3[campo_ordine::numero];
           }) > 0;
}

/// Where the opened order of a draft stands now; 0 if it is gone.
int block_of(program& app, const bozza& draft) {
    return find_order(app, [&](const rec_orc& head) {
        return head.data_reg == draft.visto.data_reg &&
               trimmed(filtra_stampa(head.numero.full())) == draft.visto.numero.trimmed() &&
               head.cliente == draft.visto.cliente;
    });
}

void show_new(program& app, bozza draft, file_bozza file) {
    app.schermo_pronto = 1;
    app.modo_ordine = 0;
    app.selezione_1 = draft.cliente;
    app.selezione_2 = 0;
    app.mirorcx.use();
    app.mirorcs->take_up(std::move(draft), std::move(file));
    app.mirorc.use().hide();
    app.mirorcs->show();
}

void show_opened(program& app, int block, bozza draft, file_bozza file) {
    app.schermo_pronto = 0;
    app.modo_ordine = 0;
    app.selezione_1 = static_cast<std::int16_t>(block);
    app.selezione_2 = draft.cliente;
    app.mirorcz->take_up(std::move(draft), std::move(file));
    app.mirorc.use().hide();
    app.mirorcz->show();
}

/// What became of the opened order's rows since the draft began.
enum class meanwhile { same, changed, fulfilled };

meanwhile look_at_rows(program& app, int block, const bozza& draft) {
    const stored_rows<rec_orc> stored(app.archives.orc, block);
    if (fingerprint_of(stored.all()) == draft.impronta) return meanwhile::same;
    const bool leaves =
        std::ranges::any_of(stored.all(), [](const rec_orc& row) { return row.evaso != 0; });
    return leaves ? meanwhile::fulfilled : meanwhile::changed;
}

void take_up_opened(program& app, bozza draft, file_bozza file) {
    const std::string order = draft_name(draft);
    const int block = block_of(app, draft);
    if (block == 0) {
        if (!app.desk.guards().confirm("Nell'archivio non c'è più l'"_cp + order +
                                       ". Riprendere la bozza come ordine nuovo?")) {
            return;
        }
        draft.nuova = true;
        for (int number = 1; number <= righe_ordine::massimo; ++number) {
            draft.contenuto.lines[number].evaso = 0;
        }
        return show_new(app, std::move(draft), std::move(file));
    }
    switch (look_at_rows(app, block, draft)) {
        case meanwhile::same:
            break;
        case meanwhile::changed:
            if (!app.desk.guards().confirm("L'"_cp + order +
                                           " è stato cambiato dopo la bozza. Rimettere sulle sue "
                                           "righe quelle della bozza?"_cp)) {
                return;
            }
            break;
        case meanwhile::fulfilled:
            // What has left since can't be told from the draft's lines.
            return app.desk.warn("L'"_cp + order +
                                 " è stato cambiato dopo la bozza e in parte è evaso: la bozza non "
                                 "si può rimettere. Lo riapra dal registro."_cp);
    }
    show_opened(app, block, std::move(draft), std::move(file));
}

void mark_as_seen(program& app, bozza_trovata& found) {
    auto file = file_bozza::take(*app.person, found.name);
    if (!file) return;
    found.draft.tenuta = true;
    file->keep(*app.person, write_draft(found.draft));
}

std::string day_and_time(const std::string& moment) {
    const auto read = read_clock(moment);
    return read ? date_text(read->day) + " " + time_text(*read) : moment;
}

}  // namespace

std::string draft_name(const bozza& draft) {
    std::string name = "ordine ";
    if (!draft.nuova) name.append(draft.visto.numero.trimmed()).append(" ");
    return name + "di " + draft.testata.text2[campo_cliente::intestazione1];
}

void resume_draft(program& app, const std::string& name) {
    if (!app.person) return;
    if (app.mirorcs.loaded() || app.mirorcz.loaded()) {
        return app.desk.warn("Un altro ordine è aperto: prima va salvato o lasciato."_cp);
    }
    auto file = file_bozza::take(*app.person, name);
    if (!file) return app.desk.warn("La bozza è aperta in un'altra finestra."_cp);
    auto draft = draft_in(*app.person, name);
    if (!draft) return app.desk.warn("La bozza non si può leggere."_cp);
    if (!draft->nuova) return take_up_opened(app, std::move(*draft), std::move(*file));
    if (seems_saved(app, *draft) &&
        !app.desk.guards().confirm("Dopo la bozza è stato registrato un ordine "_cp +
                                   draft->testata.text3[campo_ordine::numero] + " di " +
                                   draft->testata.text2[campo_cliente::intestazione1] +
                                   ": può essere questo. Riprenderla lo stesso?"_cp)) {
        return;
    }
    show_new(app, std::move(*draft), std::move(*file));
}

void offer_drafts(program& app) {
    if (!app.desk.guards().on()) return;
    std::vector<bozza_trovata> lost;
    for (bozza_trovata& one : waiting_drafts(app)) {
        if (!one.draft.tenuta) lost.push_back(std::move(one));
    }
    if (lost.empty()) return;
    std::string question = "Riprendere l'" + draft_name(lost[0].draft) + " non salvato del " +
                           day_and_time(lost[0].draft.salvata) + "?";
    if (lost.size() > 1) {
        question += "\nAltri " + std::to_string(lost.size() - 1) + " sono fra le bozze.";
    }
    for (bozza_trovata& one : lost) mark_as_seen(app, one);
    if (app.desk.guards().confirm(question, ui::answer::yes)) resume_draft(app, lost[0].name);
}

}  // namespace vantora
