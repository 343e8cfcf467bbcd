#include "windows/growing_part.h"

#include <QApplication>
#include <QGroupBox>
#include <QResizeEvent>
#include <algorithm>

#include "windows/layout_pieces.h"

namespace vantora::ui::desktop {

namespace {

constexpr int largest_percent = 150;
constexpr int percents_a_step = 5;

}  // namespace

growing_part::growing_part(form_window& window, QWidget& part, const QSize& designed,
                           std::function<void()> grown)
    : QObject(&window), part_(part), designed_(designed), grown_(std::move(grown)) {
    window.installEventFilter(this);
    grown_();
}

bool growing_part::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::Resize) return false;
    const QSize now = static_cast<QResizeEvent*>(event)->size();
    const int fits =
        std::min(now.width() * 100 / designed_.width(), now.height() * 100 / designed_.height());
    grow_to(std::clamp(fits / percents_a_step * percents_a_step, 100, largest_percent));
    return false;
}

void growing_part::grow(QWidget& one) const {
    QFont font = one.font();
    font.setPointSizeF(QApplication::font().pointSizeF() * percent_ / 100);
    one.setFont(font);
}

void growing_part::grow_to(int percent) {
    if (percent == percent_) return;
    percent_ = percent;
    grow(part_);
    // Where a style sheet is at work no font is inherited.
    for (QWidget* one : part_.findChildren<QWidget*>()) {
        if (qobject_cast<QGroupBox*>(one)) continue;  // its frame leaves its title no more room
        grow(*one);
        fit_to_characters(*one);
    }
    grown_();
}

}  // namespace vantora::ui::desktop
