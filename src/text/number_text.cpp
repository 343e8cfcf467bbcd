#include "text/number_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

#include "text/digit.h"

namespace vantora {

// Writing ----------------------------------------------------------------------------------------

namespace {

/// A number as the decimal text that all showing and rounding starts from: 15 significant digits.
struct decimal {
    bool negative = false;
    std::string digits;  ///< 15 digits, the first not 0
    int point = 0;       ///< place of the decimal point in them: 0.00123 has -2, 123.0 has 3
};

constexpr std::size_t places = 15;

/// Room for any number in the exponent form.
using exponent_text = char[40];

decimal taken_apart(std::string_view text, bool negative) {
    decimal number;
    number.negative = negative;
    const std::size_t mark = text.find('e');
    for (const char character : text.substr(0, mark)) {
        if (character != '.') number.digits.push_back(character);
    }
    number.digits.resize(std::max(places, number.digits.size()), '0');
    text.remove_prefix(mark + 1);
    if (text.front() == '+') text.remove_prefix(1);
    int exponent = 0;
    std::from_chars(text.data(), text.data() + text.size(), exponent);
    number.point = exponent + 1;
    return number;
}

/// REQUIRES: the value is finite and not 0.
decimal decimal_of(double value) {
    exponent_text text;
    const double size = std::fabs(value);
    // Amounts as people write them have few digits: these are quicker found than fifteen, and are
    // the same, but where a number is too small to keep fifteen.
    if (size >= std::numeric_limits<double>::min()) {
        const auto end =
            std::to_chars(text, text + sizeof text, size, std::chars_format::scientific).ptr;
        const decimal number = taken_apart({text, end}, value < 0);
        if (number.digits.size() == places) return number;
    }
    const auto end = std::to_chars(text, text + sizeof text, size, std::chars_format::scientific,
                                   static_cast<int>(places) - 1)
                         .ptr;
    return taken_apart({text, end}, value < 0);
}

constexpr int most_decimals = 15;

void drop_trailing_zeros(std::string& digits) {
    digits.erase(digits.find_last_not_of('0') + 1);
}

std::string exponent_form(const decimal& number, const std::string& digits) {
    std::string text = digits.substr(0, 1);
    if (digits.size() > 1) text.append(".").append(digits, 1);
    const int exponent = number.point - 1;
    text.append(exponent < 0 ? "E-" : "E+");
    const std::string shown = std::to_string(std::abs(exponent));
    return text.append(shown.size() < 2 ? "0" : "").append(shown);
}

}  // namespace

std::string plain_text(double value) {
    if (!std::isfinite(value) || value == 0) return "0";
    const decimal number = decimal_of(value);
    std::string digits = number.digits;
    drop_trailing_zeros(digits);
    const int size = static_cast<int>(digits.size());
    std::string text = number.negative ? "-" : "";
    if (number.point > most_decimals ||
        (number.point < -3 && size - number.point > most_decimals)) {
        return text + exponent_form(number, digits);
    }
    if (number.point <= 0) {
        return text.append("0.").append(static_cast<std::size_t>(-number.point), '0') + digits;
    }
    if (size <= number.point) {
        return text.append(digits).append(static_cast<std::size_t>(number.point - size), '0');
    }
    const auto point = static_cast<std::size_t>(number.point);
    return text.append(digits, 0, point).append(".").append(digits, point);
}

std::string plain_text_signed(double value) {
    std::string text = plain_text(value);
    return text.starts_with('-') ? text : " " + text;
}

double integer_part(double value) {
    return std::floor(value);
}

// By a mask --------------------------------------------------------------------------------------

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

// Reading ----------------------------------------------------------------------------------------

namespace {

/// Reads the head of a text as a number, blanks passed over, into the form that the standard
/// library reads.
class head {
 public:
    explicit head(std::string_view text) : text_(text) { read(); }

    [[nodiscard]] bool has_digits() const { return has_digits_; }
    [[nodiscard]] bool took_all() {
        skip_blanks();
        return position_ == text_.size();
    }
    [[nodiscard]] const std::string& number() const { return number_; }

 private:
    void skip_blanks() {
        while (position_ < text_.size() &&
               (text_[position_] == ' ' || text_[position_] == '\t' || text_[position_] == '\n')) {
            ++position_;
        }
    }
    char peek() {
        skip_blanks();
        return position_ < text_.size() ? text_[position_] : '\0';
    }
    void take(char as) {
        number_.push_back(as);
        ++position_;
    }
    bool take_digits() {
        bool any = false;
        while (is_digit(peek())) {
            take(text_[position_]);
            any = true;
        }
        return any;
    }

    void read() {
        if (peek() == '-') {
            take('-');
        } else if (peek() == '+') {
            ++position_;
        }
        has_digits_ = take_digits();
        if (peek() == '.') {
            take('.');
            has_digits_ = take_digits() || has_digits_;
        }
        if (has_digits_) read_exponent();
    }

    void read_exponent() {
        const char mark = peek();
        if (mark != 'E' && mark != 'e' && mark != 'D' && mark != 'd') return;
        const std::size_t before = position_;
        const std::size_t size = number_.size();
        take('e');
        if (peek() == '-' || peek() == '+') take(text_[position_]);
        if (take_digits()) return;
        position_ = before;
        number_.resize(size);
    }

    std::string_view text_;
    std::size_t position_ = 0;
    std::string number_;
    bool has_digits_ = false;
};

double value_of(const head& read) {
    if (!read.has_digits()) return 0;
    const std::string& number = read.number();
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) return 0;
    return value == 0 ? 0 : value;
}

}  // namespace

double number_at_head(std::string_view text) {
    return value_of(head(text));
}

std::optional<double> whole_number_text(std::string_view text) {
    head read(text);
    if (!read.has_digits() || !read.took_all()) return {};
    return value_of(read);
}

}  // namespace vantora
