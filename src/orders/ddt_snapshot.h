#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "orders/head_fields.h"
#include "orders/order_lines.h"

namespace vantora {

/// What the text file of a transport document keeps of it.
struct istantanea_ddt {
    std::int16_t cliente = 0;
    std::array<std::string, campo_ddt::quanti>
        text3;         ///< number, date, parcels, weight, start: day and time
    int causale = -1;  ///< entries chosen in their lists, -1 for none
    int aspetto = -1;
    int porto = -1;
    int trasporto = -1;
    righe_ordine righe;
    /// Of the customer's fields those of the document; the others are empty.
    std::array<std::string, campo_cliente::quanti> text2;
};

/// The name of that file, in the company's folder: "b" and the document's running number.
std::string snapshot_name(float progressivo);

std::string write_snapshot(const istantanea_ddt& document);

/// Reads it; empty if it isn't a whole one.
std::optional<istantanea_ddt> read_snapshot(std::string content);

/// The parcels alone, from the beginning of the file; empty if they aren't there.
std::string parcels_text(std::string beginning);

}  // namespace vantora
