#pragma once

#include <deque>
#include <optional>

#include "orders/order_lines.h"

namespace vantora {

/// The lines of an order as they were before the last changes of many at once.
class line_history {
 public:
    static constexpr std::size_t steps_max = 5;

    struct step {
        righe_ordine lines;
        int first_shown = 1;  ///< line in the first row then
    };

    void keep(const righe_ordine& lines, int first_shown) {
        steps_.push_back({lines, first_shown});
        if (steps_.size() > steps_max) steps_.pop_front();
    }
    /// The last step, which is then gone.
    std::optional<step> take_back() {
        if (steps_.empty()) return {};
        std::optional<step> last(std::move(steps_.back()));
        steps_.pop_back();
        return last;
    }
    void clear() { steps_.clear(); }

 private:
    std::deque<step> steps_;
};

}  // namespace vantora
