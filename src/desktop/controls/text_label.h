#pragma once

#include <QLabel>

namespace vantora::ui::desktop {

/// A label of a screen: its text stands there letter by letter, without blanks at its end.
class text_label final : public QLabel {
 public:
    explicit text_label(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    void show_text(QString text) {
        while (text.endsWith(' ')) text.chop(1);
        setText(text);
    }
};

}  // namespace vantora::ui::desktop
