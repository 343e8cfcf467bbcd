#include "entry/line_grid.h"
#include "orders/stored_lines.h"
#include "store/vat_codes.h"

namespace vantora {

// How a line takes the article that was found for it.

void line_grid::wire_lookup() {
    lookup_.on_found = [this](std::int16_t number, const rec_art& article, std::string_view code) {
        take_article(number, article, code);
    };
    lookup_.List1.on_click = [this] {
        leave_vat_pick();
        if (current_row_shown()) lookup_.take_list_entry();
    };
    lookup_.List1.set_enabled(false);
    lookup_.barcode.on_click = [this] {
        lookup_.barcode_switched();
        if (!current_row_shown()) riga_corrente_ = 0;
        return_to(artic);
    };
    command3d3.on_click = [this] {
        lookup_.reload();
        return_to(artic);
    };
}

void line_grid::article_key(int row, ui::key_event& key) {
    if (key.code == ui::key::enter) {
        key.swallow();
        article_enter(row);
        return;
    }
    lookup_.follow_key(artic[row].text(), static_cast<char>(key.code));
}

void line_grid::article_enter(int row) {
    const std::string code(trimmed(artic[row].text()));
    if (code.empty()) {
        ds[row].set_focus();
        return;
    }
    if (lookup_.take_code(code)) return;
    app_.desk.message("Articolo non esistente", ui::attention, ui::icon::stop);
    artic[row].set_focus();
}

void line_grid::take_article(std::int16_t number, const rec_art& article, std::string_view code) {
    const int at = line_of(riga_corrente_);
    const auto long_text = long_text_of(number);
    if (!has_room(at, static_cast<int>(long_text.size()), code)) return return_to(artic);
    riga_ordine& line = righe_[at];
    line.articolo = number;
    line.codice = code;
    line.descrizione = article.descrizione.trimmed();
    line.iva = own_vat_code(cliente_).value_or(article.iva);
    line.prezzo = finite_or_zero(prezz[0].on() ? article.prezzo1 : article.prezzo2);
    line.um = article.um.trimmed();
    line.peso = finite_or_zero(article.peso);
    unfold_long_text(long_text, at);
    paint();
    return_to(quantita);
}

std::vector<std::string> line_grid::long_text_of(std::int16_t article) const {
    std::vector<std::string> texts;
    rec_prx text;
    if (!app_.archives.prx.read(article, text)) return texts;
    if (text.marca_testo != rec_prx::ha_testo) return texts;
    for (const auto& written : text.righe) {
        const std::string clean = filtra_stampa(written.full());
        if (!trimmed(clean).empty()) texts.emplace_back(trimmed(clean));
    }
    return texts;
}

bool line_grid::has_room(int line, int below, std::string_view code) {
    const int left = righe_ordine::massimo - line;
    return below <= left || !app_.desk.guards().refuse(
                                "Il testo lungo dell'articolo " + std::string(code) + " prende " +
                                std::to_string(below) + " righe: dopo questa ne restano " +
                                std::to_string(left) + ". L'articolo non è stato inserito."_cp);
}

void line_grid::unfold_long_text(const std::vector<std::string>& texts, int line) {
    for (const std::string& text : texts) {
        riga_ordine& below = righe_[++line];
        clear_line(below);
        below.descrizione = text;
    }
}

}  // namespace vantora
