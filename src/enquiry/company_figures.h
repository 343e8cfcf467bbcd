#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "store/archives.h"
#include "store/money.h"
#include "text/dates.h"

namespace vantora {

struct barra {
    std::string etichetta;
    double valore = 0;                         ///< amounts, or quantities of the articles short
    std::vector<std::int16_t> ordini = {};     ///< behind it, the newest first
    std::vector<std::int16_t> movimenti = {};  ///< behind what was delivered, the newest first
};

/// What an owner wants to see on a Monday morning.
struct quadro_azienda {
    std::vector<barra> da_evadere;  ///< value open by the week it is due in, the late ones first
    std::vector<barra> aperto;      ///< value open by the month it was ordered in, the last twelve
    std::vector<barra> consegnato;  ///< value that left the warehouse by month
    std::vector<barra> clienti;     ///< the ten with most value ordered
    std::vector<barra> articoli;    ///< likewise
    std::vector<barra> mancanti;    ///< articles with less stock than is still to be delivered
};

/// What left the warehouse with a movement, at its price.
double movement_value(const rec_mag& movement);

/// Counts all orders in one pass over their blocks, and the movements and articles in one each.
/// `goes_on(passed, of)` is asked behind each order; false ends it with what is counted so far.
quadro_azienda count_company(const archivi& files, const valuta& currency, const date& today,
                             const std::function<bool(int, int)>& goes_on);

}  // namespace vantora
