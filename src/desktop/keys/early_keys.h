#pragma once

#include <QKeyEvent>
#include <QObject>
#include <memory>
#include <vector>

class QWidget;

namespace vantora::ui::desktop {

/// As if the key had been pressed in the window.
void press_key_in(QWidget& window, QKeyEvent& key);

/// Keys that come to a dialog after its answer, while the window that it leads to isn't there yet,
/// are kept for that window.
class early_keys final : public QObject {
 public:
    /// From now on. The dialog stays on the screen, and takes nothing else.
    explicit early_keys(QWidget& dialog);

    /// The window stands: it gets the keys, and the dialog goes.
    void give_to(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    QWidget& dialog_;
    std::vector<std::unique_ptr<QKeyEvent>> kept_;
};

}  // namespace vantora::ui::desktop
