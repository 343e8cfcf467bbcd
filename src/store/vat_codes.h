#pragma once

namespace vantora {

// VAT codes of lines: 1 to 12 name a rate, 13 to 24 an exemption; 0 is none yet. Damaged files
// hold any number.

inline constexpr int ultima_aliquota = 12;
inline constexpr int ultimo_codice_iva = 24;

constexpr bool is_vat_code(double code) {
    return code >= 1 && code <= ultimo_codice_iva;
}

}  // namespace vantora
