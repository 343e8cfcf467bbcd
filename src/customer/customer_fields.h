#pragma once

#include <array>
#include <string_view>

#include "orders/head_fields.h"
#include "store/records/rec_cli.h"

namespace vantora {

/// What the customer screens show of a record, as `campo_cliente`.
inline constexpr std::array<std::string_view (*)(const rec_cli&), campo_cliente::quanti>
    customer_fields = {
        // registered office and tax data
        +[](const rec_cli& c) { return c.intestazione1.trimmed(); },
        +[](const rec_cli& c) { return c.intestazione2.trimmed(); },
        +[](const rec_cli& c) { return c.indirizzo.trimmed(); },
        +[](const rec_cli& c) { return c.cap.trimmed(); },
        +[](const rec_cli& c) { return c.citta.trimmed(); },
        +[](const rec_cli& c) { return c.codice_fiscale.trimmed(); },
        +[](const rec_cli& c) { return c.prefisso_iva.trimmed(); },
        +[](const rec_cli& c) { return c.partita_iva.trimmed(); },
        // administrative office
        +[](const rec_cli& c) { return c.amm_intestazione1.trimmed(); },
        +[](const rec_cli& c) { return c.amm_intestazione2.trimmed(); },
        +[](const rec_cli& c) { return c.amm_indirizzo.trimmed(); },
        +[](const rec_cli& c) { return c.amm_cap.trimmed(); },
        +[](const rec_cli& c) { return c.amm_citta.trimmed(); },
        // reaching the customer, carrier, notes
        +[](const rec_cli& c) { return c.telefono1.trimmed(); },
        +[](const rec_cli& c) { return c.telefono2.trimmed(); },
        +[](const rec_cli& c) { return c.telefono3.trimmed(); },
        +[](const rec_cli& c) { return c.email.trimmed(); },
        +[](const rec_cli& c) { return c.vettore1.trimmed(); },
        +[](const rec_cli& c) { return c.vettore2.trimmed(); },
        +[](const rec_cli& c) { return c.vettore3.trimmed(); },
        +[](const rec_cli& c) { return c.note1.trimmed(); },
        +[](const rec_cli& c) { return c.note2.trimmed(); },
};

}  // namespace vantora
