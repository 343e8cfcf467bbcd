#pragma once

#include <vector>

#include "ui/text_controls.h"

namespace vantora::ui {

/// A mark to tick. Its click fires whenever the mark changes, by code as by hand.
class check_box : public text_control {
 public:
    check_box() : text_control(control_kind::check_box) {}

    std::function<void()> on_click;

    [[nodiscard]] bool on() const { return on_; }
    void set_on(bool on);
    /// The user clicks it: it takes the focus, then the mark changes.
    void toggle();

    /// Blank toggles.
    void take_effect(int code, std::optional<char> character) override;

 private:
    bool on_ = false;
};

class option_group;

/// One of several choices. Switching it on switches the others of its group off; only the click of
/// the one that goes on fires.
class option_button : public text_control {
 public:
    option_button() : text_control(control_kind::option_button) {}

    std::function<void()> on_click;

    [[nodiscard]] bool on() const { return on_; }
    void set_on(bool on);
    /// The user clicks it: it takes the focus, then goes on.
    void choose();

    /// As the screen is designed: no event, others of the group stay as they are.
    void design_on(bool on) { on_ = on; }

    /// Blank chooses this one, arrows the neighbour in the group.
    void take_effect(int code, std::optional<char> character) override;

 private:
    friend class option_group;

    void switch_off();

    bool on_ = false;
    option_group* group_ = nullptr;
};

/// The options among which one is on. A member of the form, declared beside its options.
class option_group {
 public:
    template <std::size_t N>
    void join(option_button (&options)[N]) {
        for (auto& option : options) join(option);
    }
    void join(option_button& option);

    [[nodiscard]] const std::vector<option_button*>& options() const { return options_; }

 private:
    std::vector<option_button*> options_;
};

}  // namespace vantora::ui
