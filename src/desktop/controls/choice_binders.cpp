#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QRadioButton>

#include "desktop/controls/binder.h"
#include "ui/choice_controls.h"

namespace vantora::ui::desktop {

namespace {

/// A check box or an option: the model decides whether it goes on, the widget follows.
template <class Model, class Widget, void (Model::*Click)()>
class choice_binder final : public binder {
 public:
    choice_binder(Model& model, QWidget* parent, const user& by)
        : binder(model, new Widget(parent), by), button_(as<Widget>()), model_(model) {
        // Without the group an option would put the others out by itself; those who listen know it
        // for an option by being exclusive.
        auto* alone = new QButtonGroup(button_);
        alone->setExclusive(false);
        alone->addButton(button_);
        connect(button_, &QAbstractButton::clicked, this, [this] {
            act_click(*button_, [this] { (model_.*Click)(); });
            show_again(aspect::value);
        });
        show_all();
    }

 private:
    void show_value(aspect what) override {
        if (what == aspect::text) button_->setText(to_qt(model_.text()));
        if (what != aspect::value) return;
        button_->setChecked(model_.on());
        // Tab stops once in a group of options, at the one that is on.
        if (model_.kind() == control_kind::option_button) {
            button_->setFocusPolicy(model_.on() ? Qt::StrongFocus : Qt::ClickFocus);
        }
    }

    QAbstractButton* button_;
    Model& model_;
};

}  // namespace

std::unique_ptr<binder> bind_choice_kind(control& to, QWidget* parent, const user& by) {
    if (to.kind() == control_kind::check_box) {
        return std::make_unique<choice_binder<check_box, QCheckBox, &check_box::toggle>>(
            static_cast<check_box&>(to), parent, by);
    }
    return std::make_unique<choice_binder<option_button, QRadioButton, &option_button::choose>>(
        static_cast<option_button&>(to), parent, by);
}

}  // namespace vantora::ui::desktop
