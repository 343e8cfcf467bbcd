#include <charconv>
#include <cmath>
#include <system_error>

#include "text/digit.h"
#include "text/number_text.h"

namespace vantora {

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
