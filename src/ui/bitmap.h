#pragma once

#include <cstddef>
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

}  // namespace vantora::ui
