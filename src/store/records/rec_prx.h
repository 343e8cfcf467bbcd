#pragma once

#include "store/fields.h"

namespace vantora {

/// The long text of the article with the same record number, "vantora.prx"; read only.
struct rec_prx {
    static constexpr std::int16_t ha_testo = 123;

    text<50> righe[10];
    i16le marca_testo;  ///< `ha_testo`: the record holds a text; anything else: it has none
};

}  // namespace vantora
