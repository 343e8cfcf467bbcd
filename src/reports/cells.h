#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "store/money.h"
#include "ui/printer.h"

namespace vantora {

/// Measures texts in one font, in the unit of an output.
class text_ruler {
 public:
    /// REQUIRES: `paper` outlives the ruler.
    text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre);

    /// As the printer says.
    [[nodiscard]] double width(std::string_view text) const;

    /// How many characters at the head of a text are within a width, by the widths of the
    /// characters, which are asked for once; nothing where the printer must have its say, since
    /// the width lies too near to one of their sums.
    [[nodiscard]] std::optional<std::size_t> head_within(std::string_view text, double most) const;

 private:
    static constexpr double unknown = -1;

    const ui::printer& paper_;
    ui::font font_;
    double units_;
    mutable std::array<double, 256> characters_;  ///< `unknown`: not asked for yet
};

/// The text of a cell by its format code: 0 leaves a text as it is, the others read a number and
/// write it anew, 0 as nothing: 1 and 2 with two decimals, 5 with those of unit prices. Rules of
/// dashes or equal signs and texts with a bracket pass any format.
std::string formatted(std::string_view cell, int formato, const valuta& in);

/// A text without the characters at its right end that must go until it fits or one is left.
std::string_view cut_to_fit(std::string_view text, double most, const text_ruler& ruler);

}  // namespace vantora
