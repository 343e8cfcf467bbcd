#include "reports/list_cells.h"

#include "text/number_text.h"

namespace vantora {

namespace {

std::string label(const text<15>& codice, std::string_view descrizione) {
    const std::string whole = std::string(codice.trimmed()).append(" ").append(descrizione);
    return std::string(trimmed(whole));
}

}  // namespace

std::string etichetta_articolo::text() const {
    return label(codice, descrizione.full());
}

std::string etichetta_articolo::title() const {
    return label(codice, descrizione.trimmed());
}

}  // namespace vantora
