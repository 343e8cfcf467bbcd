#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "documents/print_file.h"

namespace vantora {

/// A whole print file, page by page.
struct documento_di_stampa {
    bool orizzontale = false;
    std::vector<std::vector<record_di_stampa>> pagine;  ///< without the records that end them
};

/// Why a text is no print file.
enum class difetto_di_stampa {
    senza_marca,         ///< its first line is neither mark
    troncato,            ///< it ends inside a record
    tipo_sconosciuto,    ///< the first line of a record is no kind of record
    numero_illeggibile,  ///< a number is expected
    numero_fuori_campo,  ///< a number is larger than any that fits on paper
};

struct errore_di_stampa {
    difetto_di_stampa difetto = difetto_di_stampa::senza_marca;
    std::size_t riga = 0;  ///< line of the file, from 1
};

/// Reads the content of a print file. Numbers may have a point or a comma for their decimals; an
/// empty one is 0. A line ends as the file's first line does, so that another line end inside a
/// text of a report breaks no record. A file that breaks the grammar anywhere gives its first error
/// and no page.
std::variant<documento_di_stampa, errore_di_stampa> leggi_file_di_stampa(std::string_view content);

}  // namespace vantora
