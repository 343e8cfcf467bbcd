#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vantora::ui {

/// The texts of a list, ready to be searched while the user types. They lie in one buffer, of which
/// a search reads every byte once at most: 32,767 rows answer within a frame.
class list_search {
 public:
    /// Forgets all rows.
    void clear();
    /// A cell of the row at hand.
    void add_cell(std::string_view text);
    void end_row();

    [[nodiscard]] int rows() const { return static_cast<int>(begins_.size()) - 1; }
    /// The rows with a cell that holds the text, ascending, counted from 0; none for an empty text.
    [[nodiscard]] std::vector<int> rows_with(std::string_view wanted) const;

 private:
    [[nodiscard]] std::size_t rarest_of(std::string_view wanted) const;

    std::string texts_;                        ///< cells, a separator behind each
    std::vector<std::uint32_t> begins_{0};     ///< of the rows in the buffer, and its end
    std::array<std::uint32_t, 256> counts_{};  ///< how often a character occurs
};

}  // namespace vantora::ui
