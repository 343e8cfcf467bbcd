#pragma once

#include <string>
#include <vector>

#include "program/list_grid.h"
#include "ui/controls.h"

namespace vantora {

/// A column of an enquiry.
struct colonna_ricerca {
    ui::grid_column shown;
    /// The column that a click on the head sorts by, where that isn't this one: a day's stored
    /// form. It sorts by numbers.
    int sorts_by = -1;
};

/// In what the enquiries differ outside their lists.
struct tipo_ricerca {
    const char* name;
    const char* title;  ///< UTF-8
    std::vector<colonna_ricerca> colonne;
    std::vector<const char*> comandi;  ///< captions of `bottone`, the first one leaves; UTF-8
    bool si_riordina = true;           ///< a click on a head sorts
};

/// A list that somebody looks something up in, in front of the screen that it was opened from. It
/// reads the archive and never writes. Arrows and clicks mark a row, Enter opens it, a click on a
/// column's head sorts.
class enquiry_screen : public ui::form {
 public:
    static constexpr int comandi_massimi = 4;

    /// `kind` outlives the screen.
    enquiry_screen(program& app, const tipo_ricerca& kind);

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
    virtual void run_command(int command, int row) = 0;

    /// The command that leaves.
    virtual void go_back() { leave(); }

    /// Sets the columns of the kind.
    void show_columns();
    /// Fills the list anew.
    void build();
    /// The list has so many rows in use, head included: says so and marks the first one.
    void finish(int in_use, std::string_view said);
    /// For a pass over many orders: shows how far it is, and lets the user leave meanwhile. False
    /// if they did.
    bool goes_on(list_rows& list, int passed, int of);
    /// Leaves; what the screen held is gone.
    void leave() { unload(); }

    program& app_;
    list_grid lista_;

 private:
    void clicked();
    void command_clicked(int command);
    [[nodiscard]] bool in_use(int row) const { return row > 0 && row < lista_.in_use(); }

    const tipo_ricerca& kind_;
    bool built_ = false;
};

/// "12 documenti", or "Nessun documento" where there is none.
std::string how_many(int count, const char* one, const char* many);

}  // namespace vantora
