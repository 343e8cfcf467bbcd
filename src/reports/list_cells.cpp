#include "reports/list_cells.h"

namespace vantora {

namespace {

std::string label(const text<15>& codice, std::string_view descrizione) {
    std::string whole;
    whole.reserve(codice.width + 1 + descrizione.size());
    whole.append(codice.trimmed()).append(" ").append(descrizione);
    whole.erase(whole.find_last_not_of(' ') + 1);
    whole.erase(0, whole.find_first_not_of(' '));
    return whole;
}

}  // namespace

std::string etichetta_articolo::text() const {
    return label(codice, descrizione.full());
}

std::string etichetta_articolo::title() const {
    return label(codice, descrizione.trimmed());
}

}  // namespace vantora
