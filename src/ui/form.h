#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ui/control.h"

namespace vantora::ui {

class desk;

/// A window beyond the system's own that a screen opens, by a key and a command of its bar.
struct further_window {
    std::string name;     ///< by which scripts open it
    std::string caption;  ///< of the command, in the code page
    std::string key;      ///< as keyboards call it: "Ctrl+B"
    std::function<bool()> can_open;
    std::function<void()> open;
    std::function<int()> count = {};  ///< what waits there, told behind the caption
};

/// A screen: a struct whose members are its controls and whose member functions are its events.
/// Controls register in the constructor, in the order in which Tab walks them.
class form {
 public:
    form(ui::desk& on, std::string name, std::string title);
    form(const form&) = delete;
    form& operator=(const form&) = delete;
    virtual ~form();

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] const std::string& title() const { return title_; }
    /// What it is about just now, such as a customer; for the title bar of a window.
    [[nodiscard]] virtual std::string subject() const { return {}; }
    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] const std::vector<control*>& controls() const { return controls_; }
    /// The control of that name and index, without regard to case; null if there is none. A
    /// control that is no array's element may also be named with index 0.
    [[nodiscard]] control* find(std::string_view name, std::optional<int> index) const;

    [[nodiscard]] ui::desk& desk() const { return desk_; }

    /// True while the screen saves or prints. The user can then neither work in it nor close it,
    /// though some of its work lets events run.
    [[nodiscard]] bool at_work() const { return at_work_ > 0; }

    /// Shows the screen and makes it the active one.
    void show();
    /// Shows it in front of its caller and comes back when it is hidden or unloaded.
    void show_modal();
    /// Shows it in front of the active screen like a message box; it is unloaded to leave it.
    void show_over();
    void hide();
    /// Drops the screen; its next use loads it afresh. What runs in it finishes first.
    void unload();

    /// If the focus was in `from` when the form was last active, it comes back to `to`.
    void come_back_to(control& to, const control& from) {
        if (remembered_ == &from) remembered_ = &to;
    }

    /// The windows that the user can open from here.
    [[nodiscard]] const std::vector<further_window>& further_windows() const {
        return further_windows_;
    }

    /// The user takes the last change back, or does again what was taken back. False if there is
    /// nothing to it.
    virtual bool take_back() { return false; }
    virtual bool bring_back() { return false; }
    /// Whether that holds for what is typed in a control.
    [[nodiscard]] virtual bool keeps_changes_of(const control&) const { return false; }

    /// The program is asked to end. False if the user would rather go on here.
    virtual bool may_end() { return true; }
    /// The user pauses: what takes its time can be done now. No box may come up.
    virtual void rest() {}

    /// The user does nothing, or comes back to the program: what others changed may be shown now.
    /// Only of the active form, never under a script. No box may come up.
    virtual void catch_up() {}

    /// Tells its holder that the form was unloaded.
    std::function<void()> when_unloaded;

 protected:
    void add(std::string name, control& one);
    template <class Control, std::size_t N>
    void add(const std::string& name, Control (&array)[N]) {
        for (std::size_t i = 0; i < N; ++i) add_element(name, static_cast<int>(i), array[i]);
    }

    void add_element(const std::string& name, int index, control& one);

    void offer(further_window one) { further_windows_.push_back(std::move(one)); }

    /// The screen is at work as long as one of these lives.
    class work {
     public:
        explicit work(form& of) : of_(of) { ++of_.at_work_; }
        work(const work&) = delete;
        work& operator=(const work&) = delete;
        ~work() { --of_.at_work_; }

     private:
        form& of_;
    };

    /// Once, when the screen comes into being.
    virtual void load() {}
    /// Whenever it becomes the active screen, coming from another one.
    virtual void activate() {}
    /// Something that the user did is carried out, and the screen is the active one.
    virtual void settled() {}
    /// The user closes it by its title bar.
    virtual void close() { unload(); }

 private:
    friend class ui::desk;
    friend class control;

    ui::desk& desk_;
    std::string name_;
    std::string title_;
    bool visible_ = false;
    bool lies_over_ = false;  ///< like a message box
    int at_work_ = 0;
    control* remembered_ = nullptr;  ///< had the focus when the form was last active
    std::vector<control*> controls_;
    std::vector<further_window> further_windows_;
};

}  // namespace vantora::ui
