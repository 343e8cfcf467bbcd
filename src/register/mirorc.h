#pragma once

#include "orders/customer_names.h"
#include "program/list_grid.h"
#include "ui/controls.h"

namespace vantora {

/// The register of orders, the program's home screen: one row per order block, in several views
/// and sorts, and the way to every other screen. Closing it ends the program.
class mirorc final : public ui::form {
 public:
    explicit mirorc(program& app);

    /// The list never shows fewer rows, head included.
    static constexpr int righe_minime = 26;

    /// Columns of `elenco`.
    enum colonna { registr, ordine, data, cliente, descrizione, evasione, data_stored = 8 };

    /// Commands of `bottone`.
    enum comando {
        uscita,
        aggiorna,
        nuovo_ordine,
        elenco_ordini,
        scadenziario,
        valorizzazione,
        schede_clienti,
        schede_articoli,
        fulfilment
    };

    ui::grid elenco;
    ui::button srx[6];
    ui::option_button selvis[3];
    ui::option_button visua[2];
    ui::button bottone[9];
    ui::progress_bar srt;
    ui::label srtt[2];
    ui::label avviso;  ///< shown where the view leaves orders out that have no place in the list
    ui::label xx_versione;
    ui::picture xsfondo;

    /// Reads the archive anew and shows it by the chosen view.
    void build_list();

 protected:
    void load() override;
    void activate() override;
    void close() override;

 private:
    void restore_view();
    void change_view();
    void sort_by(int button);
    void run_command(int button);
    void open_order();
    /// Opens an order at its row, if it is none that was deleted.
    void open_order(std::int16_t registrazione);
    void offer_enquiries();
    /// Shows a window in which something is looked up, and opens the order found there.
    void look_up(ui::screen_place& where);
    void print_again();
    /// The first lines of a row's order, what is open of it, what it is worth.
    [[nodiscard]] std::string hint(int row) const;
    /// That a row's order should have left already.
    [[nodiscard]] std::string notice(int row) const;
    void compact();
    /// False, with a message, if it can't begin.
    bool run_compaction(bool elimina_evasi);

    void lead_to(ui::screen_place& next);
    void lead_to_if_customers(ui::screen_place& next);

    [[nodiscard]] int first_listed(int last) const;
    void list_orders(list_rows& list);
    void list_order(list_rows& list, int registrazione, customer_names& names);

    program& app_;
    ui::option_group selvis_group_;
    ui::option_group visua_group_;
    list_grid lista_;
    bool compacting_ = false;
    rec_orc riga_;       ///< work copy of an order's row
    rec_tot contatore_;  ///< work copy of a counters record
};

}  // namespace vantora
