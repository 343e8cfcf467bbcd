#pragma once

#include "demo/page.h"

namespace vantora::demo {

// The fonts of the company's printed pages.

inline constexpr font name_font{.points = 12, .bold = true, .colour = navy};
inline constexpr font slogan_font{.points = 8, .italic = true, .colour = grey};
inline constexpr font small_font{.points = 8, .colour = grey};
inline constexpr font head_font{.points = 9, .bold = true};
inline constexpr font customer_font{.points = 10, .bold = true};
inline constexpr font plain_font{.points = 9};
inline constexpr font text_font{.points = 8};
inline constexpr font footer_font{.points = 7, .colour = grey};

}  // namespace vantora::demo
