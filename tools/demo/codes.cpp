#include "demo/codes.h"

#include <cctype>

namespace vantora::demo {

namespace {

int digit(char character) {
    return character - '0';
}

char digit_completing_ten(int sum) {
    return static_cast<char>('0' + (10 - sum % 10) % 10);
}

}  // namespace

std::string partita_iva(std::string_view ten_digits) {
    int sum = 0;
    for (std::size_t i = 0; i < ten_digits.size(); ++i) {
        const int once = digit(ten_digits[i]);
        const int twice = 2 * once;
        sum += i % 2 == 0 ? once : twice > 9 ? twice - 9 : twice;
    }
    return std::string(ten_digits) + digit_completing_ten(sum);
}

std::string codice_fiscale(std::string_view fifteen) {
    static constexpr int odd_places[] = {1,  0,  5, 7, 9, 13, 15, 17, 19, 21, 2,  4,  18,
                                         20, 11, 3, 6, 8, 12, 14, 16, 10, 22, 25, 24, 23};
    int sum = 0;
    for (std::size_t i = 0; i < fifteen.size(); ++i) {
        const char one = fifteen[i];
        const int value = one <= '9' ? digit(one) : one - 'A';
        sum += i % 2 == 0 ? odd_places[value] : value;
    }
    return std::string(fifteen) + static_cast<char>('A' + sum % 26);
}

std::string three_letters(std::string_view name) {
    std::string consonants;
    std::string vowels;
    for (const char one : name) {
        const char capital = static_cast<char>(std::toupper(static_cast<unsigned char>(one)));
        if (capital < 'A' || capital > 'Z') continue;
        const bool vowel = std::string_view("AEIOU").find(capital) != std::string_view::npos;
        (vowel ? vowels : consonants) += capital;
    }
    return (consonants + vowels + "XXX").substr(0, 3);
}

std::string ean_code(std::string_view twelve_digits) {
    int sum = 0;
    for (std::size_t i = 0; i < twelve_digits.size(); ++i) {
        sum += digit(twelve_digits[i]) * (i % 2 == 0 ? 1 : 3);
    }
    return std::string(twelve_digits) + digit_completing_ten(sum);
}

std::string zero_padded(long long number, std::size_t width) {
    const std::string padded = std::string(width, '0') + std::to_string(number);
    return padded.substr(padded.size() - width);
}

}  // namespace vantora::demo
