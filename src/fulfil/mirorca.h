#pragma once

#include <optional>

#include "entry/line_grid.h"
#include "fulfil/salva_ddt.h"
#include "store/records/rec_orc.h"

namespace vantora {

class mirorcc;

/// The last step of a fulfilment: the rows that leave, ready to be corrected. Its confirmation
/// takes the goods out of the warehouse and makes the transport document, each if wanted.
class mirorca final : public line_grid {
 public:
    explicit mirorca(program& app);

    /// Columns of `elenco`, which takes the rows that leave over from the worklist.
    enum colonna { articolo, descrizione, col_quantita, col_sc1, col_sc2, col_prezzo, col_iva };

    ui::grid elenco;        ///< never shown; row n from 0 is line n + 1
    ui::text_box text1[2];  ///< reference and kind of the movement
    ui::date_picker Text;   ///< day of the movement
    ui::label testata;      ///< which document it is: customer, number, date

    void empty_hand_over();
    /// Hands an order row over as line `line`, from 0; without a quantity it is a line of text.
    /// A document has 200 lines: any further one is a subscript error, which ends the program.
    void hand_over(int line, const rec_orc& row, std::optional<double> quantity);

 protected:
    void load() override;
    void activate() override;
    void close() override;
    void run_command(int command) override;
    void totals_changed() override;

 private:
    void take_lines_over();
    void propose_movement();
    /// Leaves the document undone; what that leaves behind is said.
    bool may_cancel();
    void confirm();
    bool unload_goods();
    bool ask_to_unload(const riga_ordine& line, const rec_art& article);
    /// False if the document couldn't be stored: it isn't printed then, and the screen stays.
    bool make_document();
    /// Stores the document; the user is asked first where its number or date is doubtful.
    change_outcome store_document(ddt_da_registrare& document);
    /// False if the user wants the document neither as it is nor with what is proposed instead.
    bool settle_doubt(ddt_da_registrare& document);
    void show_head();
    void print(const mirorcc& head);
    void leave();

    bool unloaded_ = false;  ///< the goods have left; confirming again must not move them again
};

}  // namespace vantora
