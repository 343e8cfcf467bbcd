#pragma once

#include <QLabel>

namespace vantora::ui::desktop {

/// A label of a screen: its text stands there letter by letter, without blanks at its end. One with
/// the property "plain_number" shows its decimals behind a comma.
class text_label final : public QLabel {
 public:
    explicit text_label(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    void show_text(QString text) {
        while (text.endsWith(' ')) text.chop(1);
        if (property("plain_number").toBool() && text.count('.') == 1) text.replace('.', ',');
        setText(text);
    }
};

}  // namespace vantora::ui::desktop
