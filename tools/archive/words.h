#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "text/code_page.h"

namespace vantora::archive {

/// Whether a terminal may take a byte of the code page for a command.
constexpr bool is_control(char character) {
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x20 && code < 0x7F) return false;
    return code < 0x20 || code == 0x7F || code == 0x81 || code == 0x8D || code == 0x8F ||
           code == 0x90 || code == 0x9D;
}

/// A text of the code page as a terminal may have it (UTF-8): a dot for each control byte.
inline std::string without_controls(std::string_view text) {
    std::string clean(text);
    for (char& one : clean) {
        if (is_control(one)) one = '\xB7';
    }
    return to_utf8(clean);
}

/// What a person reads in a text field: up to its first zero byte, without the blanks around it.
inline std::string words_of(std::string_view stored) {
    return without_controls(trimmed(stored.substr(0, stored.find('\0'))));
}

/// A path for a message: whatever its bytes are.
inline std::string words_of_path(const std::filesystem::path& path) {
    return without_controls(from_utf8(path.string()));
}

/// The first of them, a line each, and how many others there are.
inline std::string first_lines(const std::vector<std::string>& all, const char* others_end) {
    constexpr std::size_t named_most = 10;
    std::string lines;
    for (std::size_t i = 0; i < std::min(all.size(), named_most); ++i) lines += "\n  " + all[i];
    if (all.size() <= named_most) return lines;
    return lines + "\n  ... e altri " + std::to_string(all.size() - named_most) + others_end;
}

/// " (anna su cassa2)"; nothing for nothing.
inline std::string in_brackets(const std::string& words) {
    return words.empty() ? words : " (" + words + ")";
}

}  // namespace vantora::archive
