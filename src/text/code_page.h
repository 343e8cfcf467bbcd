#pragma once

#include <string>
#include <string_view>

namespace vantora {

// Every text inside the program is in the code page of the files, Windows-1252: one byte a
// character. UTF-8 exists in source files and in front ends only; these are the doors between.

/// The UTF-8 form of a text in the code page. The five bytes that the code page leaves
/// undefined become the control characters of the same number, so every text survives the way
/// there and back.
std::string to_utf8(std::string_view text);

/// The code page form of a UTF-8 text. A character that the code page doesn't have, and a byte
/// that isn't UTF-8, becomes "?".
std::string from_utf8(std::string_view utf8);

/// Capital form of one character of the code page ("à" gives "À", "ÿ" gives "Ÿ"); a character
/// without one stays.
char upper(char character);

/// Capital form of a text, character by character; the length never changes.
std::string upper(std::string_view text);

/// A text as searches compare it: in capitals, without accents ("à" gives "A", "ß" gives "S") and
/// without what doesn't show.
std::string searchable(std::string_view text);
/// Appends it to another one.
void append_searchable(std::string& to, std::string_view text);

/// The text without blanks at both ends. Only blanks: zero bytes and tabs stay.
std::string_view trimmed(std::string_view text);

/// The text without control characters and without the character 255: what may go on a document.
std::string filtra_stampa(std::string_view text);

/// Order of two texts by the alphabet, without regard to case: signs, then digits, then letters,
/// an accented letter with its base letter, behind it where nothing else decides. Negative, zero or
/// positive.
int compare_alphabetically(std::string_view left, std::string_view right);

inline namespace literals {
/// A literal with accents: "Città"_cp is the text in the code page.
inline std::string operator""_cp(const char* utf8, std::size_t size) {
    return from_utf8(std::string_view(utf8, size));
}
}  // namespace literals

}  // namespace vantora
