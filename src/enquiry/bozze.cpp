#include "enquiry/bozze.h"

#include "entry/draft_taking.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

enum comando { indietro, riprendi, abbandona };

}  // namespace

bozze::bozze(program& app)
    : enquiry_screen(app, {"bozze",
                           "Bozze",
                           {{"Cliente", 4000},
                            {"Ordine", 1200},
                            {"Riferimento", 3000},
                            {"Righe", 800, ui::alignment::right},
                            {"Non salvato del", 1900},
                            {"", 0}},
                           {"&Indietro", "&Riprendi", "&Abbandona"},
                           false}) {}

std::string bozze::fill(list_rows& list) {
    found_ = waiting_drafts(app_);
    for (std::size_t i = 0; i < found_.size(); ++i) {
        const bozza& draft = found_[i].draft;
        list.next();
        list.write(cliente, draft.testata.text2[campo_cliente::intestazione1]);
        list.write(ordine, draft.nuova ? "nuovo" : draft.visto.numero.trimmed());
        list.write(riferimento, draft.testata.text3[campo_ordine::riferimento1]);
        list.write(righe, std::to_string(last_used_line(draft.contenuto.lines)));
        if (const auto moment = read_clock(draft.salvata)) {
            list.write(tenuta_il, date_text(moment->day) + " " + time_text(*moment));
        }
        list.write(posizione, std::to_string(i));
    }
    if (found_.empty()) return "Nessuna bozza";
    return how_many(static_cast<int>(found_.size()), "bozza", "bozze");
}

void bozze::open_row(int row) {
    const std::string name = found_[place_of(row)].name;
    leave();
    resume_draft(app_, name);
}

void bozze::run_command(int command, int row) {
    if (command == riprendi) return open_row(row);
    if (command == abbandona) give_up(row);
}

void bozze::give_up(int row) {
    const bozza_trovata one = found_[place_of(row)];
    if (!desk().guards().confirm("Abbandonare l'" + draft_name(one.draft) + " non salvato?"))
        return;
    auto file = file_bozza::take(*app_.person, one.name);
    const auto there = draft_in(*app_.person, one.name);
    // Another window may have kept another order under this name since.
    if (file && there && there->salvata == one.draft.salvata) file->drop();
    build();
}

std::size_t bozze::place_of(int row) const {
    return static_cast<std::size_t>(number_at_head(elenco.text(row, posizione)));
}

int count_drafts(const program& app) {
    return static_cast<int>(waiting_drafts(app).size());
}

}  // namespace vantora
