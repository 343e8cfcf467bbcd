#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/control.h"

namespace vantora::ui {

/// A column of entries that hold several texts.
struct entry_column {
    std::string head;
    std::string_view (*text)(std::string_view entry);
};

/// Entries of which one is chosen, or none (-1). Choosing another entry fires the click, by code
/// as by hand; choosing the chosen one again fires only when a user does it.
class list_control : public control {
 public:
    std::function<void()> on_click;
    std::vector<entry_column> columns;  ///< none: an entry is one text

    [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
    [[nodiscard]] int chosen() const { return chosen_; }
    /// REQUIRES: 0 <= position < count().
    [[nodiscard]] const std::string& item(int position) const {
        return items_[static_cast<std::size_t>(position)];
    }
    [[nodiscard]] const std::vector<std::string>& items() const { return items_; }
    /// The chosen entry, empty if there is none.
    [[nodiscard]] std::string_view text() const;

    /// REQUIRES: nothing is chosen in a list box.
    void add_all(std::vector<std::string> items);
    /// Takes all entries out; nothing is chosen, and no click fires.
    void clear();
    /// False, with nothing done, outside -1 to count() - 1.
    bool choose(int position);
    /// The user chooses an entry, by click or arrow key: the list takes the focus, the click fires
    /// even if it was chosen before. False, with nothing done, outside the list.
    bool pick(int position);

    /// Arrows pick the neighbour.
    void take_effect(int code, std::optional<char> character) override;

 protected:
    using control::control;

 private:
    int chosen_ = -1;
    std::vector<std::string> items_;
};

/// Its entries stand in the order of the alphabet, without regard to case, equal ones as they came.
class list_box : public list_control {
 public:
    list_box() : list_control(control_kind::list_box) {}
};

class drop_down : public list_control {
 public:
    drop_down() : list_control(control_kind::drop_down) {}
};

}  // namespace vantora::ui
