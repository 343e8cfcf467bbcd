#pragma once

#include <span>
#include <string_view>

// What the names and addresses of the made-up customers are put together from, in UTF-8.

namespace vantora::demo {

struct town {
    std::string_view cap;
    std::string_view name;
    std::string_view province;
    std::string_view dialling_code;
};

extern const std::span<const std::string_view> surnames;
extern const std::span<const std::string_view> given_names;
extern const std::span<const std::string_view> streets;
extern const std::span<const town> towns;

/// Beginnings of a firm's name, before the owner's surname.
extern const std::span<const std::string_view> trades;

extern const std::span<const std::string_view> company_forms;

/// Carriers in three lines; "*" leaves a line of the document as it stands.
struct carrier {
    std::string_view lines[3];
};
extern const std::span<const carrier> carriers;

}  // namespace vantora::demo
