#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "documents/print_file.h"

namespace vantora {

/// A whole print file, page by page.
struct documento_di_stampa {
    bool orizzontale = false;
    std::vector<std::vector<record_di_stampa>> pagine;  ///< without the records that end them
};

/// Why a text is no print file: what is wrong, and in which line (from 1).
struct errore_di_stampa {
    std::string what;
    std::size_t line = 0;
};

/// Reads the content of a print file. Numbers may have a point or a comma for their decimals.
/// A file that breaks the grammar anywhere gives its first error and no page.
std::variant<documento_di_stampa, errore_di_stampa> leggi_file_di_stampa(std::string_view content);

}  // namespace vantora
