#pragma once

#include "reports/order_rows_report.h"

namespace vantora {

/// The order list: all orders, or their open or closed rows.
class mirstoe final : public order_rows_report {
 public:
    explicit mirstoe(program& app);

 protected:
    void selector_changed(filtro which) override;
    void begin_walk(const limiti_ordini& orders) override;
    std::span<const rec_orc> rows_of(int order) override;
    [[nodiscard]] bool takes(const rec_orc& row) const override;
    [[nodiscard]] const colonne& places() const override;

 private:
    bool linking_ = false;  ///< a selector is being switched by the other one
};

}  // namespace vantora
