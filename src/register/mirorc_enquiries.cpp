#include "enquiry/archived_document.h"
#include "enquiry/bozze.h"
#include "register/mirorc.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

// What can be looked up and printed from the register, beside its commands.

void mirorc::offer_enquiries() {
    const auto at_rest = [this] { return !compacting_; };
    const auto lead = [this](ui::screen_place& where) {
        return [this, &where] { look_up(where); };
    };
    offer({"ricerca", "Cerca negli o&rdini", "Ctrl+Shift+F", at_rest, lead(app_.ricerca)});
    offer({"documenti", "&Documenti di trasporto", "Ctrl+T", at_rest, lead(app_.documenti)});
    offer({"quadro", "&Quadro degli ordini", "Ctrl+B", at_rest, lead(app_.quadro)});
    offer({"bozze", "&Bozze", "Ctrl+Shift+B",
           [this] { return !compacting_ && app_.person != nullptr; }, lead(app_.bozze),
           [this] { return app_.person ? numero_bozze(app_) : 0; }});
    offer({"ristampa", "Ristam&pa l'ordine", "Ctrl+P",
           [this] { return !compacting_ && elenco.row() > 0; }, [this] { print_again(); }});
}

void mirorc::look_up(ui::screen_place& where) {
    app_.ordine_cercato = {};
    where.use().show_over();
    if (app_.ordine_cercato.registrazione > 0) open_order(app_.ordine_cercato.registrazione);
}

void mirorc::print_again() {
    const auto block = to_int16(number_at_head(elenco.text(elenco.row(), registr)));
    if (!block || *block < 1) return;
    auto order = ordine_archiviato(app_, *block);
    if (!order.perche.empty()) {
        app_.desk.message(order.perche, ui::attention, ui::icon::stop);
        return;
    }
    const work printing(*this);
    const auto wanted = app_.desk.show_box(
        {"Ristampare l'ordine " + order.testata.text3[campo_ordine::numero] + "?",
         "Ristampa",
         ui::icon::question,
         ui::buttons::choice,
         ui::answer::choice_1,
         {"Anteprima", "Stampa", "PDF", "Annulla"}});
    constexpr uscita_ristampa outputs[] = {uscita_ristampa::anteprima, uscita_ristampa::stampa,
                                           uscita_ristampa::pdf};
    if (wanted == ui::answer::choice_4) return;
    ristampa(app_, order, outputs[static_cast<int>(wanted) - 1]);
}

}  // namespace vantora
