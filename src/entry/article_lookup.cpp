#include "entry/article_lookup.h"

#include "orders/stock.h"
#include "program/list_grid.h"
#include "store/key_index.h"
#include "text/number_text.h"

namespace vantora {

// While code moves the list's selection, and while a line takes an article, `lista_pronta_` keeps
// the list's own click from counting.

void article_lookup::count_articles() {
    app_.archives.tot.read(contatori::articoli, contatore_);
}

// The list --------------------------------------------------------------------------------------

void article_lookup::open() {
    count_articles();
    lista_pronta_ = false;
    barcode.set_on(app_.parameters.gnr.usa_barcode != 0);
    if (articles() >= 1 && !barcode.on()) attiva_lista(true);
}

void article_lookup::reload() {
    lista_pronta_ = false;
    attiva_lista(true);
}

void article_lookup::barcode_switched() {
    count_articles();
    if (barcode.on()) {
        attiva_lista(false);
    } else if (lista_pronta_ || articles() >= 1) {
        attiva_lista(true);
    }
}

void article_lookup::attiva_lista(bool on) {
    count_articles();
    List1.set_enabled(on);
    if (on && !lista_pronta_) carica_lista();
}

void article_lookup::carica_lista() {
    app_.desk.set_pointer(ui::pointer::busy);
    count_articles();
    List1.clear();
    {
        list_progress progress(app_.desk, List1);
        List1.add_all(article_entries_of(app_.archives.art_blocchi, articles(),
                                         [&](int done, int of) { progress.come_to(done, of); }));
    }
    app_.desk.set_pointer(ui::pointer::normal);
    lista_pronta_ = true;
}

void article_lookup::search_list(const std::string& wanted) {
    if (!can_search()) return;
    lista_pronta_ = false;
    lista_trovato_ = 0;
    const int found = find_entry(List1.items(), wanted);
    if (found >= 0) {
        lista_trovato_ = 1;
        List1.choose(found);
    }
    lista_pronta_ = true;
}

void article_lookup::take_list_entry() {
    if (!lista_pronta_) return;
    lista_pronta_ = false;
    articolo_corrente_ = article_number(List1.text());
    const bool read = app_.archives.art.read(articolo_corrente_, articolo_);
    if (read && articolo_.codice.trimmed() != entry_code(List1.text()) &&
        app_.desk.guards().refuse("Gli articoli sono stati cambiati altrove: "
                                  "l'elenco viene riletto.")) {
        return reload();
    }
    if (read) report(articolo_.codice.trimmed());
    lista_pronta_ = true;
}

void article_lookup::report(std::string_view code) {
    if (on_found) on_found(articolo_corrente_, articolo_, code);
}

// Codes -----------------------------------------------------------------------------------------

void article_lookup::follow_cell(std::string_view code) {
    lista_trovato_ = 0;
    if (!code.empty()) search_list(upper(trimmed(code)));
}

void article_lookup::follow_key(std::string_view code, char key) {
    search_list(upper(trimmed(code)) + upper(key));
}

bool article_lookup::take_code(std::string_view code) {
    if (!barcode.on()) {
        if (lista_trovato_ == 0) return false;
        take_list_entry();
        return true;
    }
    if (!find_bar_code(upper(trimmed(code)))) return false;
    report(articolo_.codice_barre.trimmed());
    return true;
}

std::int16_t article_lookup::article_of(std::string_view code) {
    const std::string wanted = upper(trimmed(code));
    if (barcode.on()) return find_bar_code(wanted) ? articolo_corrente_ : 0;
    if (!can_search() || wanted.empty()) return 0;
    const int found = find_entry(List1.items(), wanted);
    if (found < 0) return 0;
    const std::string& entry = List1.item(found);
    return upper(entry_code(entry)) == wanted ? article_number(entry) : std::int16_t{0};
}

bool article_lookup::find_bar_code(const std::string& code) {
    count_articles();
    lista_trovato_ = look_up_bar_code(app_.archives.srb, articles(), code);
    rec_srb entry;
    if (!app_.archives.srb.read(lista_trovato_, entry)) return false;
    articolo_corrente_ = entry.numero;
    return app_.archives.art.read(articolo_corrente_, articolo_) && articolo_.eliminato == 0;
}

// Descriptions and stock --------------------------------------------------------------------------

bool article_lookup::take_description(std::string_view text) {
    if (!can_search()) return false;
    lista_trovato_ = 0;
    count_articles();
    const std::int16_t found = find_description(app_.archives.art, articles(), trimmed(text));
    lista_trovato_ = found;
    if (found == 0) return true;
    rec_art article;
    app_.archives.art.read(found, article);
    search_list(upper(article.codice.trimmed()));
    if (lista_trovato_ == 1) take_list_entry();
    return true;
}

void article_lookup::mostra_giacenza(std::int16_t article) {
    if (article <= 0 || article == article_number(listx.text())) return;
    rec_art record;
    app_.archives.art.read(article, record);
    listx.set_text(stock_entry(record, article));
}

void article_lookup::tell_stock(std::int16_t article) {
    rec_art record;
    const bool there = is_article(article, articles()) && app_.archives.art.read(article, record);
    scorta.set_text(there ? stock_text(record) : std::string());
}

}  // namespace vantora
