#include "ui/desk.h"

#include <algorithm>

#include "text/code_page.h"

namespace vantora::ui {

desk::desk(front_end& front, ui::clock& time, ui::printer& paper, ui::launcher& programs)
    : front_(front), clock_(time), printer_(paper), launcher_(programs) {}

desk::~desk() {
    for (const auto& one : loaded_) front_.form_unloaded(*one);
}

std::vector<form*> desk::forms() const {
    std::vector<form*> all;
    all.reserve(loaded_.size());
    for (const auto& one : loaded_) all.push_back(one.get());
    return all;
}

form* desk::find(std::string_view name) const {
    for (const auto& one : loaded_) {
        if (upper(one->name()) == upper(name)) return one.get();
    }
    return nullptr;
}

form& desk::load(std::unique_ptr<form> made) {
    form& one = *loaded_.emplace_back(std::move(made));
    one.load();
    front_.form_loaded(one);
    return one;
}

void desk::show(form& which) {
    if (!which.visible_) {
        which.visible_ = true;
        front_.form_shown(which);
    }
    activate(which);
}

void desk::show_modal(form& which) {
    modals_.push_back(&which);
    show(which);
    run_until([this, &which] { return std::ranges::find(modals_, &which) == modals_.end(); });
}

void desk::show_over(form& which) {
    which.lies_over_ = true;
    show_modal(which);
}

void desk::activate(form& which, bool anew) {
    if (active_ == &which) return;
    drop_focus();
    active_ = &which;
    std::erase(stacking_, &which);
    stacking_.push_back(&which);
    front_.form_activated(which);
    if (anew) which.activate();
    if (active_ != &which || focus_) return;
    if (which.remembered_ && which.remembered_->can_take_focus()) {
        give_focus(*which.remembered_);
        return;
    }
    for (control* one : which.controls_) {
        if (give_focus(*one)) return;
    }
}

void desk::drop_focus() {
    if (!focus_) return;
    control* old = focus_;
    focus_ = nullptr;
    front_.focus_moved(nullptr);
    control::fire(old->on_blur);
}

void desk::hide(form& which) {
    if (!which.visible_) return;
    which.visible_ = false;
    std::erase(stacking_, &which);
    std::erase(modals_, &which);
    if (active_ == &which) {
        drop_focus();
        if (active_ == &which) active_ = nullptr;
    }
    front_.form_hidden(which);
}

void desk::unload(form& which) {
    const auto place =
        std::ranges::find_if(loaded_, [&](const auto& one) { return one.get() == &which; });
    if (place == loaded_.end()) return;
    buried_.push_back(std::move(*place));
    loaded_.erase(place);
    if (which.when_unloaded) which.when_unloaded();

    const bool was_active = active_ == &which;
    if (was_active) {
        active_ = nullptr;
        focus_ = nullptr;
    }
    which.visible_ = false;
    std::erase(stacking_, &which);
    std::erase(modals_, &which);
    front_.form_unloaded(which);
    // What lies beneath comes to the front, as windows do.
    if (was_active && !stacking_.empty()) activate(*stacking_.back(), !which.lies_over_);
}

bool desk::give_focus(control& to) {
    if (!to.can_take_focus()) return false;
    form& owner = to.owner();
    if (active_ != &owner) {
        owner.remembered_ = &to;
        activate(owner);
        if (active_ != &owner || !to.can_take_focus()) return false;
    }
    if (focus_ == &to) return true;
    control* old = focus_;
    focus_ = &to;
    owner.remembered_ = &to;
    if (old) control::fire(old->on_blur);
    if (focus_ != &to) return true;  // the loss sent the focus elsewhere
    front_.focus_moved(&to);
    control::fire(to.on_focus);
    return true;
}

void desk::focus_lost_by(control& from) {
    if (focus_ != &from) return;
    tab(false);
    if (focus_ == &from) drop_focus();
}

void desk::tab(bool backwards) {
    if (!active_ || active_->controls_.empty()) return;
    auto& all = active_->controls_;
    const auto count = std::ssize(all);
    const auto found = std::ranges::find(all, focus_);
    // With no focus yet, it comes to the first control, or backwards to the last.
    const auto nowhere = backwards ? count : -1;
    const auto here = found == all.end() ? nowhere : found - all.begin();
    for (std::ptrdiff_t step = 1; step <= count; ++step) {
        const auto next = backwards ? here - step + count : here + step;
        if (give_focus(*all[static_cast<std::size_t>(next % count)])) return;
    }
}

void desk::close(form& which) {
    which.close();
}

}  // namespace vantora::ui
