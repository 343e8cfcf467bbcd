#pragma once

#include <string>

#include "scripted/small_company.h"

namespace vantora::test {

/// What the archive's own check finds wrong with a company's orders and its stock, a line each. The
/// companies of tests begin with committed stock that no order of theirs explains.
std::string problems(const small_company& company);

}  // namespace vantora::test
