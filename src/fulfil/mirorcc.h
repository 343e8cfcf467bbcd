#pragma once

#include "customer/customer_head.h"

namespace vantora {

/// The first step of a fulfilment: its customer and the transport data. Nothing is written here;
/// the screen stays loaded behind the two that follow, which read it, and may take the destination
/// and carrier of an order into it.
class mirorcc final : public customer_head {
 public:
    explicit mirorcc(program& app);

    /// The list of `Combo1` that heads of orders have the payments in.
    static constexpr int causale = pagamento;

    /// The weight is the sum of the lines, whatever is typed.
    [[nodiscard]] bool weighs_by_itself() const { return app_.parameters.gnr.peso_automatico == 1; }

    ui::drop_down Combo2;  ///< aspect of the goods

 protected:
    void load() override;
    void activate() override;
    void fill_lists(const tabella_suite& table) override;
    void show_customer() override;
    void found_at(std::int16_t position) override;
    void go_on() override;
};

}  // namespace vantora
