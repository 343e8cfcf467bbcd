#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "store/archives.h"

namespace vantora {

/// A transport document that goods of an order may have left with, and its movements.
struct consegna {
    std::int16_t documento = 0;  ///< record of "vantora.bol"; 0: movements without a document
    rec_bol testata;
    std::vector<rec_mag> movimenti;
};

/// What became of an order. No record says which order a movement was for: those count that its
/// customer had of its articles since it was first saved, each with the document that was made in
/// the same confirmation.
struct storia_ordine {
    std::vector<rec_orc> righe;  ///< all 200 of its block
    std::vector<consegna> consegne;
};

/// One read of the block, and one pass over movements and documents. Empty if the block can't be
/// read.
std::optional<storia_ordine> read_story(const archivi& files, std::int16_t registrazione);

}  // namespace vantora
