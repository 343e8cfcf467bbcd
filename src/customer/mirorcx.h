#pragma once

#include "customer/customer_head.h"

namespace vantora {

/// The first step of a new order: its customer, number, dates and references. Nothing is written
/// here; the screen stays loaded behind the line entry, which reads it when the order is saved.
class mirorcx final : public customer_head {
 public:
    explicit mirorcx(program& app);

 protected:
    void activate() override;
    void go_on() override;

 private:
    bool date_is_right(std::size_t field, const std::string& complaint);
};

}  // namespace vantora
