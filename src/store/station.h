#pragma once

#include <string>

namespace vantora {

/// User and host of this program, "anna su cassa2", in the code page.
std::string this_station();

}  // namespace vantora
