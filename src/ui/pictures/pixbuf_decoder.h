#pragma once

#include "ui/picture_decoder.h"

namespace vantora::ui {

/// Leaves the reading of pictures to GdkPixbuf.
class pixbuf_decoder final : public picture_decoder {
 public:
    decoded_picture decode(std::string_view bytes) override;
};

}  // namespace vantora::ui
