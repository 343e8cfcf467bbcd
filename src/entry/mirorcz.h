#pragma once

#include <functional>

#include "entry/order_screen.h"
#include "entry/save_order.h"

namespace vantora {

/// The lines of an existing order; its customer and head stand in `mirorcm`. Lines that are
/// fulfilled stay in their place and can be edited like all others.
class mirorcz final : public order_screen {
 public:
    explicit mirorcz(program& app);

    /// Commands of `comando` beside those that all have.
    enum { modifica_testata = stampante + 1, elimina };

 protected:
    void open() override;
    /// An order that couldn't be read whole is never written over.
    bool may_save() override;
    change_outcome store() override;
    void run_own_command(int command) override;
    void describe(bozza& draft) const override;

 private:
    void load_order();
    void read_again();
    void read_order();
    /// Says which rows couldn't be read, if there are any; the user may have them read once more.
    void offer_to_read_again();
    /// Makes a change of the stored order. Where another station changed it meanwhile the user is
    /// asked first, in the end by `question`.
    change_outcome change_stored(
        const char* question, const std::function<change_outcome(const ordine_esistente&)>& change);
    bool may_change(const stored_rows<rec_orc>& now, const char* question);
    /// Back from the head: new lines and the PDF are those of the customer that it names now.
    void follow_customer();
    void change_head();
    void delete_order();

    rec_tot contatore_;                ///< of the orders, before the order was read
    std::int16_t cliente_aperto_ = 0;  ///< whose record `cliente_` is
    ordine_visto visto_;               ///< the order as it was read
    stored_rows<rec_orc> lette_;       ///< its rows
    std::uint64_t impronta_ = 0;
};

}  // namespace vantora
