#pragma once

#include <cstdlib>
#include <random>

namespace vantora::test {

/// Which of very many cases a test takes: one in `step`, others each time; with EVERY_FAULT set in
/// the environment all of them, which takes minutes.
struct sampled {
    explicit sampled(std::size_t one_in)
        : step(std::getenv("EVERY_FAULT") ? 1 : one_in), first(std::random_device()() % step) {}

    std::size_t step;
    std::size_t first;
};

}  // namespace vantora::test
