#pragma once

#include "entry/order_screen.h"

namespace vantora {

/// The lines of a new order; its customer and head stand in `mirorcx`.
class mirorcs final : public order_screen {
 public:
    explicit mirorcs(program& app);

 protected:
    void open() override;
    bool store() override;
    void run_own_command(int command) override;
};

}  // namespace vantora
