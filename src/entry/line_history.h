#pragma once

#include <array>
#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "orders/order_lines.h"

namespace vantora {

/// What a hand can change in the window of an order's lines.
struct order_content {
    righe_ordine lines;
    /// Codes that stand in their cells but aren't taken, by line.
    std::map<int, std::string> typed_codes;
    std::array<bool, 6> choices{};  ///< as the window orders them
};

/// Columns of an order's lines, from the left.
enum class line_column { code, description, unit, quantity, fulfilled, sc1, sc2, price };

/// A cell by its line, 0 for none.
struct line_place {
    int line = 0;
    line_column column = line_column::code;
    bool operator==(const line_place&) const = default;
};

/// Where the cursor stands, and what is in that cell.
struct cell_in_work {
    line_place at;
    std::string text;
};

/// Every change of an order's lines since its window came up, back and forth. What grows or
/// shrinks in one cell without a pause elsewhere is one step. Nothing gets lost: who types on after
/// going back finds what was taken back behind the new steps.
class line_history {
 public:
    static constexpr std::size_t steps_max = 50'000;

    /// The content from which nothing goes back.
    void begin(order_content now);
    [[nodiscard]] bool begun() const { return begun_; }
    void clear() { *this = line_history(); }

    /// Notes what the content has become; nothing if it is the same.
    void note(const order_content& now, const cell_in_work& focus);
    /// The content is shown as `now` says, which is no change.
    void stand_at(order_content now, const cell_in_work& focus);

    /// Goes a step back or forth; now() is then what it was, or has been, and the place of the
    /// first change is given. Empty if there is no such step.
    std::optional<line_place> back();
    std::optional<line_place> forth();

    [[nodiscard]] const order_content& now() const { return now_; }

 private:
    struct shown_line {
        riga_ordine line;
        std::optional<std::string> typed_code;
    };
    /// What stood on some lines, and the choices, on the other side of a change.
    struct step {
        std::vector<std::pair<int, shown_line>> lines;
        std::array<bool, 6> choices{};
    };
    enum class growth { none, more, less };

    static shown_line line_of(const order_content& content, int number);
    static bool same(const shown_line& one, const shown_line& other);
    /// What `before` has otherwise than `after`.
    static step difference(const order_content& before, const order_content& after);
    /// Step and content change places; gives the place of the first difference.
    static line_place exchange(step& one, order_content& content);
    static growth growth_of(const std::string& before, const std::string& after);
    static line_place place_of(int number, const shown_line& one, const shown_line& other);
    bool joins_last(const step& one, growth kind, int line) const;
    void push(step one);
    /// What was taken back becomes steps behind, and one that takes it all back again.
    void keep_taken_back();

    bool begun_ = false;
    order_content now_;
    std::deque<step> done_;
    std::vector<step> taken_back_;  ///< the next one to bring back last
    cell_in_work focus_;
    growth open_ = growth::none;  ///< how the last step may go on
};

}  // namespace vantora
