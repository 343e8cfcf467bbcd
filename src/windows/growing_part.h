#pragma once

#include <QObject>
#include <QSize>
#include <functional>

class QWidget;

namespace vantora::ui::desktop {

class form_window;

/// A part of a window that would stand lost on a large screen: its texts grow with the window, and
/// its fields with them. As large as it was designed, the window has it as it was laid out.
class growing_part final : public QObject {
 public:
    /// `designed`: the window's size up to which nothing grows. `grown`: what else depends on the
    /// texts' size; called at once, too.
    growing_part(form_window& window, QWidget& part, const QSize& designed,
                 std::function<void()> grown);

    bool eventFilter(QObject* window, QEvent* event) override;

 private:
    void grow_to(int percent);
    void grow(QWidget& one) const;

    QWidget& part_;
    QSize designed_;
    std::function<void()> grown_;
    int percent_ = 100;
};

}  // namespace vantora::ui::desktop
