#pragma once

#include "store/record_fields.h"

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

template <>
inline constexpr auto fields_of<rec_tot> = record_fields(
    field<&rec_tot::quanti>{0, "quanti", "count"},
    field<&rec_tot::modificato>{2, "modificato", "changed"}, field<&rec_tot::riservato_a>{4},
    field<&rec_tot::ultimo_numero>{6, "ultimo_numero", "last_number"},
    field<&rec_tot::progressivo>{8, "progressivo", "running_number"});

static_assert(field<&rec_tot::quanti>::name == "quanti");

}  // namespace vantora
