#pragma once

#include <QObject>
#include <set>

#include "desktop/lists/list_overlay.h"

class QKeyEvent;
class QMouseEvent;

namespace vantora::ui::desktop {

/// Lets the user mark several rows of a list, by Ctrl and Shift with the mouse, by Shift with the
/// arrows, by Ctrl+A. The marks lie in the overlay alone: the list's own current row stays, and
/// nothing is opened. A plain click takes them off.
class list_marks final : public QObject {
 public:
    list_marks(const shown_list& list, list_overlay& overlay, QObject* parent);

    /// The marked rows; without any, the current one.
    [[nodiscard]] std::set<int> rows() const;
    void mark_all();

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool mouse_pressed(const QMouseEvent& mouse);
    bool key_pressed(QKeyEvent& key, bool pressed);
    void mark_to(int row);
    void toggle(int row);
    void clear();

    shown_list list_;
    list_overlay& overlay_;
    int anchor_ = -1;  ///< where the stretch marked by Shift begins
    int end_ = -1;     ///< and where it ends
    bool taken_ =
        false;  ///< the mouse button that is down marks and is none of the list's business
};

}  // namespace vantora::ui::desktop
