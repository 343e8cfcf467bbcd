#include <QCalendarWidget>
#include <QDateEdit>
#include <QKeyEvent>
#include <QProgressBar>
#include <QScrollBar>
#include <QTextCharFormat>

#include "desktop/controls/binder.h"
#include "ui/value_controls.h"

namespace vantora::ui::desktop {

namespace {

class scroll_bar_binder final : public binder_of<scroll_bar, QScrollBar> {
 public:
    scroll_bar_binder(scroll_bar& model, QWidget* parent, const user& by)
        : binder_of(model, new QScrollBar(Qt::Horizontal, parent), by) {
        connect(widget_, &QScrollBar::valueChanged, this, [this](int value) {
            if (showing()) return;
            this->act([&] { model_.drag(value); });
            show_again(aspect::value);
        });
    }

 private:
    /// Left and right, as the bar lies; up and down are the model's.
    bool key_pressed(QKeyEvent& event) override {
        if (binder::key_pressed(event)) return true;
        if (event.key() != Qt::Key_Right && event.key() != Qt::Key_Left) return false;
        widget_->triggerAction(event.key() == Qt::Key_Right ? QScrollBar::SliderSingleStepAdd
                                                            : QScrollBar::SliderSingleStepSub);
        return true;
    }

    void show_value(aspect) override {
        const quiet while_showing(*this);
        widget_->setRange(std::min(model_.minimum(), model_.maximum()),
                          std::max(model_.minimum(), model_.maximum()));
        widget_->setPageStep(std::max(1, (widget_->maximum() - widget_->minimum()) / 20));
        widget_->setValue(model_.value());
    }
};

class progress_binder final : public binder_of<progress_bar, QProgressBar> {
 public:
    using binder_of::binder_of;

 private:
    void show_value(aspect) override {
        widget_->setRange(model_.minimum(), model_.maximum());
        widget_->setValue(model_.value());
    }
};

class date_binder final : public binder_of<date_picker, QDateEdit> {
 public:
    date_binder(date_picker& model, QWidget* parent, const user& by)
        : binder_of(model, parent, by) {
        widget_->setCalendarPopup(true);
        widget_->setDisplayFormat("dd/MM/yyyy");
        widget_->setMinimumWidth(widget_->fontMetrics().horizontalAdvance("00/00/0000") + 52);
        widget_->setDateRange(QDate(100, 1, 1), QDate(9999, 12, 31));
        const QLocale italian(QLocale::Italian, QLocale::Italy);
        widget_->setLocale(italian);
        widget_->calendarWidget()->setLocale(italian);
        widget_->calendarWidget()->setFirstDayOfWeek(Qt::Monday);
        widget_->calendarWidget()->setMinimumSize(330, 240);
        QPalette greyed = widget_->calendarWidget()->palette();
        greyed.setColor(QPalette::Disabled, QPalette::Text, QColor("#6a7783"));
        widget_->calendarWidget()->setPalette(greyed);
        connect(widget_, &QDateEdit::dateChanged, this, [this](QDate day) {
            if (showing()) return;
            this->act([&] {
                model_.set_focus();
                model_.set_value({day.year(), day.month(), day.day()});
            });
        });
        for (const auto chosen : {&QCalendarWidget::clicked, &QCalendarWidget::activated}) {
            connect(widget_->calendarWidget(), chosen, this,
                    [this] { this->act([&] { model_.confirm(); }); });
        }
        widget_->calendarWidget()->installEventFilter(this);
    }

 private:
    /// The calendar goes away after a choice as without one.
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &widget()) return binder::eventFilter(watched, event);
        if (event->type() == QEvent::Show) mark_today();
        if (event->type() == QEvent::Hide) this->act([&] { model_.close_up(); });
        return false;
    }

    void show_value(aspect) override {
        const date& day = model_.value();
        widget_->setDate(QDate(day.year, day.month, day.day));
    }

    void mark_today() {
        QTextCharFormat today;
        today.setFontWeight(QFont::Bold);
        today.setFontUnderline(true);
        today.setBackground(QColor("#dcebf8"));
        widget_->calendarWidget()->setDateTextFormat({}, {});
        widget_->calendarWidget()->setDateTextFormat(QDate::currentDate(), today);
    }

    [[nodiscard]] bool widget_takes(bool) const override { return true; }
};

}  // namespace

std::unique_ptr<binder> bind_value_kind(control& to, QWidget* parent, const user& by) {
    switch (to.kind()) {
        case control_kind::scroll_bar:
            return std::make_unique<scroll_bar_binder>(static_cast<scroll_bar&>(to), parent, by);
        case control_kind::progress_bar:
            return std::make_unique<progress_binder>(static_cast<progress_bar&>(to), parent, by);
        default:
            return std::make_unique<date_binder>(static_cast<date_picker&>(to), parent, by);
    }
}

}  // namespace vantora::ui::desktop
