#pragma once

#include <string>
#include <vector>

#include "program/list_grid.h"
#include "ui/controls.h"

namespace vantora {

/// In what the enquiries differ outside their lists.
struct tipo_ricerca {
    const char* name;
    const char* title;
    std::vector<ui::grid_column> colonne;
    std::vector<const char*> comandi;  ///< captions of `bottone`, the first one leaves
    bool si_riordina = true;           ///< a click on a head sorts
    /// The column of the days, and the one that holds their stored form, by which they sort.
    int giorno = -1;
    int giorno_stored = -1;
};

/// A list that somebody looks something up in, in front of the screen that it was opened from. It
/// reads the archive and never writes. Arrows and clicks mark a row, Enter opens it, a click on a
/// column's head sorts.
class enquiry_screen : public ui::form {
 public:
    static constexpr int comandi_massimi = 4;

    enquiry_screen(program& app, tipo_ricerca kind);

    ui::grid elenco;
    ui::button bottone[comandi_massimi];
    /// Elements of `bottone` in use.
    [[nodiscard]] int commands() const { return static_cast<int>(kind_.comandi.size()); }

    ui::label esito;  ///< what the list holds, or why it holds nothing

 protected:
    void load() override;
    void activate() override;

    /// Fills the list; returns what there is to say of it, in the code page. Nothing stands in it
    /// until something was looked for, if that is how a kind begins.
    virtual std::string fill(list_rows& /*list*/) { return {}; }
    /// What Enter does on a row in use.
    virtual void open_row(int row) = 0;
    /// A command behind the one that leaves, on the marked row.
    virtual void run_command(int /*command*/, int row) { open_row(row); }
    virtual void go_back() { leave(); }

    void show_columns() { elenco.set_columns(kind_.colonne); }
    void build();
    /// The list has so many rows in use, head included: says so and marks the first one.
    void finish(int in_use, std::string_view said);
    /// For a pass over many orders: shows how far it is, and lets the user leave meanwhile. False
    /// if they did.
    bool goes_on(list_rows& list, int passed, int of);
    void leave() { unload(); }
    /// What a cell holds as a number; 0 if it is none of 16 bits.
    [[nodiscard]] std::int16_t number_in(int row, int column) const;

    program& app_;
    list_grid lista_;

 private:
    void clicked();
    void command_clicked(int command);
    [[nodiscard]] bool in_use(int row) const { return row > 0 && row < lista_.in_use(); }

    tipo_ricerca kind_;
    bool built_ = false;
};

/// "12 documenti", or "Nessun documento" where there is none.
std::string how_many(int count, const char* one, const char* many);

}  // namespace vantora
