#pragma once

#include <span>

#include "store/records.h"

namespace vantora {

/// What the value of a field stands for, beyond being a text or a number.
enum class meaning {
    value,
    date,      ///< yyyymmdd
    day,       ///< date number
    customer,  ///< a record number in "vantora.cli"
    article,   ///< a record number in "vantora.art"
};

/// What the bytes of a field are.
enum class field_type { words, i16, f32, f64 };

/// One field of a record. Without names for its column it belongs to other programs, is always the
/// same, or is shown as a part of something else.
struct record_field {
    std::string_view name;  ///< as the struct spells it
    field_type type;
    std::size_t offset;
    std::size_t width;    ///< bytes of one value
    std::size_t values;   ///< 1; more for an array
    const char* column;   ///< as a shop says it
    const char* english;  ///< for programs
    meaning means;
    bool head;  ///< `of_head`
};

/// Marks the fields that every row of an order or quote repeats.
inline constexpr bool of_head = true;

/// The fields of a kind of record, in the order of the file.
using record_table = std::span<const record_field>;
record_table fields_of(const rec_art&);
record_table fields_of(const rec_bol&);
record_table fields_of(const rec_cli&);
record_table fields_of(const rec_gnr&);
record_table fields_of(const rec_mag&);
record_table fields_of(const rec_orc&);
record_table fields_of(const rec_prv&);
record_table fields_of(const rec_prx&);
record_table fields_of(const rec_tot&);

/// A record of any kind, to be gone through field by field while it lives.
struct any_record {
    template <class Record>
    any_record(const Record& one)
        : fields(fields_of(one)), bytes(reinterpret_cast<const char*>(&one)) {}

    /// The value of a text field as it stands; `which` of an array.
    [[nodiscard]] std::string_view text(const record_field& field, std::size_t which = 0) const {
        return {bytes + field.offset + which * field.width, field.width};
    }
    /// The value of a field that is no text.
    [[nodiscard]] double number(const record_field& field, std::size_t which = 0) const;

    record_table fields;
    const char* bytes;
};

}  // namespace vantora
