#include <algorithm>

#include "entry/line_grid.h"
#include "entry/paste_report.h"
#include "store/vat_codes.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

// What comes into the lines otherwise than by typing into a cell: an article or a VAT code that is
// picked, a price given before, lines that are pasted, a code that is scanned, what stood there
// before a change.

namespace {

/// In the order of line_column.
constexpr ui::text_box (line_grid::*columns[])[line_grid::rows] = {
    &line_grid::artic, &line_grid::ds,  &line_grid::um,  &line_grid::quantita,
    &line_grid::evaso, &line_grid::sc1, &line_grid::sc2, &line_grid::prezzo};

constexpr const char* why_refused(paste_fault fault) {
    switch (fault) {
        case paste_fault::no_code:
            return "manca il codice";
        case paste_fault::number:
            return "numero non valido";
        default:
            return "troppe colonne";
    }
}

void press_enter(ui::control& cell) {
    cell.press_key(ui::key::enter, static_cast<char>(ui::key::enter));
}

}  // namespace

// Articles ----------------------------------------------------------------------------------------

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

// VAT pick ----------------------------------------------------------------------------------------

void line_grid::open_vat_pick(int row) {
    Combo1.set_visible(true);
    combo_attivo_ = false;
    prima_riga_ = row;
    const auto typed = to_int16(number_at_head(civ[row].text())).value_or(1);
    const int code = std::clamp<int>(typed, 1, ultimo_codice_iva);
    riga_corrente_ = line_of(row);
    Combo1.choose(code - 1);
    lookup_.mostra_giacenza(righe_[riga_corrente_].articolo);
    Combo1.set_focus();
    combo_attivo_ = true;
}

void line_grid::take_vat_pick() {
    if (!combo_attivo_) return;
    const auto code = static_cast<std::int16_t>(Combo1.chosen() + 1);
    if (riga_corrente_ >= 1 && riga_corrente_ <= righe_ordine::massimo) {
        righe_[riga_corrente_].iva = code;
    }
    if (prima_riga_ >= 0 && prima_riga_ < rows) {
        civ[prima_riga_].set_text(two_digits(code));
        prezzo[prima_riga_].set_focus();
    }
    Combo1.set_visible(false);
    compute_totals();
}

void line_grid::leave_vat_pick() {
    if (!app_.desk.guards().on() || !Combo1.visible()) return;
    if (prima_riga_ >= 0 && prima_riga_ < rows) prezzo[prima_riga_].set_focus();
}

// Prices given before -----------------------------------------------------------------------------

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

// Pasting -----------------------------------------------------------------------------------------

// Lines that come from a spreadsheet are typed by the program: each goes through the events that a
// hand would have set off, so what holds for typing holds for them. What stands in the order
// already gives way downwards, and what finds no article or no room is told at the end.

void line_grid::paste_lines(int row, const ui::pasted_text& pasted,
                            const ui::paste_progress& goes_on) {
    if (at_work() || row < 0 || row >= rows) return;
    if (too_much_to_paste(pasted.text)) {
        return app_.desk.warn(
            "Sono troppe righe: se ne inseriscono al massimo 20.000, 4 MB in tutto. Nessuna è "
            "stata inserita."_cp);
    }
    const auto lines = read_pasted_lines(pasted.text, pasted.from_file);
    if (lines.empty()) return;
    paste_report report;
    {
        const work pasting(*this);
        app_.desk.set_pointer(ui::pointer::busy);
        int at = line_of(row);
        bool broken_off = false;
        const int count = static_cast<int>(lines.size());
        for (int i = 0; i < count; ++i) {
            broken_off = broken_off || (goes_on && !goes_on(i, count));
            if (broken_off) {
                report.refuse(lines[i], "interrotto");
            } else {
                paste_line(lines[i], at, report);
            }
        }
        if (goes_on) goes_on(static_cast<int>(lines.size()), static_cast<int>(lines.size()));
        if (at <= righe_ordine::massimo) artic[row_showing(at)].set_focus();
        app_.desk.set_pointer(ui::pointer::normal);
    }
    report.tell(app_.desk, lines.size());
}

/// `at`: the line that it takes; behind it, the next one.
void line_grid::paste_line(const pasted_line& line, int& at, paste_report& report) {
    if (line.fault != paste_fault::none) return report.refuse(line, why_refused(line.fault));
    const std::int16_t article = lookup_.article_of(line.code);
    if (article == 0) return report.refuse(line, "articolo non trovato");
    const int below = static_cast<int>(long_text_of(article).size());
    if (!make_room(at, below + 1)) return report.refuse(line, "non c'è posto"_cp);
    const int row = row_showing(at);
    type_line(line, row);
    report.doubt(line);
    at += 1 + below;
}

/// Blank lines from here on; those that stand there move down as by the command, but none out.
bool line_grid::make_room(int at, int lines) {
    if (at + lines - 1 > righe_ordine::massimo) return false;
    int missing = 0;
    while (missing < lines && is_empty(righe_[at + lines - 1 - missing])) ++missing;
    missing = lines - missing;
    for (int i = 0; i < missing; ++i) {
        if (!is_empty(righe_[righe_ordine::massimo - i])) return false;
    }
    for (int i = 0; i < missing; ++i) {
        righe_.insert(at);
        righe_[at].evaso = 0;  // of the line that moved down
    }
    if (missing > 0) paint();
    return true;
}

