#pragma once

#include <span>
#include <string_view>

// What the wholesaler sells, in UTF-8.

namespace vantora::demo {

/// A kind of goods, sold in several sizes.
struct product {
    int categoria;            ///< place in `categories`, from 0
    std::string_view prefix;  ///< beginning of the article codes
    std::string_view name;
    std::string_view um;
    std::string_view sizes;  ///< separated by "|", the cheapest first
    int lowest_cents;
    int highest_cents;
    int grams;  ///< of the smallest size
    int iva;    ///< VAT code
};

extern const std::span<const std::string_view> categories;
extern const std::span<const product> products;
extern const std::span<const std::string_view> makers;

/// Long texts of articles: up to three lines.
struct long_text {
    std::string_view lines[3];
};
extern const std::span<const long_text> long_texts;

/// Lines that a clerk adds to an order by hand.
extern const std::span<const std::string_view> remarks;

}  // namespace vantora::demo
