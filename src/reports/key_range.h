#pragma once

#include <string>
#include <string_view>

#include "text/code_page.h"

namespace vantora {

/// A range of codes or names, in capitals and without the blanks around them. An end that is left
/// empty tests nothing.
class key_range {
 public:
    key_range(std::string_view from, std::string_view to)
        : from_(upper(trimmed(from))), to_(upper(trimmed(to))) {}

    [[nodiscard]] bool holds(std::string_view key) const {
        if (from_.empty() && to_.empty()) return true;
        const std::string capital = upper(trimmed(key));
        return capital >= from_ && (to_.empty() || capital <= to_);
    }

 private:
    std::string from_;
    std::string to_;
};

}  // namespace vantora
