#pragma once

#include <string>
#include <string_view>

#include "text/code_page.h"

namespace vantora::archive {

/// What a person reads in a text field: up to its first zero byte, without the blanks at its end.
inline std::string words_of(std::string_view stored) {
    return to_utf8(trimmed(stored.substr(0, stored.find('\0'))));
}

}  // namespace vantora::archive
