#pragma once

#include <array>
#include <string>

#include "documents/document_tables.h"
#include "program/order_lines.h"
#include "program/program.h"
#include "store/values.h"
#include "ui/controls.h"

namespace vantora {

/// The head of an order, as the fields of the screen that holds it show it.
struct testata_ordine {
    std::array<std::string, 22> text2;  ///< the customer
    std::array<std::string, 6> text3;   ///< number, dates, references
    std::string pagamento;              ///< payment terms
};

/// An order as its screen has it, ready to be printed.
struct ordine_da_stampare {
    const testata_ordine& testata;
    righe_ordine& righe;  ///< their texts lose what may not go on a document
    const riepilogo_iva& iva;
    const rec_cli& cliente;
    const valuta& importi;
    const tabelle_documento& tabelle;
    disegno& sfondo;
    ui::picture& figura;  ///< where the user sees a picture while it prints
};

/// Asks whether to begin; on yes puts the order on the printer and into the print file, page by
/// page, by the company's layout. True when it is out, even if it had no page; a printer or a file
/// that fails is passed over.
bool stampa_ordine(program& app, const ordine_da_stampare& order);

}  // namespace vantora
