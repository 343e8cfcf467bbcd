#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "ui/colour.h"

namespace vantora::ui {

/// A picture point by point, from the upper left corner, row after row.
struct bitmap {
    int width = 0;
    int height = 0;
    std::vector<colour> points;  ///< width x height

    /// REQUIRES: 0 <= x < width, 0 <= y < height.
    [[nodiscard]] colour at(int x, int y) const {
        return points[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

/// Light grey: what documents leave out of every picture.
inline constexpr colour transparent_grey = 0xC0C0C0;

/// No logo is larger. A file that claims more is left alone: a few bytes may claim any size.
inline constexpr int picture_side_max = 2'000;
inline constexpr int picture_points_max = 4'000'000;

/// What a picture file gave.
struct decoded_picture {
    std::optional<bitmap> image;  ///< empty if the bytes hold no picture, or one too large
    bool too_large = false;
    bool other_kind = false;  ///< a picture, but none of the kinds that are read
    std::size_t claimed = 0;  ///< points that its head told, unless too large; read whole or not
};

/// Reads BMP, PNG, JPEG and GIF files, and no others.
class picture_decoder {
 public:
    virtual ~picture_decoder() = default;

    /// The picture in the bytes of a file. What the file itself has as transparent comes as
    /// `transparent_grey`.
    virtual decoded_picture decode(std::string_view bytes) = 0;
};

}  // namespace vantora::ui
