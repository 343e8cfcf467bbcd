#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QToolButton>

#include "desktop/controls/binder.h"
#include "desktop/controls/line_pasting.h"
#include "desktop/controls/number_hint.h"
#include "desktop/controls/text_label.h"
#include "desktop/keys/scan_watch.h"
#include "ui/desk.h"
#include "ui/text_controls.h"

namespace vantora::ui::desktop {

namespace {

/// Without the characters that the code page lacks.
QString without_strange(QString text) {
    constexpr QChar replacement = '?';
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype units = text[at].isHighSurrogate() ? 2 : 1;
        const QString one = text.mid(at, units);
        if (one != replacement && from_qt(one).starts_with('?')) {
            text.remove(at, units);
        } else {
            at += units;
        }
    }
    return text;
}

class text_box_binder final : public binder {
 public:
    text_box_binder(text_box& model, QWidget* parent, const user& by)
        : binder(model, new QLineEdit(parent), by), edit_(as<QLineEdit>()), model_(model) {
        connect(edit_, &QLineEdit::textEdited, this, [this](const QString& text) { edited(text); });
        show_all();
    }

 private:
    void edited(const QString& text) {
        const std::string before = model_.text();
        const std::string put = from_qt(without_strange(text));
        const std::string kept = with_first_cell(before, put);
        behind_cursor_ = text.size() - edit_->cursorPosition();
        act([&] {
            const std::string_view lines = put_in(before, put);
            if (model_.on_paste_lines && holds_pasted_lines(lines)) {
                return paste_lines(model_, {lines}, edit_->window());
            }
            const auto admitted = model_.accepts.admit(before, kept);
            if (!admitted || kept.size() != static_cast<std::size_t>(text.size())) {
                QApplication::beep();
            }
            if (admitted) model_.set_text(*admitted);
            const bool one_key = kept.size() == before.size() + 1 && kept.starts_with(before);
            if (admitted && !one_key && model_.on_edited) model_.on_edited();
        });
        show_again(aspect::text);
        behind_cursor_.reset();
    }

    // A text that comes while the field is worked on is there to be typed over; one that the
    // hand itself typed stays with the cursor in it.
    void show_value(aspect) override {
        const QString text = shown();
        const bool as_typed = behind_cursor_ && edit_->text() == to_qt(model_.text());
        if (as_typed || edit_->text() == text) return;
        edit_->setText(text);
        mark_wrong(false);
        if (behind_cursor_) {
            edit_->setCursorPosition(static_cast<int>(text.size() - *behind_cursor_));
        } else if (edit_->hasFocus()) {
            edit_->selectAll();
        } else {
            edit_->setCursorPosition(0);
        }
    }

    /// Decimals stand behind a comma for the eye, as in totals.
    [[nodiscard]] QString shown() const {
        QString text = to_qt(model_.text());
        const bool plain = by_person() && model_.accepts.plain && text.count('.') == 1;
        return plain && !text.contains(',') ? text.replace('.', ',') : text;
    }

    /// A day or a number is written out when its field is left.
    void focus_lost() override {
        if (!by_person()) return;
        const bool is_day = model_.accepts.holds == input_rule::content::day;
        if (is_day) return mark_wrong(!write_out_day());
        if (model_.accepts.holds == input_rule::content::number) write_out_number();
    }
    bool write_out_day() {
        const int year = model_.owner().desk().clock().now().day.year;
        const auto day = written_out_day(model_.text(), year);
        if (day) act([&] { model_.set_text(*day); });
        return day.has_value();
    }
    /// Whoever types a point for the thousands is told what was taken.
    void write_out_number() {
        if (const auto hint = doubtful_number(model_.text()))
            show_number_hint(*edit_, to_qt(*hint));
        const auto number = written_out_number(model_.text(), model_.accepts);
        if (number) act([&] { model_.set_text(*number); });
        show_again(aspect::text);
    }
    void mark_wrong(bool wrong) {
        if (edit_->property("wrong").toBool() == wrong) return;
        edit_->setProperty("wrong", wrong);
        edit_->style()->unpolish(edit_);
        edit_->style()->polish(edit_);
    }

    [[nodiscard]] bool widget_takes(bool) const override { return true; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool took = binder::eventFilter(watched, event);
        if (event->type() == QEvent::FocusIn) found_ = edit_->text();
        return took;
    }

