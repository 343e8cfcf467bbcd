#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "store/values.h"
#include "ui/printer.h"

namespace vantora {

/// Measures texts in one font, in the unit of an output.
class text_ruler {
 public:
    /// REQUIRES: `paper` outlives the ruler.
    text_ruler(const ui::printer& paper, ui::font in, double units_per_millimetre);

    /// As the printer says.
    [[nodiscard]] double width(std::string_view text) const;
    /// By the widths of the characters, which are asked for once; the printer has its say where
    /// the two lie next to each other.
    [[nodiscard]] bool fits(std::string_view text, double limit) const;
    /// How many characters at the head of a text are needed to pass the limit beyond any doubt; all
    /// of them if it isn't passed.
    [[nodiscard]] std::size_t passing(std::string_view text, double limit) const;

 private:
    [[nodiscard]] double character_width(char character) const;

    const ui::printer& paper_;
    ui::font font_;
    double units_;
    mutable std::array<double, 256> characters_;  ///< below 0: not asked for yet
};

/// The text of a cell by its format code: 0 leaves a text as it is; 1 to 8 read a number and write
/// it anew, 0 as nothing. Rules of dashes or equal signs and texts with a bracket pass any format.
std::string formattata(std::string_view cell, int formato, const valuta& in);

/// Takes characters off the right end until the text fits or one is left.
void accorcia(std::string& text, double limit, const text_ruler& ruler);

/// A cell that can be placed.
struct cella_pronta {
    std::string testo;
    double larghezza = 0;  ///< of the text; measured for numbers alone
};

/// Prepares the cells of one column. Lists repeat themselves, so the latest cells are kept.
class preparazione_celle {
 public:
    preparazione_celle(text_ruler ruler, double limit, int formato, valuta in);

    /// Valid until the next call.
    const cella_pronta& operator()(std::string_view cell);

 private:
    struct kept {
        bool used = false;
        std::string cell;
        cella_pronta ready;
    };
    static constexpr std::size_t kept_cells = 64;

    text_ruler ruler_;
    double limit_;
    int formato_;
    valuta currency_;
    std::vector<kept> kept_{kept_cells};
};

}  // namespace vantora
