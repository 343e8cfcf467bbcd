#pragma once

#include <cstdint>

namespace vantora {

/// Orders and quotes lie in blocks of consecutive records; a block's number is the
/// `registrazione`, from 1.
inline constexpr std::int64_t righe_blocco = 200;

/// Record number of row `row` (1 to 200) of block `registrazione`.
constexpr std::int64_t block_record(std::int64_t registrazione, std::int64_t row) {
    return (registrazione - 1) * righe_blocco + row;
}

static_assert(block_record(1, 1) == 1 && block_record(2, 1) == 201 && block_record(2, 200) == 400);

}  // namespace vantora
