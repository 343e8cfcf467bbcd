#pragma once

#include <algorithm>

#include "documents/document_tables.h"
#include "entry/article_lookup.h"
#include "entry/line_history.h"
#include "entry/pasted_lines.h"
#include "orders/totals.h"
#include "program/program.h"
#include "ui/controls.h"

namespace vantora {

class paste_report;

/// What the labels `tota` can show.
enum class totale_mostrato { imponibile, complessivo, pezzi };

/// In what the screens that edit an order's lines differ.
struct line_grid_kind {
    const char* name;
    const char* title;
    tipo_documento documento;
    int commands = 7;          ///< elements of `comando` in use
    bool has_evaso = false;    ///< a column with the fulfilled quantity, and the check box `eva`
    bool has_scarica = false;  ///< this check box, otherwise `impegno`
    totale_mostrato tota[3] = {totale_mostrato::imponibile, totale_mostrato::complessivo,
                               totale_mostrato::pezzi};
};

/// Commands of `comando` that all of these screens have.
enum comando_comune { uscita, conferma, inserisci_riga, cancella_riga, stampante };

/// The grid in which an order's lines are edited: twelve rows over 200 lines, the list of articles
/// beside it, prices and totals. Typing, painting and picking all go through the change events of
/// the cells, so after any of them the lines say what the cells say and the totals are current.
class line_grid : public ui::form {
 public:
    static constexpr int rows = 12;

    line_grid(program& app, const line_grid_kind& kind);

    ui::text_box artic[rows];
    ui::text_box ds[rows];
    ui::text_box um[rows];
    ui::text_box quantita[rows];
    ui::text_box evaso[rows];
    ui::text_box sc1[rows];
    ui::text_box sc2[rows];
    ui::text_box prezzo[rows];
    ui::text_box civ[rows];
    ui::scroll_bar VScroll1;  ///< first line shown, 1 to 189
    ui::drop_down Combo1;     ///< VAT codes, shown while a `civ` cell is worked on
    ui::button command3d3;    ///< loads the list of articles anew
    ui::button riordina;
    ui::option_button prezz[2];  ///< which of the article's prices a line takes
    ui::check_box postael;
    ui::check_box impegno;
    ui::check_box eva;
    ui::check_box scarica;
    ui::label tota[3];
    ui::button comando[7];
    ui::picture Picture1;

    /// Holds the controls `List1`, `listx`, `scorta` and `barcode` of this screen.
    [[nodiscard]] article_lookup& lookup() { return lookup_; }
    [[nodiscard]] const righe_ordine& lines() const { return righe_; }
    [[nodiscard]] const totali_ordine& totals() const { return totali_; }
    [[nodiscard]] const ui::label& label_of(totale_mostrato which) const {
        return tota[std::ranges::find(kind_.tota, which) - kind_.tota];
    }

    /// All that was changed since the window came up, back and forth.
    bool take_back() override;
    bool bring_back() override;
    [[nodiscard]] bool keeps_changes_of(const ui::control& one) const override;

 protected:
    void load() override;
    /// Only shows the register; what stays behind is loaded afresh by its next use.
    void close() override;
    void settled() override;

    /// A command of `comando` that isn't one of `comando_comune` on lines and printer. It never
    /// comes while the screen saves or prints.
    virtual void run_command(int command) = 0;
    virtual void totals_changed() {}

    /// Empties the screen for the document of a customer and makes the article lookup ready.
    void open_lines(std::int16_t customer);
    /// Ticks `postael` where customer and company want documents by e-mail.
    void propose_mail();
    void svuota_righe();
    void compute_totals();
    /// Paints the twelve rows from the lines and computes the totals of all of them: whatever
    /// changed lines behind the grid ends with it.
    void paint();
    /// Scrolls a line into sight and gives it the focus; for a number that is none, nothing.
    void go_to_line(int number);

    [[nodiscard]] order_content content() const;
    void show_content(const order_content& content);
    /// Another order comes, or none.
    void forget_changes() { history_.clear(); }

    program& app_;
    righe_ordine righe_;
    totali_ordine totali_;
    tabelle_documento tabelle_;
    disegno disegno_;
    valuta valuta_;
    rec_cli cliente_;
    std::int16_t numero_cliente_ = 0;
    article_lookup lookup_;

 private:
    void register_controls();
    void wire_cells(int row);
    void wire_cell_focus(int row);
    /// What the cells of a row take from the keyboard: no number that a line can't hold, no text
    /// that its record would cut.
    void limit_hands(int row);
    void wire_controls();
    void wire_lookup();
    void command_clicked(int command);

    [[nodiscard]] int line_of(int row) const { return VScroll1.value() + row; }
    riga_ordine& changed_line(int row);
    void take_focus(int row, bool show_stock);
    void paint_rows(int first);
    void paint_row(int row);
    void price_changed(int row);
    void discount_gains_focus(int row);
    void description_gains_focus(int row);
    void go_to_next_row(int row);
    void open_vat_pick(int row);
    void take_vat_pick();
    /// Before something else is done in its row; then the row's number holds again.
    void leave_vat_pick();
    /// At the current row, if that is one of the twelve.
    void shift_lines(void (righe_ordine::*shift)(int));
    void sort_lines();
    /// False while `riga_corrente_` holds a line's number that no row has.
    [[nodiscard]] bool current_row_shown() const;
    [[nodiscard]] std::int16_t current_article() const;
    void return_to(ui::text_box (&column)[rows]);
    void clear_if_zero(ui::text_box& cell);

    const line_grid_kind& kind_;
    ui::option_group prezz_group_;
    int riga_corrente_ = 0;  ///< grid row last in focus; after a `civ` cell the line's number
    int prima_riga_ = 0;     ///< first line last seen; after a `civ` cell the grid row
    bool combo_attivo_ = false;
    bool painting_ = false;  ///< the totals are computed once, when it is done

    // Articles ------------------------------------------------------------------------------------

    void article_key(int row, ui::key_event& key);
    void article_enter(int row);
    void take_article(std::int16_t number, const rec_art& article, std::string_view code);
    /// The texts that an article's line has below it.
    [[nodiscard]] std::vector<std::string> long_text_of(std::int16_t article) const;
    /// Whether so many lines of text have room below a line, or nobody is to be kept from finding
    /// out: behind line 200 they end the program.
    bool has_room(int line, int below, std::string_view code);
    void unfold_long_text(const std::vector<std::string>& texts, int line);

    // Prices given before -------------------------------------------------------------------------

    void offer_prices();
    void look_prices_up(int row);

    // Pasting -------------------------------------------------------------------------------------

    void paste_lines(int row, const ui::pasted_text& pasted, const ui::paste_progress& goes_on);
    void paste_line(const pasted_line& line, int& at, paste_report& report);
    bool make_room(int at, int lines);
    /// The row of a line, scrolled into sight if need be.
    int row_showing(int line);
    void type_line(const pasted_line& line, int row);
    /// A bar code that was read while the cursor stood in another cell of the row is the next
    /// line's.
    void take_scan(int row, const std::string& code);

    // Back and forth ------------------------------------------------------------------------------

    [[nodiscard]] ui::text_box& cell_at(line_column column, int row);
    [[nodiscard]] ui::text_box& cell_to_return_to(const line_place& place, int row);
    /// Where a control stands among the lines; line 0 if it is none of their cells.
    [[nodiscard]] cell_in_work cell_of(const ui::control* one) const;
    bool go_along(std::optional<line_place> (line_history::*step)());

    line_history history_;
};

}  // namespace vantora
