#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace vantora::ui {

class desk;
class form;

enum class control_kind {
    text_box,
    label,
    button,
    picture,
    check_box,
    option_button,
    list_box,
    drop_down,
    scroll_bar,
    progress_bar,
    date_picker,
    grid,
};

/// What a front end has to show anew after a change of a control.
enum class aspect {
    visibility,  ///< shown or hidden
    enabling,    ///< enabled or disabled
    text,        ///< text or caption
    value,       ///< on or off, chosen entry, position, date
    limits,      ///< range of a bar
    items,       ///< entries of a list
    content,     ///< cells or colours of a grid
    shape,       ///< rows, columns or heads of a grid
    position,    ///< current cell or top row of a grid
};

/// A front end's widget for one control. It listens and never decides: the model is right.
class control_view {
 public:
    virtual ~control_view() = default;
    virtual void changed(aspect what) = 0;
};

/// A key on its way through a control's key events. One that a handler swallows has no effect.
struct key_event {
    int code = 0;

    void swallow() { code = 0; }
    [[nodiscard]] bool swallowed() const { return code == 0; }
};

namespace key {
inline constexpr int backspace = 8;
inline constexpr int tab = 9;
inline constexpr int enter = 13;
inline constexpr int blank = 32;
inline constexpr int up = 38;
inline constexpr int down = 40;
inline constexpr int del = 46;
inline constexpr int f1 = 112;
/// Keys of signs and accented letters lie elsewhere on each keyboard; they share this code.
inline constexpr int sign = 255;

/// Code of the key that types a character: letters have that of their capital.
constexpr int of(char character) {
    if (character >= 'a' && character <= 'z') return character - 'a' + 'A';
    const bool same = (character >= 'A' && character <= 'Z') ||
                      (character >= '0' && character <= '9') ||
                      (character >= 0 && character <= ' ');
    return same ? character : sign;
}
}  // namespace key

/// One control of a screen, without a toolkit. A control belongs to the form that registered it
/// and lives as long. The models decide what happens; a front end passes on what the user does
/// and shows what is.
class control {
 public:
    control(const control&) = delete;
    control& operator=(const control&) = delete;
    virtual ~control() = default;

    std::function<void()> on_focus;                ///< focus gained
    std::function<void()> on_blur;                 ///< focus lost
    std::function<void(key_event&)> on_key_down;   ///< any key, by its code
    std::function<void(key_event&)> on_key_press;  ///< a key with a character, by that character

    [[nodiscard]] control_kind kind() const { return kind_; }
    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] std::optional<int> index() const { return index_; }
    /// "bottone(2)", or "nome" for a control that is no array's element.
    [[nodiscard]] std::string address() const;
    [[nodiscard]] form& owner() const { return *owner_; }

    [[nodiscard]] bool visible() const { return visible_; }
    [[nodiscard]] bool enabled() const { return enabled_; }
    /// A control that has the focus and is hidden or disabled passes it on to the next one.
    void set_visible(bool visible);
    void set_enabled(bool enabled);

    /// True for kinds that a user can work in; labels, pictures and progress bars aren't.
    [[nodiscard]] bool focusable() const;
    /// True if the control could take the focus now: focusable, visible, enabled, on a shown form.
    [[nodiscard]] bool can_take_focus() const;
    [[nodiscard]] bool has_focus() const;
    /// Gives the focus at once: the old control's loss, then this one's gain. False, with nothing
    /// done, if it can't take it.
    bool set_focus();

    /// The user presses a key here; the control has the focus. It is offered once; if it wasn't
    /// swallowed, it takes its usual effect.
    void press_key(int code, std::optional<char> character);

    /// Offers a key to the key events: key down first, then, for a key with a character, key
    /// press. False if one of them swallowed it.
    bool offer_key(int code, std::optional<char> character);

    /// What a key that wasn't swallowed does in this kind of control. A front end whose fields
    /// have a cursor edits there in its place.
    virtual void take_effect(int code, std::optional<char> character);

    /// Counts the changes of a list's texts and their order: what was made of them before such a
    /// change is old.
    [[nodiscard]] std::uint64_t revision() const { return revision_; }

    /// The front end's widget; null while there is none.
    void attach(control_view* view) { view_ = view; }

 protected:
    explicit control(control_kind kind) : kind_(kind) {}

    void show_change(aspect what) {
        const bool texts =
            what == aspect::content || what == aspect::shape || what == aspect::items;
        if (texts) ++revision_;
        if (view_) view_->changed(what);
    }
    static void fire(const std::function<void()>& event) {
        if (event) event();
    }

 private:
    friend class desk;
    friend class form;

    control_kind kind_;
    bool visible_ = true;
    bool enabled_ = true;
    std::string name_;
    std::optional<int> index_;
    form* owner_ = nullptr;
    control_view* view_ = nullptr;
    std::uint64_t revision_ = 0;
};

}  // namespace vantora::ui
