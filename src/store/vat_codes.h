#pragma once

#include <cstdint>
#include <optional>

#include "store/records/rec_cli.h"

namespace vantora {

// VAT codes of lines: 1 to 12 name a rate, 13 to 24 an exemption; 0 is none yet. Damaged files
// hold any number.

inline constexpr int ultima_aliquota = 12;
inline constexpr int ultimo_codice_iva = 24;

constexpr bool is_vat_code(double code) {
    return code >= 1 && code <= ultimo_codice_iva;
}

/// The code of a customer that has one of its own: it goes before the article's and the company's.
inline std::optional<std::int16_t> own_vat_code(const rec_cli& customer) {
    const std::int16_t code = customer.iva_cliente;
    if (!is_vat_code(code)) return std::nullopt;
    return code;
}

}  // namespace vantora
