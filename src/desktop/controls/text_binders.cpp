#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QStyle>
#include <QTimer>
#include <QToolButton>

#include "desktop/controls/binder.h"
#include "desktop/controls/line_pasting.h"
#include "desktop/controls/text_label.h"
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

/// Says for a while, beside a field that is being left, how its number was taken.
void show_number_hint(QWidget& beside, const QString& text) {
    constexpr int shown_for = 5000;  // milliseconds
    constexpr const char* name = "number_hint";
    QWidget* window = beside.window();
    delete window->findChild<QLabel*>(name);
    auto* hint = new QLabel(text, window);
    hint->setObjectName(name);
    hint->setTextFormat(Qt::PlainText);
    hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint->adjustSize();
    const QPoint under = beside.mapTo(window, QPoint(0, beside.height() + 2));
    hint->move(std::clamp(under.x(), 0, std::max(0, window->width() - hint->width())),
               std::min(under.y(), window->height() - hint->height()));
    hint->raise();
    hint->show();
    QTimer::singleShot(shown_for, hint, &QObject::deleteLater);
    QAccessibleEvent heard(hint, QAccessible::Alert);
    QAccessible::updateAccessibility(&heard);
}

/// Tells a bar code, which a reader types faster than hands do, from what hands type.
class scan_watch {
 public:
    /// A key goes down in a field in which `text` stands. The code, if the key is the Enter behind
    /// one.
    std::optional<std::string> ended_by(const QKeyEvent& key, const std::string& text) {
        const quint64 gap = key.timestamp() - std::exchange(last_, key.timestamp());
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            std::string code = std::exchange(code_, {});
            const bool scanned = code.size() >= shortest_code && gap <= longest_wait;
            return scanned ? std::optional(code) : std::nullopt;
        }
        const QString typed = key.text();
        const bool digit = typed.size() == 1 && typed[0] >= '0' && typed[0] <= '9';
        if (!digit || key.isAutoRepeat() || gap > longest_gap) code_.clear();
        if (!digit || key.isAutoRepeat()) return {};
        if (code_.empty()) before_ = text;
        code_ += static_cast<char>(typed[0].unicode());
        return {};
    }
    /// What stood in the field before the code came.
    [[nodiscard]] const std::string& before() const { return before_; }

 private:
    static constexpr std::size_t shortest_code = 6;
    static constexpr quint64 longest_gap = 20;    ///< milliseconds: six digits within a tenth
    static constexpr quint64 longest_wait = 100;  ///< milliseconds, for the Enter

    std::string code_;
    std::string before_;
    quint64 last_ = 0;
};

class text_box_binder final : public binder_of<text_box, QLineEdit> {
 public:
    text_box_binder(text_box& model, QWidget* parent, const user& by)
        : binder_of(model, parent, by) {
        connect(widget_, &QLineEdit::textEdited, this,
                [this](const QString& text) { edited(text); });
    }

 private:
    void edited(const QString& text) {
        const std::string before = model_.text();
        const std::string put = from_qt(without_strange(text));
        const std::string kept = with_first_cell(before, put);
        behind_cursor_ = text.size() - widget_->cursorPosition();
        act([&] {
            const std::string_view lines = put_in(before, put);
            if (model_.on_paste_lines && holds_pasted_lines(lines)) {
                return paste_lines(model_, {lines}, widget_->window());
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
        const bool as_typed = behind_cursor_ && widget_->text() == to_qt(model_.text());
        if (as_typed || widget_->text() == text) return;
        widget_->setText(text);
        mark_wrong(false);
        if (behind_cursor_) {
            widget_->setCursorPosition(static_cast<int>(text.size() - *behind_cursor_));
        } else if (widget_->hasFocus()) {
            widget_->selectAll();
        } else {
            widget_->setCursorPosition(0);
        }
    }

    /// Decimals stand behind a comma for the eye, as in totals.
    [[nodiscard]] QString shown() const {
        QString text = to_qt(model_.text());
        const bool plain = model_.accepts.plain && text.count('.') == 1;
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
            show_number_hint(*widget_, to_qt(*hint));
        const auto number = written_out_number(model_.text(), model_.accepts);
        if (number) act([&] { model_.set_text(*number); });
        show_again(aspect::text);
    }
    void mark_wrong(bool wrong) {
        if (widget_->property("wrong").toBool() == wrong) return;
        widget_->setProperty("wrong", wrong);
        widget_->style()->unpolish(widget_);
        widget_->style()->polish(widget_);
    }

    [[nodiscard]] bool widget_takes(bool) const override { return true; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool took = binder::eventFilter(watched, event);
        if (event->type() == QEvent::FocusIn) found_ = widget_->text();
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
                act([&] { paste_lines(model_, {*lines}, widget_->window()); });
                return true;
            }
        }
        if (goes_along_changes(event)) return true;
        if (event.matches(QKeySequence::Undo) && !widget_->isUndoAvailable()) {
            edited(found_);
            return true;
        }
        return binder::key_pressed(event);
    }

    scan_watch scan_;
    QString found_;                           ///< what stood in the field when the hand came to it
    std::optional<qsizetype> behind_cursor_;  ///< while the hand's own change is shown
};

class label_binder final : public binder_of<label, text_label> {
 public:
    using binder_of::binder_of;

 private:
    void show_value(aspect) override { widget_->show_text(to_qt(model_.text())); }
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonRelease && model_.on_click) {
            const auto& mouse = static_cast<const QMouseEvent&>(*event);
            const bool here = widget_->rect().contains(mouse.position().toPoint());
            if (mouse.button() == Qt::LeftButton && here) act([this] { model_.click(); });
        }
        return binder::eventFilter(watched, event);
    }
};

class button_binder final : public binder_of<button, QToolButton> {
 public:
    button_binder(button& model, QWidget* parent, const user& by) : binder_of(model, parent, by) {
        widget_->setToolButtonStyle(Qt::ToolButtonTextOnly);
        connect(widget_, &QToolButton::clicked, this,
                [this] { act_click(*widget_, [this] { model_.click(); }); });
    }

 private:
    // A command without a caption of its own is captioned by the screen's layout.
    void show_value(aspect what) override {
        if (what == aspect::text && !model_.text().empty()) widget_->setText(to_qt(model_.text()));
    }
};

/// A picture lies in the middle of its window, in front of everything, while there is one to see.
class picture_binder final : public binder_of<picture, QLabel> {
 public:
    using binder_of::binder_of;

 private:
    void show_value(aspect what) override {
        if (what != aspect::content) return;
        const auto& image = model_.shown();
        widget_->setPixmap(image ? QPixmap::fromImage(image_of(*image)) : QPixmap());
        show_visibility();
    }
    void show_visibility() override {
        const bool seen = model_.visible() && !widget_->pixmap().isNull();
        if (seen) {
            widget_->adjustSize();
            widget_->move(widget_->parentWidget()->rect().center() - widget_->rect().center());
            widget_->raise();
        }
        widget_->setVisible(seen);
    }
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
