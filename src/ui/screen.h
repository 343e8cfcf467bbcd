#pragma once

#include <functional>
#include <memory>

#include "ui/desk.h"

namespace vantora::ui {

/// The place of one screen in the program. Using the screen loads it if it isn't. A screen that
/// the program doesn't have yet leads nowhere.
class screen_place {
 public:
    screen_place() = default;
    screen_place(const screen_place&) = delete;
    screen_place& operator=(const screen_place&) = delete;

    /// Whether the program has this screen.
    [[nodiscard]] bool exists() const { return static_cast<bool>(make_); }
    [[nodiscard]] bool loaded() const { return form_ != nullptr; }

    /// The screen, loaded now if it isn't. REQUIRES: exists().
    form& use() {
        if (!form_) {
            auto made = make_();
            form_ = made.get();
            form_->when_unloaded = [this] { form_ = nullptr; };
            desk_->load(std::move(made));
        }
        return *form_;
    }

    /// Tells how the screen is made. Called once, at the start of the program.
    void made_by(ui::desk& on, std::function<std::unique_ptr<form>()> make) {
        desk_ = &on;
        make_ = std::move(make);
    }

 private:
    ui::desk* desk_ = nullptr;
    std::function<std::unique_ptr<form>()> make_;
    form* form_ = nullptr;
};

/// The same, for those who know the screen's controls. REQUIRES: what made_by was given makes a
/// Form.
template <class Form>
class screen : public screen_place {
 public:
    Form* operator->() { return static_cast<Form*>(&use()); }
    Form& operator*() { return static_cast<Form&>(use()); }
};

}  // namespace vantora::ui
