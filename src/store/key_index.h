#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string_view>

#include "store/channel.h"
#include "store/records/rec_index.h"

namespace vantora {

// Bisection straight on the index files: about log2(count) + 1 reads, nothing cached. Of several
// entries that match, the result is the one that the bisection meets first. `count` is the number
// of entries in use, from the counters file; text compares by the characters' codes.

/// Position (from 1) of an entry whose key begins with the text, in capitals and without the
/// blanks around it; 0 if none. An empty text finds the middle of the index.
std::int16_t find_customer(const channel<rec_src>& index, std::int16_t count,
                           std::string_view text);

/// Position (from 1) of an entry whose whole key is the text; 0 if none.
std::int16_t look_up_bar_code(const channel<rec_srb>& index, std::int16_t count,
                              std::string_view text);

/// Walks entries 1 to `count` in the order of the index, reading many at a time, as long as
/// `visit(position, entry)` answers true. An entry that can't be read repeats the one before it.
template <class Entry>
void walk_index(const channel<Entry>& index, std::int16_t count,
                const std::function<bool(std::int16_t, const Entry&)>& visit);

extern template void walk_index(const channel<rec_src>&, std::int16_t,
                                const std::function<bool(std::int16_t, const rec_src&)>&);
extern template void walk_index(const channel<rec_sra>&, std::int16_t,
                                const std::function<bool(std::int16_t, const rec_sra&)>&);

}  // namespace vantora
