#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vantora::demo {

// A printed page as one plan in whole millimetres, from which both its layout (where the fields
// go) and its drawing (what stands around them) are written.

/// Red in the low byte.
constexpr int rgb(int red, int green, int blue) {
    return red + green * 256 + blue * 65536;
}

inline constexpr int black = 0;
inline constexpr int white = rgb(255, 255, 255);
inline constexpr int navy = rgb(31, 56, 100);
inline constexpr int pale = rgb(222, 231, 243);
inline constexpr int frame = rgb(128, 146, 178);
inline constexpr int grey = rgb(90, 96, 106);

struct font {
    std::string_view name = "Arial";
    int points = 8;
    bool bold = false;
    bool italic = false;
    int colour = black;
};

// The fonts of the company's printed pages.

inline constexpr font name_font{.points = 12, .bold = true, .colour = navy};
inline constexpr font slogan_font{.points = 8, .italic = true, .colour = grey};
inline constexpr font small_font{.points = 8, .colour = grey};
inline constexpr font head_font{.points = 9, .bold = true};
inline constexpr font customer_font{.points = 10, .bold = true};
inline constexpr font plain_font{.points = 9};
inline constexpr font text_font{.points = 8};
inline constexpr font footer_font{.points = 7, .colour = grey};

/// A box with a shaded strip on top that holds its caption.
struct panel {
    int left, top, right, bottom;
    std::string_view caption;
};

/// A field of the document, or a text of the firm, at its place. Numbers have X at their right end.
struct field {
    int row;  ///< of the layout
    int x, y;
    font look;
};

/// A text that stands on every page.
struct fixed_text {
    int x, y;
    std::string_view text;
    font look;
};

enum class side { left, right };

/// A column of the document's lines; it ends where the next begins.
struct column {
    int row;   ///< of the layout
    int left;  ///< millimetres
    std::string_view title;
    side aligned = side::left;
    int look_points = 8;
};

/// The table of the document's lines.
struct body {
    int head_top, text_top, text_bottom, right;
    int text_top_row, text_bottom_row;  ///< rows of the layout that hold the two limits
    std::span<const column> columns;
};

struct page {
    std::span<const panel> panels;
    std::span<const panel> bands;   ///< filled strips without a frame, white on navy
    std::span<const field> fields;  ///< beside those of every page
    std::span<const fixed_text> texts;
    body lines;
};

extern const page order_page;
extern const page transport_page;

/// The 600 lines of a layout file.
std::vector<std::string> layout_lines(const page& plan);

/// The lines of a drawing file. `logo` is the path of the firm's mark.
std::vector<std::string> drawing_lines(const page& plan, std::string_view logo);

/// The firm's mark as a 24-bit bitmap file: a hexagon nut around a drop of water. Light grey is
/// the colour that documents leave out.
std::string logo_bitmap();

}  // namespace vantora::demo
