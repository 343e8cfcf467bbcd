#pragma once

namespace vantora::archive {

/// What the program tells whoever started it.
namespace exit_code {
inline constexpr int done = 0;  ///< sound, shown, written
inline constexpr int has_findings = 1;
inline constexpr int refused = 1;
inline constexpr int wrong_options = 2;
inline constexpr int unreadable = 3;
}  // namespace exit_code

}  // namespace vantora::archive
