#include "text/code_page.h"

#include <algorithm>
#include <array>

namespace vantora {

namespace {

/// Unicode of the characters 128 to 159; the others are those of Latin-1.
constexpr std::array<char16_t, 32> upper_half = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t unicode_of(unsigned char code) {
    return code >= 0x80 && code < 0xA0 ? upper_half[code - 0x80U] : code;
}

char code_of(char32_t unicode) {
    if (unicode < 0x80 || (unicode >= 0xA0 && unicode <= 0xFF)) return static_cast<char>(unicode);
    const auto* found = std::ranges::find(upper_half, unicode);
    if (unicode > 0xFFFF || found == upper_half.end()) return '?';
    return static_cast<char>(0x80 + (found - upper_half.begin()));
}

/// Reads one character of UTF-8 and moves past it; a byte that isn't UTF-8 reads as one beyond
/// the code page.
char32_t next_character(std::string_view utf8, std::size_t& position) {
    constexpr char32_t none = 0xFFFD;
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char lead = byte(position++);
    if (lead < 0x80) return lead;
    std::size_t following = 0;
    char32_t value = 0;
    char32_t least = 0;
    if (lead >= 0xC2 && lead <= 0xDF) {
        following = 1, value = lead & 0x1FU, least = 0x80;
    } else if ((lead & 0xF0U) == 0xE0) {
        following = 2, value = lead & 0x0FU, least = 0x800;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        following = 3, value = lead & 0x07U, least = 0x10000;
    } else {
        return none;
    }
    if (utf8.size() - position < following) return none;
    for (std::size_t i = 0; i < following; ++i) {
        if ((byte(position + i) & 0xC0U) != 0x80) return none;
        value = value << 6 | (byte(position + i) & 0x3FU);
    }
    position += following;
    return value < least ? none : value;
}

void append_utf8(std::string& to, char32_t unicode) {
    if (unicode < 0x80) {
        to.push_back(static_cast<char>(unicode));
    } else if (unicode < 0x800) {
        to.push_back(static_cast<char>(0xC0 | unicode >> 6));
        to.push_back(static_cast<char>(0x80 | (unicode & 0x3F)));
    } else {
        to.push_back(static_cast<char>(0xE0 | unicode >> 12));
        to.push_back(static_cast<char>(0x80 | (unicode >> 6 & 0x3F)));
        to.push_back(static_cast<char>(0x80 | (unicode & 0x3F)));
    }
}

constexpr char upper_of(unsigned char code) {
    const bool ascii = code >= 'a' && code <= 'z';
    const bool latin = code >= 0xE0 && code <= 0xFE && code != 0xF7;
    if (ascii || latin) return static_cast<char>(code - 0x20);
    switch (code) {
        case 0x9A:
            return static_cast<char>(0x8A);
        case 0x9C:
            return static_cast<char>(0x8C);
        case 0x9E:
            return static_cast<char>(0x8E);
        case 0xFF:
            return static_cast<char>(0x9F);
        default:
            return static_cast<char>(code);
    }
}

constexpr auto upper_table = [] {
    std::array<char, 256> table{};
    for (unsigned code = 0; code < 256; ++code) {
        table[code] = upper_of(static_cast<unsigned char>(code));
    }
    return table;
}();

constexpr int first_letter = 2000;
constexpr int letter_step = 16;

/// Place in the alphabet: signs in the order of their codes, then digits, then letters; behind a
/// base letter is room for its accented forms.
constexpr auto alphabet = [] {
    std::array<unsigned short, 256> places{};
    for (unsigned code = 0; code < 256; ++code) places[code] = static_cast<unsigned short>(code);
    for (unsigned digit = 0; digit < 10; ++digit) {
        places['0' + digit] = static_cast<unsigned short>(1000 + digit);
    }
    for (unsigned letter = 0; letter < 26; ++letter) {
        places['A' + letter] = static_cast<unsigned short>(first_letter + letter * letter_step);
    }
    const auto beside = [&](char base, std::string_view accented) {
        unsigned short place = places[static_cast<unsigned char>(base)];
        for (const char letter : accented) places[static_cast<unsigned char>(letter)] = ++place;
    };
    beside('A', "\xC0\xC1\xC2\xC3\xC4\xC5\xC6");
    beside('C', "\xC7");
    beside('D', "\xD0");
    beside('E', "\xC8\xC9\xCA\xCB");
    beside('I', "\xCC\xCD\xCE\xCF");
    beside('N', "\xD1");
    beside('O', "\xD2\xD3\xD4\xD5\xD6\xD8\x8C");
    beside('S', "\x8A\xDF");
    beside('T', "\xDE");
    beside('U', "\xD9\xDA\xDB\xDC");
    beside('Y', "\xDD\x9F");
    beside('Z', "\x8E");
    for (unsigned code = 0; code < 256; ++code) {
        const auto capital = static_cast<unsigned char>(upper_of(static_cast<unsigned char>(code)));
        places[code] = places[capital];
    }
    return places;
}();

/// Place of a character without its accent.
int base_letter(unsigned char character) {
    const int place = alphabet[character];
    return place < first_letter ? place : place - (place - first_letter) % letter_step;
}

/// Each character as searches compare it; 0 for those that don't show.
constexpr auto searchable_table = [] {
    std::array<char, 256> table = upper_table;
    for (unsigned code = 0; code < 256; ++code) {
        const int letter = alphabet[code] - first_letter;
        if (letter >= 0) table[code] = static_cast<char>('A' + letter / letter_step);
        if (code < 32 || code == 127) table[code] = 0;
    }
    return table;
}();

}  // namespace

std::string to_utf8(std::string_view text) {
    std::string utf8;
    utf8.reserve(text.size() + 8);
    for (const char character : text) {
        append_utf8(utf8, unicode_of(static_cast<unsigned char>(character)));
    }
    return utf8;
}

std::string from_utf8(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    for (std::size_t position = 0; position < utf8.size();) {
        text.push_back(code_of(next_character(utf8, position)));
    }
    return text;
}

char upper(char character) {
    return upper_table[static_cast<unsigned char>(character)];
}

std::string upper(std::string_view text) {
    std::string capitals(text);
    for (char& character : capitals) character = upper(character);
    return capitals;
}

void append_searchable(std::string& to, std::string_view text) {
    const std::size_t before = to.size();
    to.resize(before + text.size());
    char* at = to.data() + before;
    for (const char character : text) {
        *at = searchable_table[static_cast<unsigned char>(character)];
        at += *at != 0 ? 1 : 0;
    }
    to.resize(static_cast<std::size_t>(at - to.data()));
}

std::string searchable(std::string_view text) {
    std::string plain;
    append_searchable(plain, text);
    return plain;
}

std::string_view trimmed(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

std::string filtra_stampa(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code >= 32 && code < 255) kept.push_back(character);
    }
    return kept;
}

int compare_alphabetically(std::string_view left, std::string_view right) {
    const std::size_t shared = std::min(left.size(), right.size());
    int accents = 0;
    for (std::size_t i = 0; i < shared; ++i) {
        const auto l = static_cast<unsigned char>(left[i]);
        const auto r = static_cast<unsigned char>(right[i]);
        if (const int difference = base_letter(l) - base_letter(r)) return difference;
        if (accents == 0) accents = alphabet[l] - alphabet[r];
    }
    if (left.size() == right.size()) return accents;
    return left.size() < right.size() ? -1 : 1;
}

}  // namespace vantora
