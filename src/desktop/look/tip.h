#pragma once

#include <QString>
#include <QToolTip>

namespace vantora::ui {

/// A text as a tooltip that shows it letter by letter: what looks like markup is none. Each line
/// stays one, however long.
inline QString plain_tip(const QString& text) {
    if (text.isEmpty()) return {};
    return "<p style='white-space:pre'>" + text.toHtmlEscaped().replace('\n', QString("<br>")) +
           "</p>";
}

/// For `how_long` milliseconds; -1: as long as the toolkit finds right.
inline void show_tip(const QPoint& where, const QString& text, QWidget* of, int how_long = -1) {
    QToolTip::showText(where, plain_tip(text), of, {}, how_long);
}

}  // namespace vantora::ui
