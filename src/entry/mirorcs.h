#pragma once

#include "entry/line_grid.h"

namespace vantora {

/// The lines of a new order; its customer and head stand in `mirorcx`, hidden behind.
class mirorcs final : public line_grid {
 public:
    explicit mirorcs(program& app);

 protected:
    void activate() override;
    void close() override;
    void run_command(int command) override;

 private:
    void save();
    void offer_to_print();
    void leave();

    bool saving_ = false;
};

}  // namespace vantora
