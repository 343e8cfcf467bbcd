#pragma once

#include "store/record_fields.h"

namespace vantora::demo {

/// A record whose texts are blank and whose numbers are 0.
template <class Record>
Record blank_record() {
    Record blank;
    visit_fields(blank, [&](const auto& field, const auto& value) {
        if constexpr (requires { value.trimmed(); }) blank.*field.member = "";
    });
    return blank;
}

}  // namespace vantora::demo
