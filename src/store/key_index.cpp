#include "store/key_index.h"

#include <algorithm>
#include <string>

#include "store/record_runs.h"

namespace vantora {

namespace {

enum class matching { by_prefix, whole };

template <class Entry>
std::int16_t bisect(const channel<Entry>& index, std::int16_t count, std::string_view typed,
                    matching how) {
    const std::string text = upper(trimmed(typed));
    int basso = 1;
    int alto = count + 1;
    int precedente = 0;
    Entry entry;
    for (bool fine = false; !fine;) {
        // The integer part, also where the count is negative.
        const int distance = alto - basso;
        const int medio = basso + (distance >= 0 ? distance / 2 : -((1 - distance) / 2));
        // The entry met twice is still read and compared once more.
        if (medio == precedente) fine = true;
        index.read(medio, entry);
        precedente = medio;
        const std::string key = how == matching::by_prefix
                                    ? upper(entry.chiave.full().substr(0, text.size()))
                                    : upper(entry.chiave.trimmed());
        // A damaged count leads to positions that no entry has.
        if (key == text) return static_cast<std::int16_t>(std::max(medio, 0));
        if (key > text) {
            alto = medio;
        } else {
            basso = medio;
        }
    }
    return 0;
}

}  // namespace

std::int16_t find_customer(const channel<rec_src>& index, std::int16_t count,
                           std::string_view text) {
    return bisect(index, count, text, matching::by_prefix);
}

std::int16_t look_up_bar_code(const channel<rec_srb>& index, std::int16_t count,
                              std::string_view text) {
    return bisect(index, count, text, matching::whole);
}

template <class Entry>
void walk_index(const channel<Entry>& index, std::int16_t count,
                const std::function<bool(std::int16_t, const Entry&)>& visit) {
    constexpr int at_once = 512;
    auto entries = all_records_ahead(index, count, at_once);
    Entry entry;
    for (int position = 1; position <= count; ++position) {
        entries.next(entry);
        if (!visit(static_cast<std::int16_t>(position), entry)) return;
    }
}

template void walk_index(const channel<rec_src>&, std::int16_t,
                         const std::function<bool(std::int16_t, const rec_src&)>&);
template void walk_index(const channel<rec_sra>&, std::int16_t,
                         const std::function<bool(std::int16_t, const rec_sra&)>&);

}  // namespace vantora
