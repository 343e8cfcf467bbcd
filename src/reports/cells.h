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
    /// A width that texts may have.
    class limit {
     public:
        explicit limit(double width);

     private:
        friend text_ruler;

        double width_;
        // A sum of character widths may be off by a little.
        double surely_within_;  ///< from here on a sum may be beyond the limit
        double surely_beyond_;  ///< so far a sum may be within it
    };

    /// REQUIRES: `paper` outlives the ruler.
    text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre);

    /// As the printer says.
    [[nodiscard]] double width(std::string_view text) const;
    [[nodiscard]] bool is_within(std::string_view text, const limit& most) const {
        return width(text) <= most.width_;
    }
    /// How many characters at the head of a text are within the limit, by the widths of the
    /// characters, which are asked for once; nothing where the printer must have its say, since the
    /// limit lies too near to one of their sums.
    [[nodiscard]] std::optional<std::size_t> head_within(std::string_view text,
                                                         const limit& most) const;

 private:
    static constexpr double unknown = -1;

    const ui::printer& paper_;
    ui::font font_;
    double units_;
    mutable std::array<double, 256> characters_;  ///< `unknown`: not asked for yet
};

/// The text of a cell by its format code: 0 leaves a text as it is; 1 to 8 read a number and write
/// it anew, 0 as nothing. Rules of dashes or equal signs and texts with a bracket pass any format.
std::string formatted(std::string_view cell, int formato, const valuta& in);

/// A text without the characters at its right end that must go until it fits or one is left.
std::string_view cut_to_fit(std::string_view text, const text_ruler::limit& most,
                            const text_ruler& ruler);

/// A cell that can be placed.
struct cella_pronta {
    std::string_view testo;
    double larghezza = 0;  ///< of the text; measured where that is asked for, else 0
};

/// Prepares the cells of one column.
class preparazione_celle {
 public:
    /// `measured`: the widths of the column's numbers are asked for.
    preparazione_celle(text_ruler ruler, double limit, int formato, valuta in, bool measured);

    /// Valid as long as the cell's text and until the next call.
    cella_pronta operator()(std::string_view cell);

 private:
    text_ruler ruler_;
    text_ruler::limit most_;
    int formato_;
    valuta currency_;
    bool measured_;
    std::string text_;  ///< of the latest number
};

}  // namespace vantora