int line_grid::row_showing(int line) {
    const int first = VScroll1.value();
    if (line < first) VScroll1.set_value(line);
    if (line >= first + rows) VScroll1.set_value(line - rows + 1);
    return line - VScroll1.value();
}

void line_grid::type_line(const pasted_line& line, int row) {
    artic[row].set_focus();
    artic[row].set_text("");
    for (const char one : line.code) artic[row].press_key(ui::key::of(one), one);
    press_enter(artic[row]);
    if (!line.quantity.empty()) quantita[row].set_text(line.quantity);
    press_enter(quantita[row]);
    if (kind_.has_evaso) press_enter(evaso[row]);
    if (!line.discount1.empty()) {
        sc1[row].set_text(line.discount1);
        sc2[row].set_text(line.discount2);
    }
    press_enter(sc1[row]);
    press_enter(sc2[row]);
    if (!line.price.empty()) prezzo[row].set_text(line.price);
}

void line_grid::take_scan(int row, const std::string& code) {
    int line = line_of(row) + 1;
    while (line <= righe_ordine::massimo && !is_empty(righe_[line])) ++line;
    if (line > righe_ordine::massimo) {
        return app_.desk.warn("Per il codice " + code + " non c'è una riga libera."_cp);
    }
    const int free = row_showing(line);
    artic[free].set_focus();
    artic[free].set_text("");
    for (const char one : code) artic[free].press_key(ui::key::of(one), one);
    app_.desk.note("Codice " + code + " letto nella riga " + std::to_string(line));
    press_enter(artic[free]);
}

// Back and forth ----------------------------------------------------------------------------------

void line_grid::settled() {
    if (at_work()) return;
    lookup_.tell_stock(current_article());
    if (history_.begun()) return history_.note(content(), cell_of(app_.desk.focus()));
    history_.begin(content());
}

order_content line_grid::content() const {
    order_content now{righe_, {}, {}};
    for (int row = 0; row < rows; ++row) {
        const std::string& code = artic[row].text();
        if (trimmed(code) != righe_[line_of(row)].codice.trimmed()) {
            now.typed_codes[line_of(row)] = code;
        }
    }
    now.choices = {prezz[0].on(), prezz[1].on(), impegno.on(),
                   eva.on(),      scarica.on(),  postael.on()};
    return now;
}

void line_grid::show_content(const order_content& content) {
    righe_ = content.lines;
    const auto& choices = content.choices;
    for (const int price : {0, 1}) {
        if (choices[static_cast<std::size_t>(price)]) prezz[price].set_on(true);
    }
    impegno.set_on(choices[2]);
    eva.set_on(choices[3]);
    scarica.set_on(choices[4]);
    postael.set_on(choices[5]);
    paint_rows(0);
    for (const auto& [line, code] : content.typed_codes) {
        const int row = line - VScroll1.value();
        if (row >= 0 && row < rows) artic[row].set_text(code);
    }
    compute_totals();
}

ui::text_box& line_grid::cell_at(line_column column, int row) {
    return (this->*columns[static_cast<std::size_t>(column)])[row];
}

cell_in_work line_grid::cell_of(const ui::control* one) const {
    for (std::size_t column = 0; column < std::size(columns); ++column) {
        for (int row = 0; row < rows; ++row) {
            const ui::text_box& cell = (this->*columns[column])[row];
            if (&cell == one) {
                return {{line_of(row), static_cast<line_column>(column)}, cell.text()};
            }
        }
    }
    return {};
}

bool line_grid::keeps_changes_of(const ui::control& one) const {
    return cell_of(&one).at.line != 0;
}

ui::text_box& line_grid::cell_to_return_to(const line_place& place, int row) {
    using enum line_column;
    // Coming to a description would take the article off.
    if (place.column == description && righe_[place.line].articolo > 0) return artic[row];
    if (place.column == fulfilled && !kind_.has_evaso) return quantita[row];
    return cell_at(place.column, row);
}

bool line_grid::go_along(std::optional<line_place> (line_history::*step)()) {
    if (at_work()) return false;
    const auto place = (history_.*step)();
    if (!place) return false;
    // Scrolling lets events run.
    const work going(*this);
    const order_content shown = history_.now();
    if (place->line == 0) {
        show_content(shown);
    } else {
        const int row = row_showing(place->line);
        show_content(shown);
        cell_to_return_to(*place, row).set_focus();
        show_content(shown);  // a discount comes up with the customer's own
        lookup_.follow_cell(artic[row].text());
    }
    history_.stand_at(content(), cell_of(app_.desk.focus()));
    return true;
}

bool line_grid::take_back() {
    return go_along(&line_history::back);
}

bool line_grid::bring_back() {
    return go_along(&line_history::forth);
}

}  // namespace vantora
