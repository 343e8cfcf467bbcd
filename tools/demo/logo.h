#pragma once

#include <string>

namespace vantora::demo {

/// The firm's mark as a 24-bit bitmap file: a hexagon nut around a drop of water. Light grey is
/// the colour that documents leave out.
std::string logo_bitmap();

}  // namespace vantora::demo
