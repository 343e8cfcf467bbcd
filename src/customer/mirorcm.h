#pragma once

#include <optional>

#include "customer/customer_head.h"

namespace vantora {

/// The head of an existing order: shows its customer, moves it to another one. It stays loaded and
/// hidden behind the order's lines, which fill it and read it back when the order is saved.
class mirorcm final : public customer_head {
 public:
    explicit mirorcm(program& app);

    /// The user leaves it for the order's lines, and nothing of the head is changed.
    void give_back();

 protected:
    void activate() override;
    void close() override;
    void scrolled() override;
    void go_on() override;

 private:
    void place_on_customer();
    void back_to_lines();

    std::optional<contenuto_testata> before_;  ///< as the user came from the lines
    bool scorrimento_bloccato_ = false;        ///< while the screen sets the cursor itself
};

}  // namespace vantora
