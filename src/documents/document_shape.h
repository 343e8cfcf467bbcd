#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "documents/document_tables.h"

namespace vantora {

/// From where a field around the lines takes its text.
enum class fonte {
    vuoto,
    ditta,   ///< a line of the company's texts, by its number
    text2,   ///< a field of the customer, by its index
    text3,   ///< a field of the document's head, by its index
    combo1,  ///< the choice in a list of the head, by its index
    combo2,
    letterale,
    partita_iva,  ///< prefix and number in one
    pagina,
    testo_documenti,
    imponibile,     ///< of a rate in use, by its place in the summary
    aliquota,       ///< of a rate in use
    imposta,        ///< of a rate in use
    esente,         ///< of an exemption in use
    motivo_esente,  ///< of an exemption in use
    totale_imponibile,
    totale_iva,
    totale
};

struct campo_documento {
    fonte da = fonte::vuoto;
    std::size_t indice = 0;
    std::string_view testo{};  ///< of a literal
};

/// What a column of the lines shows.
enum class colonna_riga {
    codice,
    descrizione,
    quantita,
    um,
    prezzo,
    lordo,
    netto,
    sconti,
    aliquota
};

/// What a kind of document says, and where its parts stand in the rows of its layout.
struct forma_documento {
    std::span<const campo_documento> campi;  ///< around the lines: field n stands in row n, from 1
    int riga_alto;                           ///< row with the upper limit of the lines
    int riga_basso;                          ///< row with the lower limit
    int prima_colonna;                       ///< row of the first column of the lines
    std::span<const colonna_riga> colonne;
    /// A body too low for one line counts its pages by one line each; else it has a single page.
    bool pagine_di_una_riga;
};

const forma_documento& document_form(tipo_documento kind);

}  // namespace vantora
