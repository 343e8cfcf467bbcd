#pragma once

#include <optional>

#include "orders/customer_names.h"
#include "orders/order_seen.h"
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

    /// Brings the list up to date if other stations changed something, with the mark, the order of
    /// its rows and its place as they are.
    void catch_up() override;

 protected:
    void load() override;
    void activate() override;
    void close() override;

 private:
    void restore_view();
    void change_view();
    void sort_by(int button);
    void run_command(int button);
    /// The order that a row shows; 0 if none.
    [[nodiscard]] std::int16_t order_in(int row) const;
    void open_order();
    /// Opens an order at its row, if it is none that was deleted.
    void open_order(std::int16_t registrazione);
    void offer_enquiries();
    /// Shows a window in which something is looked up, and opens the order found there.
    void look_up(ui::screen_place& where);
    void print_again();
    [[nodiscard]] std::string hint(int row) const;
    /// That a row's order should have left already.
    [[nodiscard]] std::string notice(int row) const;
    void compact();
    /// False, with a message, if it can't begin.
    bool run_compaction(bool elimina_evasi);

    void lead_to(ui::screen_place& next);
    /// The screen that a command leads to. REQUIRES: `nuovo_ordine` or a later one.
    ui::screen_place& way(int button);
    /// False, with a message, if there is none.
    bool has_customers();

    [[nodiscard]] int first_listed(int last) const;
    void list_orders(list_rows& list);
    void list_order(list_rows& list, int registrazione, customer_names& names);

    // Other stations ----------------------------------------------------------------------------

    /// An order that only its head tells from others may have got another one here.
    void see_again(int registrazione);
    /// The order as it was listed; null if it wasn't, or couldn't be read.
    [[nodiscard]] const ordine_visto* seen(int registrazione) const;
    [[nodiscard]] std::optional<ordine_visto> seen_in(int row) const;
    /// Whether row 1 of a block, read anew, is another order's than the one listed.
    [[nodiscard]] bool moved_elsewhere(int registrazione, const rec_orc& row) const;
    /// The row that shows an order; 0 if none does.
    [[nodiscard]] int row_of(const ordine_visto& order) const;
    /// Builds the list anew with the mark on the same order.
    void list_anew();
    void tell_moved();

    program& app_;
    ui::option_group selvis_group_;
    ui::option_group visua_group_;
    list_grid lista_;
    bool compacting_ = false;
    std::optional<int> ordinata_per_;           ///< the button that the list was sorted by
    std::vector<ordine_visto> visti_;           ///< the orders listed, by `registrazione`
    int primo_visto_ = 1;                       ///< the first of them
    rec_tot listato_;                           ///< the counter of the orders as the list was read
    std::optional<std::int64_t> scritto_alle_;  ///< when their file had been written last
    rec_orc riga_;                              ///< work copy of an order's row
    rec_tot contatore_;                         ///< work copy of a counters record
};

}  // namespace vantora
