#pragma once

#include <functional>
#include <vector>

#include "ui/message_box.h"

class QMessageBox;
class QWidget;

namespace vantora::ui::desktop {

/// The message boxes that are open, the last one in front.
class message_boxes {
 public:
    /// Shows a box above a window; `give` hears the answer, and the box stays until it is closed.
    void open(const message_box& box, QWidget* above, std::function<void(answer)> give);
    /// Closes the one in front. REQUIRES: there is one.
    void close_front();

    [[nodiscard]] bool none() const { return open_.empty(); }
    /// REQUIRES: there is one.
    [[nodiscard]] QWidget* front() const;

 private:
    std::vector<QMessageBox*> open_;
};

}  // namespace vantora::ui::desktop
