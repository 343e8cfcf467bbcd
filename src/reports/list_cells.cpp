#include "reports/list_cells.h"

#include "store/text/number_text.h"

namespace vantora {

std::string etichetta_articolo::text() const {
    const std::string whole = std::string(codice.trimmed()).append(" ").append(descrizione.full());
    return std::string(trimmed(whole));
}

std::string etichetta_articolo::title() const {
    const std::string whole =
        std::string(codice.trimmed()).append(" ").append(descrizione.trimmed());
    return std::string(trimmed(whole));
}

std::string free_text(const text<40>& descrizione, const text<10>& descrizione2) {
    const std::string whole = std::string(descrizione.full()).append(descrizione2.full());
    return std::string(trimmed(whole));
}

std::string quantity_text(double quantity) {
    return quantity == 0 ? std::string() : masked(quantity, "########0.#0");
}

}  // namespace vantora
