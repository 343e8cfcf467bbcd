#pragma once

#include <optional>

#include "text/dates.h"

namespace vantora::ui {

/// Tells the local date and time. Tests and scripts stop it.
class clock {
 public:
    virtual ~clock() = default;
    [[nodiscard]] virtual date_time now() const = 0;
};

/// The clock of the machine, or a stopped one.
class local_clock final : public clock {
 public:
    [[nodiscard]] date_time now() const override;
    void stop_at(const date_time& moment) { stopped_ = moment; }

 private:
    std::optional<date_time> stopped_;
};

}  // namespace vantora::ui
