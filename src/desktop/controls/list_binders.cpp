#include <QAbstractListModel>
#include <QComboBox>
#include <QGuiApplication>
#include <QListView>
#include <QMouseEvent>

#include "desktop/controls/binder.h"
#include "text/code_page.h"
#include "ui/list_controls.h"

namespace vantora::ui::desktop {

namespace {

/// Shows a list's entries where they are, without copying them.
class entries_model final : public QAbstractListModel {
 public:
    /// `blank_end`: whether blank entries behind the last filled one show, too.
    entries_model(const list_control& list, bool blank_end, QObject* parent)
        : QAbstractListModel(parent), list_(list), blank_end_(blank_end) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : shown_;
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || index.row() >= list_.count()) return {};
        return to_qt(list_.item(index.row()));
    }
    void reset() {
        beginResetModel();
        shown_ = list_.count();
        const auto blank = [&](int entry) { return trimmed(list_.item(entry)).empty(); };
        while (!blank_end_ && shown_ > list_.chosen() + 1 && blank(shown_ - 1)) --shown_;
        endResetModel();
    }
    /// One of the blank entries was chosen.
    void show_up_to(int entry) {
        if (entry >= shown_) reset();
    }

 private:
    const list_control& list_;
    bool blank_end_;
    int shown_ = 0;
};

class list_box_binder final : public binder_of<list_control, QListView> {
 public:
    list_box_binder(list_control& model, QWidget* parent, const user& by)
        : binder_of(model, parent, by), entries_(new entries_model(model, true, widget_)) {
        widget_->setModel(entries_);
        widget_->setUniformItemSizes(true);
        widget_->setEditTriggers(QAbstractItemView::NoEditTriggers);
        connect(widget_->selectionModel(), &QItemSelectionModel::currentChanged, this,
                [this](const QModelIndex& now) {
                    // The mouse picks when it lets go.
                    const bool by_mouse = QGuiApplication::mouseButtons() != Qt::NoButton;
                    if (!showing() && !by_mouse && now.isValid()) pick(now.row());
                });
        widget_->viewport()->installEventFilter(this);
    }

 private:
    void show_value(aspect what) override {
        if (what == aspect::items) entries_->reset();
        const QModelIndex chosen = entries_->index(model_.chosen(), 0);
        widget_->setCurrentIndex(chosen);
        if (chosen.isValid()) widget_->scrollTo(chosen);
    }
    // The entry that is highlighted is the one picked, by whatever key.
    [[nodiscard]] bool widget_takes(bool typed) const override { return typed; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &widget()) return binder::eventFilter(watched, event);
        if (event->type() == QEvent::MouseButtonRelease) {
            const auto& mouse = static_cast<QMouseEvent&>(*event);
            const bool on_entry = widget_->indexAt(mouse.position().toPoint()).isValid();
            if (mouse.button() == Qt::LeftButton && on_entry) pick(widget_->currentIndex().row());
        }
        return false;
    }
    void pick(int entry) {
        act([&] { model_.pick(entry); });
    }

    entries_model* entries_;
};

class drop_down_binder final : public binder_of<list_control, QComboBox> {
 public:
    drop_down_binder(list_control& model, QWidget* parent, const user& by)
        : binder_of(model, parent, by), entries_(new entries_model(model, false, widget_)) {
        widget_->setModel(entries_);
        widget_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        widget_->setMinimumContentsLength(12);
        widget_->setMaxVisibleItems(12);
        connect(widget_, &QComboBox::activated, this, [this](int position) {
            if (showing()) return;
            this->act([&] { model_.pick(position); });
            show_again(aspect::value);
        });
    }

 private:
    void show_value(aspect what) override {
        if (what == aspect::items) entries_->reset();
        entries_->show_up_to(model_.chosen());
        if (widget_->currentIndex() != model_.chosen()) widget_->setCurrentIndex(model_.chosen());
    }

    entries_model* entries_;
};

}  // namespace

std::unique_ptr<binder> bind_list_kind(control& to, QWidget* parent, const user& by) {
    auto& list = static_cast<list_control&>(to);
    if (to.kind() == control_kind::list_box) {
        return std::make_unique<list_box_binder>(list, parent, by);
    }
    return std::make_unique<drop_down_binder>(list, parent, by);
}

}  // namespace vantora::ui::desktop
