#pragma once

#include <string>
#include <string_view>

namespace vantora {

/// A text as searches compare it: in capitals, without accents and without what doesn't show.
std::string searchable(std::string_view text);

/// Appends it to another one.
void append_searchable(std::string& to, std::string_view text);

}  // namespace vantora
