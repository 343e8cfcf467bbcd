#pragma once

#include "store/fields.h"

namespace vantora {

/// Which file a record of the counters counts.
namespace contatori {
inline constexpr int clienti = 1;
inline constexpr int articoli = 3;
inline constexpr int magazzino = 11;
inline constexpr int documenti_trasporto = 12;
inline constexpr int ordini = 14;
inline constexpr int preventivi = 17;
}  // namespace contatori

/// Counters, "vantora.tot". Each record counts one other file; see `contatori` for which.
/// Read afresh just before use: other programs move them.
struct rec_tot {
    i16le quanti;         ///< records (orders and quotes: blocks) in use; the last used number
    i16le modificato;     ///< 1 after a warehouse batch
    i16le riservato_a;    ///< 0 after a compaction of the orders
    i16le ultimo_numero;  ///< last document number handed out
    f32le progressivo;    ///< running number of the transport snapshots
};

}  // namespace vantora
