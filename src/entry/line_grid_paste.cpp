#include <algorithm>

#include "entry/line_grid.h"
#include "entry/pasted_lines.h"

namespace vantora {

// Lines that come from a spreadsheet are typed by the program: each goes through the events that a
// hand would have set off, so what holds for typing holds for them. What stands in the order
// already gives way downwards, and what finds no article or no room is told at the end.

namespace {

constexpr std::size_t told_whole = 20;  ///< refused lines that the box tells

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

class line_grid::paste_report {
 public:
    void refuse(const pasted_line& line, std::string_view why) {
        const std::string one = told(line) + " - " + std::string(why);
        if (refused_++ < told_whole) text_ += one;
        all_ += one.substr(1) + "\n";
    }
    void doubt(const pasted_line& line) {
        if (!line.doubtful.empty() && doubtful_++ < told_whole) doubts_ += told(line);
    }
    /// Tells what wasn't inserted and what is doubtful, if anything is. `lines`: how many there
    /// were.
    void tell(ui::desk& on, std::size_t lines) const {
        ui::message_box box{message(lines), ui::attention, ui::icon::warning};
        if (box.text.empty()) return;
        if (refused_ > 0 && on.guards().on()) {
            box.buttons = ui::buttons::choice;
            box.choices = {"Salva l'elenco", "Chiudi"};
            box.proposed = ui::answer::choice_2;
        }
        if (on.show_box(std::move(box)) == ui::answer::choice_1) {
            on.offer_to_save("Righe non inserite", all_);
        }
    }

 private:
    [[nodiscard]] std::string message(std::size_t lines) const {
        std::string all;
        if (refused_ > 0) {
            all = "Righe inserite: " + std::to_string(lines - refused_) + " di " +
                  std::to_string(lines) + "\nNon inserite:" + text_ + further(refused_);
        }
        if (doubtful_ > 0) {
            all += (all.empty() ? "" : "\n\n") +
                   "Da controllare, il punto è stato preso per la virgola dei decimali:"_cp +
                   doubts_ + further(doubtful_);
        }
        return all;
    }
    static std::string told(const pasted_line& line) {
        std::string source = line.source.substr(0, 60);
        std::ranges::replace(source, '\t', ' ');
        return "\nriga " + std::to_string(line.number) + ": " + source;
    }
    static std::string further(std::size_t count) {
        if (count <= told_whole) return {};
        return "\ne altre " + std::to_string(count - told_whole);
    }

    std::size_t refused_ = 0;
    std::size_t doubtful_ = 0;
    std::string text_;
    std::string all_;  ///< what was refused, whole
    std::string doubts_;
};

void line_grid::paste_lines(int row, const ui::pasted_text& pasted,
                            const ui::paste_progress& goes_on) {
    if (at_work() || row < 0 || row >= rows) return;
    if (too_much_to_paste(pasted.text)) {
        return app_.desk.message(
            "Sono troppe righe: se ne inseriscono al massimo 20.000, 4 MB in "
            "tutto. Nessuna è stata inserita."_cp,
            ui::attention, ui::icon::warning);
    }
    const auto lines = read_pasted_lines(pasted.text, pasted.from_file);
    if (lines.empty()) return;
    paste_report report;
    {
        const work pasting(*this);
        app_.desk.set_pointer(ui::pointer::busy);
        int at = line_of(row);
        bool broken_off = false;
        for (std::size_t i = 0; i < lines.size(); ++i) {
            broken_off = broken_off ||
                         (goes_on && !goes_on(static_cast<int>(i), static_cast<int>(lines.size())));
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
        return app_.desk.message("Per il codice " + code + " non c'è una riga libera."_cp,
                                 ui::attention, ui::icon::warning);
    }
    const int free = row_showing(line);
    artic[free].set_focus();
    artic[free].set_text("");
    for (const char one : code) artic[free].press_key(ui::key::of(one), one);
    app_.desk.note("Codice " + code + " letto nella riga " + std::to_string(line));
    press_enter(artic[free]);
}

}  // namespace vantora
