#pragma once

#include "reports/order_rows_report.h"

namespace vantora {

/// The order schedule: the orders still open whose rows are due between two dates.
class mirstos final : public order_rows_report {
 public:
    explicit mirstos(program& app);

 protected:
    void fill_fields() override;
    bool ready() override;
    void fill(list_rows& list, const limiti_ordini& orders) override;
    void begin_walk(const limiti_ordini& orders) override;
    std::span<const rec_orc> rows_of(int order) override;
    [[nodiscard]] bool takes(const rec_orc& row) const override;
    [[nodiscard]] const colonne& places() const override;

 private:
    std::string prima_data_;  ///< yyyymmdd
    std::string ultima_data_;
};

}  // namespace vantora
