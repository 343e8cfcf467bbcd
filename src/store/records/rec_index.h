#pragma once

#include <cstddef>

#include "store/fields.h"

namespace vantora {

/// An entry of a sorted index: a key and the number of the master record it stands for. Entries
/// lie without gaps, ascending by the key in capitals; read only.
template <std::size_t KeyWidth>
struct index_entry {
    text<KeyWidth> chiave;
    i16le numero;
};

using rec_src = index_entry<40>;  ///< customer name to rec_cli, "vantora.src"
using rec_sra = index_entry<15>;  ///< article code to rec_art, "vantora.sra"
using rec_srb = index_entry<13>;  ///< bar code to rec_art, "vantora.srb"

static_assert(sizeof(rec_src) == 42 && offsetof(rec_src, numero) == 40);
static_assert(sizeof(rec_sra) == 17 && offsetof(rec_sra, numero) == 15);
static_assert(sizeof(rec_srb) == 15 && offsetof(rec_srb, numero) == 13);

}  // namespace vantora
