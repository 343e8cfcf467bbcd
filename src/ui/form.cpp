#include "ui/form.h"

#include "text/code_page.h"
#include "ui/desk.h"

namespace vantora::ui {

form::form(ui::desk& on, std::string name, std::string title)
    : desk_(on), name_(std::move(name)), title_(std::move(title)) {}

form::~form() = default;

control* form::find(std::string_view name, std::optional<int> index) const {
    const std::string wanted = upper(name);
    for (control* one : controls_) {
        if (one->index().value_or(0) != index.value_or(0)) continue;
        if (one->index().has_value() && !index) continue;
        if (upper(one->name()) == wanted) return one;
    }
    return nullptr;
}

void form::add(std::string name, control& one) {
    one.name_ = std::move(name);
    one.owner_ = this;
    controls_.push_back(&one);
}

void form::add_element(const std::string& name, int index, control& one) {
    one.index_ = index;
    add(name, one);
}

void form::show() {
    desk_.show(*this);
}
void form::show_modal() {
    desk_.show_modal(*this);
}
void form::show_over() {
    desk_.show_over(*this);
}
void form::hide() {
    desk_.hide(*this);
}
void form::unload() {
    desk_.unload(*this);
}

}  // namespace vantora::ui
