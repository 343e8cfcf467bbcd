#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "documents/print_file.h"

namespace vantora {

/// What can be wrong with a print file.
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

/// A whole print file, page by page.
struct documento_di_stampa {
    bool orizzontale = false;
    std::vector<std::vector<record_di_stampa>> pagine;  ///< without the records that end them
    std::size_t anomalie = 0;                           ///< records with an odd value
    errore_di_stampa prima_anomalia;                    ///< where the first of them is
};

/// Reads the content of a print file. Numbers may have a point or a comma for their decimals; an
/// empty one is 0. A line ends as the file's first line does, so that another line end inside a
/// text of a report breaks no record. A text ends where those of a layout do. One odd value doesn't
/// lose a document: a number too large is brought into its range, a record with an unreadable one
/// or of no kind is passed over. Without its mark, cut off, or with more odd records than others it
/// is no print file: that gives the first error and no page.
std::variant<documento_di_stampa, errore_di_stampa> read_print_file(std::string_view content);

}  // namespace vantora
