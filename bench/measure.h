#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string_view>
#include <vector>

namespace vantora::bench {

/// Whether a bench is only to show that it runs.
inline bool is_quick(int count, char** arguments) {
    return count > 1 && std::string_view(arguments[1]) == "--quick";
}

inline double milliseconds(const std::function<void()>& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
        .count();
}

inline double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Runs the work and its yardstick in turn, so that a drift of the machine meets both, and prints
/// their medians and the ratio. `before` is run before each, untimed.
inline void compare(
    const char* what, int rounds, const std::function<void()>& work, const char* yardstick,
    const std::function<void()>& other, const std::function<void()>& before = [] {}) {
    std::vector<double> mine;
    std::vector<double> theirs;
    std::vector<double> ratios;
    for (int round = 0; round < rounds; ++round) {
        before();
        mine.push_back(milliseconds(work));
        before();
        theirs.push_back(milliseconds(other));
        ratios.push_back(mine.back() / theirs.back());
    }
    std::printf("%-34s %9.2f ms   %-44s %9.2f ms   ratio %.2f\n", what, median(mine), yardstick,
                median(theirs), median(ratios));
}

}  // namespace vantora::bench
