#include <cmath>

#include "text/decimal.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// A mask, taken apart.
struct digit_mask {
    int least_whole = 0;     ///< digits shown in front of the mark in any case
    bool grouped = false;    ///< thousands are grouped
    bool has_mark = false;   ///< there is a decimal mark
    int most_decimals = 0;   ///< places behind the mark
    int least_decimals = 0;  ///< places behind the mark shown in any case
};

digit_mask read_mask(std::string_view mask) {
    digit_mask read;
    for (const char place : mask) {
        if (place == ',') read.grouped = true;
        if (place == '.') read.has_mark = true;
        if (place != '0' && place != '#') continue;
        if (!read.has_mark) {
            if (place == '0') ++read.least_whole;
            continue;
        }
        ++read.most_decimals;
        if (place == '0') read.least_decimals = read.most_decimals;
    }
    return read;
}

/// The digits of a number cut to `decimals` places, half away from zero: whole part without leading
/// zeros, then exactly so many decimals.
struct rounded {
    std::string whole;
    std::string decimals;
    bool zero = true;
};

rounded round_digits(double value, int decimals) {
    const auto places = static_cast<std::size_t>(decimals);
    if (value == 0 || !std::isfinite(value)) return {"", std::string(places, '0'), true};
    const decimal number = decimal_of(value);
    std::string digits = number.digits;
    int point = number.point;
    if (point < -decimals) return {"", std::string(places, '0'), true};
    if (point < 0) {
        digits.insert(0, static_cast<std::size_t>(-point), '0');
        point = 0;
    }
    const auto kept = static_cast<std::size_t>(point + decimals);
    if (kept < digits.size()) {
        const bool up = digits[kept] >= '5';
        digits.resize(kept);
        std::size_t at = kept;
        while (up && at > 0 && digits[at - 1] == '9') digits[--at] = '0';
        if (up && at > 0) ++digits[at - 1];
        if (up && at == 0) {
            digits.insert(0, 1, '1');
            ++point;
        }
    } else {
        digits.resize(kept, '0');
    }
    rounded result;
    result.zero = digits.find_first_not_of('0') == std::string::npos;
    result.whole = digits.substr(0, static_cast<std::size_t>(point));
    result.decimals = digits.substr(static_cast<std::size_t>(point));
    result.whole.erase(0, std::min(result.whole.find_first_not_of('0'), result.whole.size()));
    return result;
}

std::string group(const std::string& whole) {
    std::string text;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && (whole.size() - i) % 3 == 0) text.push_back('.');
        text.push_back(whole[i]);
    }
    return text;
}

}  // namespace

std::string masked(double value, std::string_view mask) {
    const digit_mask form = read_mask(mask);
    rounded number = round_digits(value, form.most_decimals);
    const auto least_whole = static_cast<std::size_t>(form.least_whole);
    if (number.whole.size() < least_whole) {
        number.whole.insert(0, least_whole - number.whole.size(), '0');
    }
    while (number.decimals.size() > static_cast<std::size_t>(form.least_decimals) &&
           number.decimals.back() == '0') {
        number.decimals.pop_back();
    }
    std::string text = value < 0 && !number.zero ? "-" : "";
    text.append(form.grouped ? group(number.whole) : number.whole);
    if (form.has_mark) text.append(",").append(number.decimals);
    return text;
}

}  // namespace vantora
