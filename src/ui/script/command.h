#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantora::ui::script {

/// One word of a command line. A quoted text keeps its blanks and lost its escapes.
struct word {
    std::string text;  ///< UTF-8
    bool quoted = false;
};

/// The words of a line, separated by blanks; a text is a JSON string. Empty if the line can't be
/// read.
std::optional<std::vector<word>> split_words(std::string_view line);

/// "screen.control" or "screen.control(i)"
struct address {
    std::string screen;
    std::string control;
    std::optional<int> index;
};

std::optional<address> read_address(std::string_view text);

/// A whole number with nothing around it.
std::optional<int> read_int(std::string_view text);

}  // namespace vantora::ui::script
