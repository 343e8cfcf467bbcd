#pragma once

#include "documents/document_tables.h"
#include "entry/article_list.h"
#include "entry/totals.h"
#include "program/program.h"
#include "ui/controls.h"

namespace vantora {

/// In what the screens that edit an order's lines differ.
struct line_grid_kind {
    const char* name;
    const char* title;
    tipo_documento documento;
    bool has_evaso;  ///< a column with the fulfilled quantity, between quantity and discounts
};

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
    ui::scroll_bar VScroll1;    ///< first line shown, 1 to 189
    ui::drop_down Combo1;       ///< VAT codes, shown while a `civ` cell is worked on
    ui::sorted_list_box List1;  ///< all live articles
    ui::label listx;            ///< stock of the current article
    ui::button command3d3;      ///< loads `List1` anew
    ui::button riordina;
    ui::option_button prezz[2];  ///< which of the article's prices a line takes
    ui::check_box barcode;
    ui::check_box postael;
    ui::check_box impegno;
    ui::label tota[3];  ///< taxable, grand total, pieces
    ui::button comando[7];
    ui::picture Picture1;

    [[nodiscard]] const righe_ordine& lines() const { return righe_; }
    [[nodiscard]] const totali_ordine& totals() const { return totali_; }

 protected:
    void load() override;

    /// What a command does, by its index in `comando`.
    virtual void run_command(int command) = 0;

    /// A fresh order of `cliente_`: no lines, the options as company and customer have them.
    void open_fresh(std::int16_t customer);
    void svuota_righe();
    /// Paints the twelve rows from the lines.
    void paint();
    /// At the current row, if that is one of the twelve.
    void insert_line();
    void delete_line();
    void printer_setup();

    program& app_;
    righe_ordine righe_;
    totali_ordine totali_;
    tabelle_documento tabelle_;
    disegno disegno_;
    valuta valuta_;
    rec_cli cliente_;
    rec_tot articoli_;  ///< counter of the articles

 private:
    friend class article_lookup;

    void register_controls();
    void wire_cells(int row);
    void wire_cell_focus(int row);
    void wire_enter(ui::text_box& cell, std::function<void()> then);
    void wire_controls();

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
    void compute_totals();
    void shift_lines(void (righe_ordine::*shift)(int));
    void sort_lines();
    /// False while `riga_corrente_` holds a line's number that no row has.
    [[nodiscard]] bool current_row_shown() const;
    /// Gives the focus to the current row's cell of a column.
    void return_to(ui::text_box (&column)[rows]);
    void clear_if_zero(ui::text_box& cell);

    const line_grid_kind& kind_;
    ui::option_group prezz_group_;
    int riga_corrente_ = 0;  ///< grid row last in focus; after a `civ` cell the line's number
    int prima_riga_ = 0;     ///< first line last seen; after a `civ` cell the grid row
    bool combo_attivo_ = false;

    // Article lookup ----------------------------------------------------------------------------

    void article_key(int row, ui::key_event& key);
    void article_enter(int row);
    void article_not_found(int row);
    void search_list(const std::string& wanted);
    void take_list_entry();
    void find_by_description(int row, ui::key_event& key);
    bool find_bar_code(const std::string& code);
    /// Fills the current row's line from `articolo_`.
    void copy_article(std::string_view code);
    void unfold_long_text(int line);
    void attiva_lista(bool on);
    void carica_lista(modo_lista mode);
    void reload_list();
    void barcode_clicked();
    void mostra_giacenza(std::int16_t article);

    static constexpr int lista_ferma = -1;
    int stato_lista_ = lista_ferma;  ///< -1: list not loaded or busy; else a modo_lista
    int lista_trovato_ = 0;          ///< outcome of the last search
    std::int16_t articolo_corrente_ = 0;
    rec_art articolo_;
};

}  // namespace vantora
