#include "entry/line_grid.h"
#include "text/number_text.h"

namespace vantora {

// What an article was sold for before, taken into the row that asks.

void line_grid::offer_prices() {
    offer({"prezzi", "Pre&zzi praticati", "F8",
           [this] { return current_row_shown() && righe_[line_of(riga_corrente_)].articolo > 0; },
           [this] { look_prices_up(riga_corrente_); }});
}

void line_grid::look_prices_up(int row) {
    app_.prezzi_di = {righe_[line_of(row)].articolo, numero_cliente_};
    app_.prezzo_scelto.reset();
    app_.prezzi.use().show_over();
    const auto chosen = std::exchange(app_.prezzo_scelto, {});
    if (!chosen) return;
    sc1[row].set_text(chosen->sc1 == 0 ? std::string() : plain_text(chosen->sc1));
    sc2[row].set_text(chosen->sc2 == 0 ? std::string() : plain_text(chosen->sc2));
    prezzo[row].set_text(plain_text(chosen->prezzo));
    prezzo[row].set_focus();
}

}  // namespace vantora
