#pragma once

#include <span>
#include <string>

#include "store/money.h"
#include "store/records.h"

namespace vantora {

/// What stands behind a row of the register, for who rests on it: the first lines of the order,
/// what is open of it, what it is worth. `block`: all its rows.
std::string order_hint(std::span<const rec_orc> block, const valuta& in);

}  // namespace vantora
