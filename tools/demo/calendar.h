#pragma once

#include <string>

namespace vantora::demo {

// Days as the files number them, from 30 December 1899. The demonstration company lives on fixed
// dates, so that it never depends on the day it was made.

inline constexpr int primo_giorno = 44928;   ///< Monday 2 January 2023
inline constexpr int ultimo_giorno = 45646;  ///< Friday 20 December 2024

/// yyyymmdd
std::string stored_day(int day);

/// dd/mm/yyyy
std::string shown_day(int day);

/// The day, or the Monday behind it if it falls on a weekend.
int working_day(int day);

}  // namespace vantora::demo
