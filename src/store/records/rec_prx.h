#pragma once

#include "store/record_fields.h"

namespace vantora {

/// The long text of the article with the same record number, "vantora.prx"; read only.
struct rec_prx {
    static constexpr std::int16_t ha_testo = 123;

    text<50> righe[10];
    i16le marca_testo;  ///< `ha_testo`: the record holds a text; anything else: it has none
};

template <>
inline constexpr auto fields_of<rec_prx> = record_fields(field<&rec_prx::righe>{0},
                                                         field<&rec_prx::marca_testo>{500});

}  // namespace vantora
