#include "ui/guards.h"

#include <utility>

#include "ui/desk.h"

namespace vantora::ui {

bool guards::confirm(std::string question, answer proposed) {
    return !on_ || desk_.ask(std::move(question), attention, icon::question, proposed);
}

bool guards::refuse(std::string why) {
    if (on_) desk_.warn(std::move(why));
    return on_;
}

answer guards::choose(std::string question, std::vector<std::string> choices, answer unasked) {
    if (!on_) return unasked;
    message_box box{std::move(question), attention, icon::question, buttons::choice};
    box.choices = std::move(choices);
    box.proposed = answer::choice_1;
    return desk_.show_box(std::move(box));
}

}  // namespace vantora::ui
