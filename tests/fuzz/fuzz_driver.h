#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

// A fuzz target tells what it starts from and what it does with one input; fuzz_driver.cpp runs it
// for a fixed number of inputs, the same ones each time. LLVMFuzzerTestOneInput is there for a
// coverage-guided engine, which brings its own main.

/// Good inputs to begin with.
std::vector<std::string> fuzz_seeds();

/// What must hold for every input.
inline void require(bool holds) {
    if (!holds) std::abort();
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
