#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "entry/line_history.h"
#include "orders/head_fields.h"
#include "orders/order_seen.h"

namespace vantora {

/// An order that stands in its window and isn't saved, as it is kept aside for the person.
struct bozza {
    std::string archivio;        ///< folder of the company, as this system calls it
    std::string salvata;         ///< when it was kept aside, "2024-05-06 10:20:30"
    bool tenuta = false;         ///< the person has seen it since; else the program ended meanwhile
    bool nuova = true;           ///< a new order; else an opened one
    ordine_visto visto;          ///< the opened order as it stood then
    std::uint64_t impronta = 0;  ///< and the print of its rows
    std::int16_t cliente = 0;
    contenuto_testata testata;
    order_content contenuto;
};

/// A draft as a file of lines, in the code page.
std::string write_draft(const bozza& draft);

/// Empty if the text is no whole draft. Numbers are finite, texts have their fields' widths.
std::optional<bozza> read_draft(std::string_view text);

/// Differs for rows that differ.
std::uint64_t fingerprint_of(std::span<const rec_orc> rows);

}  // namespace vantora
