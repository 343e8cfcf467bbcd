#pragma once

#include <optional>
#include <vector>

#include "program/list_grid.h"
#include "program/program.h"
#include "reports/report.h"
#include "store/block_reader.h"
#include "ui/controls.h"

namespace vantora {

/// The fields by which a user chooses what a report lists.
enum class filtro {
    inizio,         ///< `t_inizio`
    fine,           ///< `t_fine`
    categoria,      ///< `Combo0`
    fornitore,      ///< `Text(1)`
    descrizione,    ///< `Text3`
    stato_ordini,   ///< `Combo1`: all, open or fulfilled
    dettaglio,      ///< `Combo2`: one line an order, or all its rows
    primo_ordine,   ///< `text1(0)`
    ultimo_ordine,  ///< `text1(1)`
    prima_data,     ///< `text2(0)`
    ultima_data     ///< `text2(1)`
};

/// In what the report screens differ, as far as data says it.
struct tipo_report {
    const char* name;
    const char* title;
    std::vector<ui::grid_column> colonne;  ///< those of width 0, at the end, are hidden
    int righe_minime;                      ///< the list never shows fewer rows, head included
    std::vector<filtro> filtri;            ///< in the order in which Enter goes through them
    bool rilegge_parametri;                ///< loads the parameters of the suite anew
    /// Lines that stand in the list until the user has it built; none: the screen builds it itself
    /// as it opens, and whenever a selector changes.
    std::vector<const char*> suggerimento;
    descrizione_report stampa;
};

/// Which orders a list goes over, both ends included.
struct limiti_ordini {
    int primo = 1;
    int ultimo = 0;
};

/// Rows that the list of a report takes, without the head.
inline constexpr int righe_report = righe_riservate - 1;

/// A report on the orders: filters, a list that is built on demand, and the ways to send that list
/// to the printer or into a PDF. Writes no record.
class report_screen : public ui::form {
 public:
    /// `kind` outlives the screen.
    report_screen(program& app, const tipo_report& kind);

    /// Commands of `bottone`.
    enum comando { uscita, pdf, stampa, stampante, aggiorna };

    /// Entries of `Combo1`.
    enum stato_ordini { tutti, da_evadere, evasi };

    ui::text_box t_inizio;
    ui::text_box t_fine;
    ui::drop_down Combo0;
    ui::text_box Text;  ///< number 1 of its array
    ui::text_box Text3;
    ui::drop_down Combo1;
    ui::drop_down Combo2;
    ui::text_box text1[2];
    ui::text_box text2[2];
    ui::button bottone[5];
    ui::progress_bar srt;
    ui::grid elenco;
    ui::date_picker text5[2];  ///< beside `text2`, where a report has that
    ui::label avviso;          ///< shown where the list lacks rows

    /// The fields that this report has, in the order in which Enter goes through them.
    [[nodiscard]] const std::vector<filtro>& filters() const { return kind_.filtri; }
    /// The calendar beside a day; null beside all else.
    [[nodiscard]] const ui::date_picker* calendar(filtro which) const {
        if (which == filtro::prima_data) return &text5[0];
        return which == filtro::ultima_data ? &text5[1] : nullptr;
    }
    [[nodiscard]] ui::control& filter(filtro which) { return field(which).control; }

    /// Rows that the report lists; 0 until it was built.
    [[nodiscard]] int listed() const { return built_ ? righe_elenco_ - 1 : 0; }

    /// Builds the list. While that lasts the user may go on working: another call does nothing,
    /// leaving the screen ends it.
    void build_list();

 protected:
    void load() override;
    void activate() override;
    void close() override;

    /// Fills the fields as the screen opens.
    virtual void fill_fields();
    /// Whether the fields are such that a list can be made of them; the user is told why not.
    virtual bool ready() { return true; }
    /// Fills the list. Returns at once where carry_on() says so.
    virtual void fill(list_rows& list, const limiti_ordini& orders) = 0;
    /// Which orders the list goes over; the bounds as they stand unless a report knows better.
    virtual limiti_ordini limits();
    /// The user chose an entry of a selector.
    virtual void selector_changed(filtro /*which*/) { build_list(); }
    /// The last step of the progress bar; the first is 1.
    [[nodiscard]] virtual int last_step(const limiti_ordini& orders) const;

    /// Shows how much of the build is done, of 0 to 1, and lets the user work. False if the build
    /// is to end: the screen may be gone.
    bool carry_on(double done);
    /// How much of the orders is done when `order` is.
    static double share_done(int order, const limiti_ordini& orders);
    /// The bounds as typed, brought back among the orders that there are, in the fields too: the
    /// lower one begins at 1, the upper one ends at the last, and they don't cross.
    limiti_ordini correct_limits();

    program& app_;
    block_reader<rec_orc> ordini_;  ///< goes on from build to build
    // The counters, as read before each use.
    rec_tot articoli_;
    rec_tot clienti_;
    rec_tot contatore_;

 private:
    struct campo {
        const char* name;
        std::optional<int> index;
        ui::control& control;
    };
    campo field(filtro which);
    void read_counters();
    void show_suggestion();
    void go_on_from(std::size_t place);
    void select(filtro which);
    void run_command(int button);
    void put_out(uscita_report to);
    void leave();
    void build_once();
    [[nodiscard]] limiti_ordini held(limiti_ordini orders) const;

    const tipo_report& kind_;
    list_grid lista_;
    bool opened_ = false;
    bool built_ = false;
    bool building_ = false;
    bool wanted_anew_ = false;  ///< a selector changed during a build
    bool left_ = false;         ///< the screen is closed; something of it may still run
    int righe_elenco_ = 1;      ///< rows of the list in use, head included
};

}  // namespace vantora
