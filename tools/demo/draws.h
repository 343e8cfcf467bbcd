#pragma once

#include <cstdint>
#include <iterator>
#include <random>

namespace vantora::demo {

/// Chance for the made-up data. The same seed gives the same draws on every machine; each archive
/// has a stream of its own, so that the size of one doesn't change the content of another.
class draws {
 public:
    draws(std::uint64_t seed, std::uint64_t stream) : engine_(seed * 1'000'003 + stream) {}

    /// 0 to `count` - 1. REQUIRES: `count` is above 0.
    int below(int count) {
        return static_cast<int>((engine_() >> 33) % static_cast<std::uint64_t>(count));
    }

    /// `low` to `high`, both included.
    int between(int low, int high) { return low + below(high - low + 1); }

    /// True in `chance` of a hundred cases.
    bool percent(int chance) { return below(100) < chance; }

    template <class Table>
    const auto& one_of(const Table& table) {
        return table[static_cast<std::size_t>(below(static_cast<int>(std::size(table))))];
    }

 private:
    std::mt19937_64 engine_;
};

}  // namespace vantora::demo
