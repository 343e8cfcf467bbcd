#pragma once

#include <algorithm>

#include "store/record_fields.h"

namespace vantora::demo {

/// A record whose texts are blank and whose numbers are 0.
template <class Record>
Record blank_record() {
    Record blank;
    auto* bytes = reinterpret_cast<char*>(&blank);
    for (const record_field& field : fields_of(blank)) {
        if (field.type != field_type::words) continue;
        std::fill_n(bytes + field.offset, field.width * field.values, ' ');
    }
    return blank;
}

}  // namespace vantora::demo
