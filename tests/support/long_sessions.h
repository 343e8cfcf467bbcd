#pragma once

#include <cstdlib>

namespace vantora::test {

/// Random sessions take all their seeds where VANTORA_LONG_TESTS is set, else a part of them.
inline bool long_sessions() {
    return std::getenv("VANTORA_LONG_TESTS") != nullptr;
}
/// The seed of the first session, another one by VANTORA_SEED.
inline unsigned first_seed() {
    const char* const given = std::getenv("VANTORA_SEED");
    return given ? static_cast<unsigned>(std::strtoul(given, nullptr, 10)) : 1;
}

}  // namespace vantora::test
