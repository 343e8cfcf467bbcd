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
class choice_binder final : public binder_of<Model, Widget> {
 public:
    choice_binder(Model& model, QWidget* parent, const user& by)
        : binder_of<Model, Widget>(model, parent, by) {
        // Without the group an option would put the others out by itself; those who listen know it
        // for an option by being exclusive.
        auto* alone = new QButtonGroup(widget_);
        alone->setExclusive(false);
        alone->addButton(widget_);
        this->connect(widget_, &QAbstractButton::clicked, this, [this] {
            this->act_click(*widget_, [this] { (model_.*Click)(); });
            this->show_again(aspect::value);
        });
    }

 private:
    using binder_of<Model, Widget>::model_;
    using binder_of<Model, Widget>::widget_;

    void show_value(aspect what) override {
        if (what == aspect::text) widget_->setText(to_qt(model_.text()));
        if (what != aspect::value) return;
        widget_->setChecked(model_.on());
        // Tab stops once in a group of options, at the one that is on.
        if (model_.kind() == control_kind::option_button) {
            widget_->setFocusPolicy(model_.on() ? Qt::StrongFocus : Qt::ClickFocus);
        }
    }
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
