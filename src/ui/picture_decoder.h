#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "ui/bitmap.h"

namespace vantora::ui {

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
