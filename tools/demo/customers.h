#pragma once

#include <cstdint>
#include <vector>

#include "store/records/rec_cli.h"

namespace vantora::demo {

/// The customers of the company, record 1 first. Some are deleted, never the first; some begin with
/// the same words, the fifth and the twelfth have the same name.
std::vector<rec_cli> make_customers(int count, std::uint64_t seed);

}  // namespace vantora::demo
