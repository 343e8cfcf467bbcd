#pragma once

#include <cstdint>
#include <optional>

#include "store/records/rec_cli.h"
#include "store/vat_codes.h"

namespace vantora {

/// The code of a customer that has one of its own: it goes before the article's and the company's.
inline std::optional<std::int16_t> own_vat_code(const rec_cli& customer) {
    const std::int16_t code = customer.iva_cliente;
    if (!is_vat_code(code)) return std::nullopt;
    return code;
}

}  // namespace vantora
