#pragma once

#include <QLabel>
#include <functional>

namespace vantora::ui::desktop {

/// A label of a screen: its text stands there letter by letter, without blanks at its end.
class text_label final : public QLabel {
 public:
    explicit text_label(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

    /// What the eye gets of a text.
    using view = std::function<QString(const QString& text)>;
    void see_by(view seen) {
        seen_ = std::move(seen);
        show_text(text_);
    }

    void show_text(const QString& text) {
        text_ = text;
        QString shown = seen_ ? seen_(text) : text;
        while (shown.endsWith(' ')) shown.chop(1);
        setText(shown);
    }

 private:
    QString text_;
    view seen_;
};

}  // namespace vantora::ui::desktop
