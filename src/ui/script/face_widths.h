#pragma once

#include <string_view>

namespace vantora::ui::script {

/// Width of a text in a Helvetica-like face, in thousandths of the font size.
int face_width(std::string_view text, bool bold);

}  // namespace vantora::ui::script
