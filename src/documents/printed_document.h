#pragma once

#include <array>
#include <optional>
#include <string>

#include "documents/document_tables.h"
#include "orders/head_fields.h"
#include "orders/order_lines.h"
#include "program/program.h"
#include "store/money.h"
#include "ui/controls.h"

namespace vantora {

/// The head of a document, as the fields of the screen that holds it show it.
struct testata_documento {
    std::array<std::string, campo_cliente::quanti> text2;  ///< the customer
    std::array<std::string, campo_ordine::quanti>
        text3;                          ///< number, dates; references, or facts of the transport
    std::array<std::string, 3> combo1;  ///< carriage; payment terms or transport cause; carrier
    std::string combo2;                 ///< aspect of the goods, of a transport document
};

/// A document as its screen has it, ready to be printed.
struct documento_da_stampare {
    tipo_documento tipo;
    const testata_documento& testata;
    righe_ordine& righe;       ///< their texts lose what may not go on a document
    const riepilogo_iva& iva;  ///< a transport document shows nothing of it
    const rec_cli& cliente;
    const valuta& importi;
    const tabelle_documento& tabelle;
    disegno& sfondo;
    ui::picture& figura;  ///< where the user sees a picture while it prints
};

/// How a print of a document ended.
enum class esito_stampa {
    rifiutata,   ///< the user didn't want it: nothing was done
    completa,    ///< on paper, and its print file holds all of it
    non_voluta,  ///< the user saw its pages and didn't want them on paper
    senza_file,  ///< on paper, but there is no print file that a PDF could be made from
};

/// Puts the document on paper and into the print file, page by page, by the company's layout. It is
/// out even if it had no page; a printer or a file that fails is passed over.
esito_stampa compose_document(program& app, const documento_da_stampare& document,
                              ui::printer& paper);

/// The same into the print file alone, which then holds what is returned; nothing if it isn't all
/// of the document.
std::optional<std::string> put_print_file(program& app, const documento_da_stampare& document);

/// Asks whether to begin; on yes puts the document on the printer and into the print file, page by
/// page, by the company's layout. It is out even if it had no page; a printer or a file that fails
/// is passed over.
esito_stampa stampa_documento(program& app, const documento_da_stampare& document);

/// Prints as many copies as the user wants, and offers a PDF of what came out. `invia`: the PDF is
/// to be sent to the customer by e-mail.
void offer_copies(program& app, const documento_da_stampare& document, bool invia);

}  // namespace vantora
