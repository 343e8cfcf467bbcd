#pragma once

#include <string>
#include <string_view>

namespace vantora::demo {

/// Italian VAT number: ten digits and their check digit. REQUIRES: ten digits.
std::string partita_iva(std::string_view ten_digits);

/// Tax code of a person: fifteen characters and their check letter. REQUIRES: fifteen capitals or
/// digits.
std::string codice_fiscale(std::string_view fifteen);

/// The three letters that stand for a name in a tax code: consonants, then vowels, then X.
std::string three_letters(std::string_view name);

/// EAN-13 bar code: twelve digits and their check digit. REQUIRES: twelve digits.
std::string ean_code(std::string_view twelve_digits);

/// A number with zeros in front. A longer number loses its first digits.
std::string zero_padded(long long number, std::size_t width);

}  // namespace vantora::demo
