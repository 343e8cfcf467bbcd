#include "desktop/printing/print_progress.h"

#include <QApplication>
#include <algorithm>

#include "desktop/look/words.h"

namespace vantora::ui::desktop {

namespace {

constexpr int steps = 1000;
constexpr qint64 between_steps = 40;  ///< milliseconds
constexpr int longest_unshown = 500;  ///< milliseconds

}  // namespace

print_progress::print_progress(const QString& called)
    : dialog_(QString::fromUtf8(words::printing).arg(called), QString::fromUtf8(words::break_off),
              0, steps, QApplication::activeWindow()) {
    dialog_.setObjectName("avanzamento");
    dialog_.setWindowTitle(QString::fromUtf8(words::print));
    dialog_.setWindowModality(Qt::ApplicationModal);
    dialog_.setMinimumDuration(longest_unshown);
    dialog_.setAutoReset(false);
    dialog_.setAutoClose(false);
    dialog_.setValue(0);
    since_shown_.start();
}

bool print_progress::shows(double done) {
    if (dialog_.wasCanceled()) return false;
    if (since_shown_.elapsed() < between_steps) return true;
    dialog_.setValue(std::clamp(static_cast<int>(done * steps), 0, steps));
    since_shown_.restart();
    return !dialog_.wasCanceled();
}

}  // namespace vantora::ui::desktop
