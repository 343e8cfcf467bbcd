#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QToolButton>

#include "ui/desktop/kinds.h"
#include "ui/desktop/page_painter.h"
#include "ui/desktop/widget_binder.h"
#include "ui/text_controls.h"

namespace vantora::ui::desktop {

namespace {

class text_box_binder final : public widget_binder {
 public:
    text_box_binder(text_box& model, QWidget* parent, const user_action& act)
        : widget_binder(model, new QLineEdit(parent), act), edit_(as<QLineEdit>()), model_(model) {
        connect(edit_, &QLineEdit::textEdited, this, [this](const QString& text) {
            this->act([&] { model_.set_text(taken(text)); });
            show_again(aspect::text);
        });
        show_all();
    }

 private:
    void show_value(aspect) override {
        const QString text = shown(model_.text());
        if (edit_->text() == text) return;
        const int cursor = edit_->cursorPosition();
        edit_->setText(text);
        edit_->setCursorPosition(edit_->hasFocus() ? cursor : 0);
    }

    [[nodiscard]] bool widget_takes(bool) const override { return true; }

    QLineEdit* edit_;
    text_box& model_;
};

class label_binder final : public widget_binder {
 public:
    label_binder(label& model, QWidget* parent, const user_action& act)
        : widget_binder(model, new QLabel(parent), act), label_(as<QLabel>()), model_(model) {
        show_all();
    }

 private:
    void show_value(aspect) override { label_->setText(shown(model_.text())); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && model_.on_click) {
            act([this] { model_.click(); });
        }
        return widget_binder::eventFilter(watched, event);
    }

    QLabel* label_;
    label& model_;
};

class button_binder final : public widget_binder {
 public:
    button_binder(button& model, QWidget* parent, const user_action& act)
        : widget_binder(model, new QToolButton(parent), act),
          button_(as<QToolButton>()),
          model_(model) {
        button_->setToolButtonStyle(Qt::ToolButtonTextOnly);
        connect(button_, &QToolButton::clicked, this,
                [this] { this->act([this] { model_.click(); }); });
        show_all();
    }

 private:
    // A command without a caption of its own is captioned by the screen's layout.
    void show_value(aspect what) override {
        if (what == aspect::text && !model_.text().empty()) button_->setText(shown(model_.text()));
    }

    QToolButton* button_;
    button& model_;
};

/// A picture lies in the middle of its window, in front of everything, while there is one to see.
class picture_binder final : public widget_binder {
 public:
    picture_binder(picture& model, QWidget* parent, const user_action& act)
        : widget_binder(model, new QLabel(parent), act), label_(as<QLabel>()), model_(model) {
        show_all();
    }

 private:
    void show_value(aspect what) override {
        if (what != aspect::content) return;
        label_->setPixmap(QPixmap::fromImage(image_of(model_.shown())));
        show_visibility();
    }
    void show_visibility() override {
        const bool seen = model_.visible() && !label_->pixmap().isNull();
        if (seen) {
            label_->adjustSize();
            label_->move(label_->parentWidget()->rect().center() - label_->rect().center());
            label_->raise();
        }
        label_->setVisible(seen);
    }

    QLabel* label_;
    picture& model_;
};

}  // namespace

std::unique_ptr<binder> bind_text_kind(control& to, QWidget* parent, const user_action& act) {
    switch (to.kind()) {
        case control_kind::text_box:
            return std::make_unique<text_box_binder>(static_cast<text_box&>(to), parent, act);
        case control_kind::label:
            return std::make_unique<label_binder>(static_cast<label&>(to), parent, act);
        case control_kind::button:
            return std::make_unique<button_binder>(static_cast<button&>(to), parent, act);
        default:
            return std::make_unique<picture_binder>(static_cast<picture&>(to), parent, act);
    }
}

}  // namespace vantora::ui::desktop
