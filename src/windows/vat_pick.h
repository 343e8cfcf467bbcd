#pragma once

#include <QObject>
#include <functional>

class QComboBox;
class QKeyEvent;

namespace vantora::ui {
class drop_down;
}

namespace vantora::ui::desktop {

class form_window;

/// The pick of a line's VAT code: it opens as a list at once. Two digits choose that
/// code, one arrow the next one, Enter the highlighted one; Escape leaves without a choice.
class vat_pick final : public QObject {
 public:
    /// `leave`: the user leaves it, by 1 to the next cell, by -1 or by Escape back to the price.
    vat_pick(form_window& window, drop_down& codes, std::function<void(int step)> leave);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    bool key_pressed(const QKeyEvent& key);
    void digit_typed(int digit);
    void pick(int entry);

    form_window& window_;
    drop_down& codes_;
    QComboBox* box_;
    std::function<void(int)> leave_;
    int first_digit_ = -1;
};

}  // namespace vantora::ui::desktop
