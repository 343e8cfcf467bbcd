#include "desktop/lists/list_search.h"

#include <cstring>

#include "text/searchable.h"

namespace vantora::ui {

namespace {

constexpr char separator = 0;

}  // namespace

void list_search::clear() {
    texts_.clear();
    begins_.assign(1, 0);
    counts_.fill(0);
}

void list_search::add_cell(std::string_view text) {
    append_searchable(texts_, text);
    texts_.push_back(separator);
}

void list_search::end_row() {
    for (std::size_t i = begins_.back(); i < texts_.size(); ++i) {
        ++counts_[static_cast<unsigned char>(texts_[i])];
    }
    begins_.push_back(static_cast<std::uint32_t>(texts_.size()));
}

std::size_t list_search::rarest_of(std::string_view wanted) const {
    const auto count = [&](std::size_t i) {
        return counts_[static_cast<unsigned char>(wanted[i])];
    };
    std::size_t rarest = 0;
    for (std::size_t i = 1; i < wanted.size(); ++i) {
        if (count(i) < count(rarest)) rarest = i;
    }
    return rarest;
}

std::vector<int> list_search::rows_with(std::string_view wanted) const {
    std::vector<int> found;
    const std::string plain = searchable(wanted);
    if (plain.empty() || texts_.size() < plain.size()) return found;
    // The rarest character of the text leads to the few places worth a look.
    const std::size_t ahead = rarest_of(plain);
    const char* const begin = texts_.data();
    const char* const last = begin + texts_.size() - plain.size();
    std::size_t row = 0;
    for (const char* at = begin; at <= last;) {
        const auto room = static_cast<std::size_t>(last - at) + 1;
        const void* hit = std::memchr(at + ahead, plain[ahead], room);
        if (!hit) break;
        at = static_cast<const char*>(hit) - ahead;
        if (std::memcmp(at, plain.data(), plain.size()) != 0) {
            ++at;
            continue;
        }
        const auto offset = static_cast<std::uint32_t>(at - begin);
        while (begins_[row + 1] <= offset) ++row;
        found.push_back(static_cast<int>(row));
        at = begin + begins_[row + 1];
    }
    return found;
}

}  // namespace vantora::ui
