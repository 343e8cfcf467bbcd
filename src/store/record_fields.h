#pragma once

#include <cstddef>
#include <string_view>

#include "store/fields.h"

namespace vantora {

// The fields of each record stand once, in a table beside its struct: where each lies, which the
// compiler checks, and what its column is called when the archive is written out.

/// The name of a member as the struct spells it.
template <auto Member>
consteval std::string_view name_of_member() {
    // "... [with auto Member = &vantora::rec_tot::quanti; ...]"
    std::string_view told = __PRETTY_FUNCTION__;
    told.remove_prefix(told.find("Member = "));
    told = told.substr(0, told.find_first_of(";]"));
    return told.substr(told.rfind(':') + 1);
}

/// What the value of a field stands for, beyond being a text or a number.
enum class meaning {
    value,
    date,      ///< yyyymmdd
    day,       ///< date number
    customer,  ///< a record number in "vantora.cli"
    article,   ///< a record number in "vantora.art"
};

/// Marks the fields that every row of an order or quote repeats.
inline constexpr bool of_head = true;

/// One field. Without names for its column it belongs to other programs, is always the same, or is
/// shown as a part of something else.
template <auto Member>
struct field;
template <class Record, class Value, Value Record::*Member>
struct field<Member> {
    using record = Record;
    using value_type = Value;
    static constexpr auto member = Member;
    static constexpr std::string_view name = name_of_member<Member>();

    std::size_t offset;
    const char* column = nullptr;   ///< as a shop says it
    const char* english = nullptr;  ///< for programs
    meaning means = meaning::value;
    bool head = false;
};

template <class... Fields>
struct field_table : Fields... {
    /// visit(field, value) for each field of a record, in the order of the file.
    template <class Record, class Visit>
    constexpr void visit(const Record& one, Visit& each) const {
        (each(static_cast<const Fields&>(*this), one.*Fields::member), ...);
    }
};

/// The table of a record. Doesn't compile unless the fields are all of the struct's, in its order,
/// each at its place in the file.
template <class First, class... Rest>
consteval field_table<First, Rest...> record_fields(First first, Rest... rest) {
    using record = typename First::record;
    const record probe{};
    [[maybe_unused]] const void* before = nullptr;
    std::size_t end = 0;
    const auto check = [&](auto one) {
        const void* here = &(probe.*one.member);
#ifndef __clang__  // compares no addresses at compile time; its findings are read, not its code
        if (before && here <= before) throw "not in the order of the struct";
#endif
        if (one.offset != end) throw "not where the file has it";
        before = here;
        end += sizeof(typename decltype(one)::value_type);
    };
    check(first);
    (check(rest), ...);
    if (end != sizeof(record) || alignof(record) != 1) throw "not all of the struct";
    return {first, rest...};
}

/// Specialised beside each struct.
template <class Record>
inline constexpr int fields_of = 0;

template <class Record, class Visit>
constexpr void visit_fields(const Record& one, Visit&& each) {
    fields_of<Record>.visit(one, each);
}

}  // namespace vantora
