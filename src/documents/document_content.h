#pragma once

#include <string>
#include <vector>

#include "documents/document_shape.h"
#include "documents/printed_document.h"
#include "ui/printer.h"

namespace vantora {

/// A text of a document, and which of its ends stands at its position.
struct testo_posto {
    std::string testo;
    ui::alignment allineamento = ui::alignment::left;
};

/// The VAT codes that a document has in use, each with its place on it, and the sums over all of
/// them. There is room for three rates and three exemptions: a further rate is in the sums only, a
/// further exemption takes the last place.
struct riepilogo_stampato {
    explicit riepilogo_stampato(const riepilogo_iva& from);

    std::array<std::size_t, 3> rates{};  ///< 0: nothing in this place
    std::array<std::size_t, 3> exemptions{};
    double imponibile = 0;
    double iva = 0;
    double esente = 0;
};

/// What a document says, field by field and line by line.
class contenuto_documento {
 public:
    explicit contenuto_documento(const documento_da_stampare& document)
        : document_(document), summary_(document.iva) {}

    [[nodiscard]] testo_posto campo(const campo_documento& field, int page) const;
    /// The columns of a line. Its texts lose what may not go on a document.
    [[nodiscard]] std::vector<testo_posto> riga(int number,
                                                std::span<const colonna_riga> columns) const;

 private:
    [[nodiscard]] testo_posto vat_field(const campo_documento& field) const;
    [[nodiscard]] testo_posto amount(double value) const;

    const documento_da_stampare& document_;
    riepilogo_stampato summary_;
};

}  // namespace vantora
