#include "text/searchable.h"

#include <array>

#include "text/code_page.h"

namespace vantora {

namespace {

/// Each character as searches compare it; 0 for those that don't show.
const std::array<char, 256>& folds() {
    static const std::array<char, 256> all = [] {
        std::array<char, 256> made{};
        for (unsigned code = 32; code < 256; ++code) {
            if (code != 127) made[code] = folded(static_cast<char>(code));
        }
        return made;
    }();
    return all;
}

}  // namespace

void append_searchable(std::string& to, std::string_view text) {
    const auto& fold = folds();
    const std::size_t before = to.size();
    to.resize(before + text.size());
    char* at = to.data() + before;
    for (const char character : text) {
        *at = fold[static_cast<unsigned char>(character)];
        at += *at != 0 ? 1 : 0;
    }
    to.resize(static_cast<std::size_t>(at - to.data()));
}

std::string searchable(std::string_view text) {
    std::string plain;
    append_searchable(plain, text);
    return plain;
}

}  // namespace vantora