    /// A number that the screen itself put in with a comma counts with its decimals too.
    void take_own_comma() {
        if (model_.accepts.holds != input_rule::content::number) return;
        if (model_.text().find(',') == std::string::npos) return;
        const auto plain = model_.accepts.admit({}, model_.text());
        if (plain) act([&] { model_.set_text(*plain); });
    }

    /// Back and forth among the changes of a window that keeps those of all its cells.
    bool goes_along_changes(const QKeyEvent& event) {
        const bool back = event.matches(QKeySequence::Undo);
        const bool forth = event.matches(QKeySequence::Redo) ||
                           event.keyCombination() == (Qt::ControlModifier | Qt::Key_Y);
        form& owner = model_.owner();
        if ((!back && !forth) || !owner.keeps_changes_of(model_)) return false;
        act([&] { back ? owner.take_back() : owner.bring_back(); });
        return true;
    }

    bool key_pressed(QKeyEvent& event) override {
        const auto code = scan_.ended_by(event, model_.text());
        if (code && model_.on_scan) {
            act([&] {
                model_.set_text(scan_.before());
                model_.on_scan(*code);
            });
            return true;
        }
        if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) take_own_comma();
        if (event.matches(QKeySequence::Paste) && model_.on_paste_lines) {
            if (const auto lines = lines_on_clipboard()) {
                act([&] { paste_lines(model_, {*lines}, edit_->window()); });
                return true;
            }
        }
        if (goes_along_changes(event)) return true;
        if (event.matches(QKeySequence::Undo) && !edit_->isUndoAvailable()) {
            edited(found_);
            return true;
        }
        return binder::key_pressed(event);
    }

    QLineEdit* edit_;
    text_box& model_;
    scan_watch scan_;
    QString found_;                           ///< what stood in the field when the hand came to it
    std::optional<qsizetype> behind_cursor_;  ///< while the hand's own change is shown
};

class label_binder final : public binder {
 public:
    label_binder(label& model, QWidget* parent, const user& by)
        : binder(model, new text_label(parent), by), label_(as<text_label>()), model_(model) {
        show_all();
    }

 private:
    void show_value(aspect) override { label_->show_text(to_qt(model_.text())); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && model_.on_click) {
            const auto& mouse = static_cast<const QMouseEvent&>(*event);
            const bool here = label_->rect().contains(mouse.position().toPoint());
            if (mouse.button() == Qt::LeftButton && here) act([this] { model_.click(); });
        }
        return binder::eventFilter(watched, event);
    }

    text_label* label_;
    label& model_;
};

class button_binder final : public binder {
 public:
    button_binder(button& model, QWidget* parent, const user& by)
        : binder(model, new QToolButton(parent), by), button_(as<QToolButton>()), model_(model) {
        button_->setToolButtonStyle(Qt::ToolButtonTextOnly);
        connect(button_, &QToolButton::clicked, this,
                [this] { act_click(*button_, [this] { model_.click(); }); });
        show_all();
    }

 private:
    // A command without a caption of its own is captioned by the screen's layout.
    void show_value(aspect what) override {
        if (what == aspect::text && !model_.text().empty()) button_->setText(to_qt(model_.text()));
    }

    QToolButton* button_;
    button& model_;
};

/// A picture lies in the middle of its window, in front of everything, while there is one to see.
class picture_binder final : public binder {
 public:
    picture_binder(picture& model, QWidget* parent, const user& by)
        : binder(model, new QLabel(parent), by), label_(as<QLabel>()), model_(model) {
        show_all();
    }

 private:
    void show_value(aspect what) override {
        if (what != aspect::content) return;
        const auto& image = model_.shown();
        label_->setPixmap(image ? QPixmap::fromImage(image_of(*image)) : QPixmap());
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

std::unique_ptr<binder> bind_text_kind(control& to, QWidget* parent, const user& by) {
    switch (to.kind()) {
        case control_kind::text_box:
            return std::make_unique<text_box_binder>(static_cast<text_box&>(to), parent, by);
        case control_kind::label:
            return std::make_unique<label_binder>(static_cast<label&>(to), parent, by);
        case control_kind::button:
            return std::make_unique<button_binder>(static_cast<button&>(to), parent, by);
        default:
            return std::make_unique<picture_binder>(static_cast<picture&>(to), parent, by);
    }
}

}  // namespace vantora::ui::desktop
