#pragma once

#include "entry/edit_order.h"
#include "entry/order_screen.h"

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
    change_outcome store() override;
    void run_own_command(int command) override;
    void describe(bozza& draft) const override;

 private:
    /// Fills lines and head from the order's block.
    void read_order();
    /// Back from the head: new lines and the PDF are those of the customer that it names now.
    void follow_customer();
    void change_head();
    void delete_order();
    [[nodiscard]] ordine_esistente order() const;

    rec_tot contatore_;                ///< of the orders, before the order was read
    std::int16_t cliente_aperto_ = 0;  ///< whose record `cliente_` is
    ordine_visto visto_;               ///< the order as it was read
    std::uint64_t impronta_ = 0;
};

}  // namespace vantora
