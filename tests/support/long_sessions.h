#pragma once

#include <cstdlib>
#include <random>

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

/// Which of very many cases a test takes: one in `step`, others each time; with EVERY_FAULT set in
/// the environment all of them, which takes minutes.
struct sampled {
    explicit sampled(std::size_t one_in)
        : step(std::getenv("EVERY_FAULT") ? 1 : one_in), first(std::random_device()() % step) {}

    std::size_t step;
    std::size_t first;
};

}  // namespace vantora::test
