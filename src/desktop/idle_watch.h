#pragma once

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>

namespace vantora::ui::desktop {

/// Notices that the user does nothing, or comes back to the program.
class idle_watch final : public QObject {
 public:
    /// `idle` is called every few seconds while no key, button or wheel moves, and as the program
    /// comes to the front.
    explicit idle_watch(std::function<void()> idle);

    bool eventFilter(QObject* on, QEvent* event) override;

 private:
    void look();

    std::function<void()> idle_;
    QTimer every_;
    QElapsedTimer since_touched_;
    QDeadlineTimer rests_until_{0};
};

}  // namespace vantora::ui::desktop
