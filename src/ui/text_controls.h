#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "ui/bitmap.h"
#include "ui/control.h"
#include "ui/input_rule.h"

namespace vantora::ui {

/// A control that shows a text of its own.
class text_control : public control {
 public:
    [[nodiscard]] const std::string& text() const { return text_; }
    /// Shows a text. Text boxes fire their change event if the text really changes.
    void set_text(std::string_view text);

 protected:
    using control::control;
    virtual void text_changed() {}

 private:
    std::string text_;
};

/// Told before each line of a paste, how many are done of how many; false breaks it off.
using paste_progress = std::function<bool(int done, int of)>;

/// What is pasted, from the clipboard or from a file.
struct pasted_text {
    std::string_view text;
    bool from_file = false;
};

/// Whether a text is lines from a spreadsheet and not a text for one field: it has several lines
/// or columns behind tabs.
bool holds_pasted_lines(std::string_view text);

/// A field to type in.
class text_box : public text_control {
 public:
    text_box() : text_control(control_kind::text_box) {}

    std::function<void()> on_change;  ///< the text became another one, whoever set it
    input_rule accepts;               ///< from a hand in a window
    /// A hand in a window changed the text otherwise than by one key at its end.
    std::function<void()> on_edited;
    /// A bar code came in, faster than hands type, where the cursor happened to stand; the text is
    /// again as before. A field without it takes the code as typed.
    std::function<void(const std::string& code)> on_scan;
    /// Lines from a spreadsheet are pasted here; a field without it takes them as a text.
    std::function<void(const pasted_text& pasted, const paste_progress& goes_on)> on_paste_lines;

    /// A character joins the end of the text, backspace takes the last one off.
    void take_effect(int code, std::optional<char> character) override;

 protected:
    void text_changed() override { fire(on_change); }
};

/// A fixed text; it can be clicked and takes no focus.
class label : public text_control {
 public:
    label() : text_control(control_kind::label) {}

    std::function<void()> on_click;

    void click() { fire(on_click); }
};

/// A command. The text is its caption; a command shown by a picture has none.
class button : public text_control {
 public:
    button() : text_control(control_kind::button) {}

    std::function<void()> on_click;

    /// The user presses it: it takes the focus, then the click fires.
    void click();

    /// Enter and blank press the button.
    void take_effect(int code, std::optional<char> character) override;
};

/// A picture of the screen, by decoration or from a file; takes no focus.
class picture : public control {
 public:
    picture() : control(control_kind::picture) {}

    std::function<void()> on_click;

    void click() { fire(on_click); }

    /// What it shows; null as long as no file gave it anything.
    [[nodiscard]] const std::shared_ptr<const bitmap>& shown() const { return shown_; }
    void set_bitmap(std::shared_ptr<const bitmap> image) {
        if (image == shown_) return;
        shown_ = std::move(image);
        show_change(aspect::content);
    }

 private:
    std::shared_ptr<const bitmap> shown_;
};

}  // namespace vantora::ui
