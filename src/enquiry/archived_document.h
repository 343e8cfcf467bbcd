#pragma once

#include <string>

#include "documents/printed_document.h"

namespace vantora {

/// An order or a transport document as the archive has it, with what its page needs.
struct documento_archiviato {
    tipo_documento tipo = tipo_documento::ordine;
    testata_documento testata;
    righe_ordine righe;
    riepilogo_iva iva;
    rec_cli cliente;
    std::string perche;  ///< why it can't be printed; empty if it can
};

/// An order from its block: what a save of it prints.
documento_archiviato archived_order(const program& app, std::int16_t registrazione);

/// The transport document of record `number` of "vantora.bol", from its text file.
documento_archiviato archived_transport_document(const program& app, std::int16_t number);

/// False, with a message, if it can't be printed.
bool can_be_printed(ui::desk& desk, const documento_archiviato& document);

enum class uscita_ristampa { anteprima, stampa, pdf };

/// Puts the document out again by today's tables and layout. Nothing of the archive changes; the
/// print file holds it afterwards. The e-mail of a PDF is offered as when the document was made.
void reprint(program& app, documento_archiviato& document, uscita_ristampa where);

}  // namespace vantora
