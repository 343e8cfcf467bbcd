#include <cmath>

#include "entry/line_grid.h"
#include "program/vat_codes.h"
#include "store/key_index.h"
#include "store/text/number_text.h"

namespace vantora {

// How a line gets its article: by a code that the list follows, by a bar code, by a click on the
// list, or by a description. While code moves the list's selection, `stato_lista_` keeps the
// list's own click from counting.

void line_grid::wire_controls() {
    VScroll1.set_limits(1, righe_ordine::massimo - rows + 1);
    VScroll1.on_change = [this] { paint(); };
    Combo1.set_visible(false);
    Combo1.on_click = [this] { take_vat_pick(); };
    List1.on_click = [this] { take_list_entry(); };
    List1.set_enabled(false);
    command3d3.on_click = [this] { reload_list(); };
    riordina.on_click = [this] { sort_lines(); };
    barcode.on_click = [this] { barcode_clicked(); };
    for (int i = 0; i < 7; ++i) comando[i].on_click = [this, i] { run_command(i); };
}

// The list --------------------------------------------------------------------------------------

void line_grid::carica_lista(modo_lista mode) {
    app_.desk.set_pointer(ui::pointer::busy);
    app_.archives.tot.read(contatori::articoli, articoli_);
    List1.clear();
    List1.add_all(voci_articoli(app_.archives.art_blocchi, articoli_.quanti, mode));
    app_.desk.set_pointer(ui::pointer::normal);
    stato_lista_ = mode;
}

void line_grid::attiva_lista(bool on) {
    app_.archives.tot.read(contatori::articoli, articoli_);
    List1.set_enabled(on);
    if (on && stato_lista_ == lista_ferma) carica_lista(per_codice);
}

void line_grid::reload_list() {
    stato_lista_ = lista_ferma;
    attiva_lista(true);
    return_to(artic);
}

void line_grid::search_list(const std::string& wanted) {
    if (!List1.enabled() || stato_lista_ != per_codice) return;
    stato_lista_ = lista_ferma;
    lista_trovato_ = 0;
    const int found = cerca_voce(List1.items(), wanted);
    if (found >= 0) {
        lista_trovato_ = 1;
        List1.choose(found);
    }
    stato_lista_ = per_codice;
}

void line_grid::take_list_entry() {
    if (stato_lista_ == lista_ferma || !current_row_shown()) return;
    const int state = stato_lista_;
    stato_lista_ = lista_ferma;
    articolo_corrente_ = numero_articolo(List1.text());
    if (app_.archives.art.read(articolo_corrente_, articolo_)) {
        copy_article(articolo_.codice.trimmed());
    }
    stato_lista_ = state;
}

void line_grid::barcode_clicked() {
    app_.archives.tot.read(contatori::articoli, articoli_);
    if (barcode.on()) {
        attiva_lista(false);
    } else if (stato_lista_ >= 0 || articoli_.quanti >= 1) {
        attiva_lista(true);
    }
    if (!current_row_shown()) riga_corrente_ = 0;
    return_to(artic);
}

// The code cell ---------------------------------------------------------------------------------

void line_grid::article_key(int row, ui::key_event& key) {
    if (key.code == ui::key::enter) {
        key.swallow();
        article_enter(row);
        return;
    }
    const std::string code(trimmed(artic[row].text()));
    search_list(upper(code) + upper(static_cast<char>(key.code)));
}

void line_grid::article_enter(int row) {
    const std::string code = upper(trimmed(artic[row].text()));
    if (code.empty()) {
        ds[row].set_focus();
        return;
    }
    if (!barcode.on()) {
        if (lista_trovato_ != 0) return take_list_entry();
        return article_not_found(row);
    }
    if (!find_bar_code(code)) return article_not_found(row);
    copy_article(articolo_.codice_barre.trimmed());
}

bool line_grid::find_bar_code(const std::string& code) {
    app_.archives.tot.read(contatori::articoli, articoli_);
    lista_trovato_ = cerca_codice_barre(app_.archives.srb, articoli_.quanti, code);
    rec_srb entry;
    if (!app_.archives.srb.read(lista_trovato_, entry)) return false;
    articolo_corrente_ = entry.numero;
    return app_.archives.art.read(articolo_corrente_, articolo_) && articolo_.eliminato == 0;
}

void line_grid::article_not_found(int row) {
    app_.desk.message("Articolo non esistente", "Attenzione", ui::icon::stop);
    artic[row].set_focus();
}

void line_grid::find_by_description(int row, ui::key_event& key) {
    if (!List1.enabled() || stato_lista_ != per_codice) return;
    key.swallow();
    lista_trovato_ = 0;
    app_.archives.tot.read(contatori::articoli, articoli_);
    const std::int16_t found =
        cerca_descrizione(app_.archives.art, articoli_.quanti, trimmed(ds[row].text()));
    lista_trovato_ = found;
    if (found == 0) return;
    rec_art article;
    app_.archives.art.read(found, article);
    search_list(upper(article.codice.trimmed()));
    if (lista_trovato_ == 1) take_list_entry();
}

// Into the line -----------------------------------------------------------------------------------

void line_grid::copy_article(std::string_view code) {
    const rec_art& article = articolo_;
    const int number = line_of(riga_corrente_);
    riga_ordine& line = righe_[number];
    line.articolo = articolo_corrente_;
    line.codice = code;
    line.descrizione = article.descrizione.trimmed();
    line.iva = own_vat_code(cliente_).value_or(article.iva);
    const double price = prezz[0].on() ? article.prezzo1 : article.prezzo2;
    line.prezzo = std::isfinite(price) ? price : 0;
    line.um = article.um.trimmed();
    unfold_long_text(number);
    paint();
    return_to(quantita);
}

void line_grid::unfold_long_text(int line) {
    rec_prx text;
    if (!app_.archives.prx.read(articolo_corrente_, text)) return;
    if (text.marca_testo != rec_prx::ha_testo) return;
    for (const auto& written : text.righe) {
        const std::string clean = filtra_stampa(written.full());
        if (trimmed(clean).empty()) continue;
        riga_ordine& below = righe_[++line];
        clear_line(below);
        below.descrizione = trimmed(clean);
    }
}

void line_grid::mostra_giacenza(std::int16_t article) {
    if (article <= 0 || article == numero_articolo(listx.text())) return;
    rec_art record;
    app_.archives.art.read(article, record);
    listx.set_text(riga_giacenza(record, article));
}

}  // namespace vantora
