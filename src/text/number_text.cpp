#include "text/number_text.h"

#include <charconv>
#include <cmath>
#include <system_error>

#include "text/decimal.h"
#include "text/digit.h"

namespace vantora {

// Writing
// ------------------------------------------------------------------------------------------

namespace {

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

// Reading
// ------------------------------------------------------------------------------------------

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
