#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "store/archives.h"

namespace vantora {

/// What is doubtful about a transport document before it is stored.
struct dubbio_documento {
    bool numero = false;   ///< given already, or none
    bool data = false;     ///< none
    std::string racconto;  ///< in words, for the user

    [[nodiscard]] bool any() const { return numero || data; }
};

/// Looks at number and date as typed, and whether the number was given already in the year of the
/// date. Reads all documents, many at a time; those that can't be read count for none.
dubbio_documento doubt_about(const archivi& files, std::string_view number, std::string_view date);

/// The next number behind the last one drawn that wasn't given in the year of a date, as typed.
std::int16_t free_number(const archivi& files, std::string_view date);

}  // namespace vantora
