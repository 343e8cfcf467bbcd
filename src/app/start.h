#pragma once

#include <string_view>

#include "program/program.h"

namespace vantora {

/// Gives the program its screens and shows the first one for the company in the menu program's
/// argument. Called inside desk::dispatch, once.
void start(program& app, std::string_view argument);

}  // namespace vantora
