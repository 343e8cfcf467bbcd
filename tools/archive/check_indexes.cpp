#include <algorithm>

#include "archive/check.h"

namespace vantora::archive {

namespace {

constexpr const char* rebuild = "Rifare l'indice con «repair indexes».";

void check_index(const key_index& index, const survey& found, findings& into) {
    const masters& known = found.known;
    const int count = index.counted(known);
    const int held = static_cast<int>(index.entries.size());
    std::vector<bool> met(static_cast<std::size_t>(count) + 1);
    if (held < count) {
        into.push_back(
            {gravity::error, "index-short", index.name(),
             "ha " + std::to_string(held) + " voci, e il contatore dice " + std::to_string(count),
             rebuild});
    }
    const key_index::entry* before = nullptr;
    for (int position = 1; position <= std::min(held, count); ++position) {
        const key_index::entry& one = index.entries[static_cast<std::size_t>(position) - 1];
        if (!one.read) continue;
        const auto tell = [&](const char* kind, std::string what, const char* advice = rebuild) {
            into.push_back({gravity::error, kind,
                            index.name() + ", voce " + std::to_string(position) + " «" +
                                words_of(one.key) + "»",
                            std::move(what), advice});
        };
        if (before && out_of_order(before->key, one.key)) {
            tell("index-order", "non è al suo posto nell'ordine alfabetico");
        }
        before = &one;
        if (one.record < 1 || one.record > count) {
            tell("index-nowhere",
                 "porta al numero " + std::to_string(one.record) + ", che non c'è");
            continue;
        }
        const auto place = static_cast<std::size_t>(one.record);
        if (met[place]) tell("index-twice", index.record_named(known, one.record) + " c'è già");
        met[place] = true;
        const auto key = index.key_of(known, one.record);
        // A lost key is told of the record itself.
        if (!key || same_key(*key, one.key) || is_lost_key(*key, one.key)) continue;
        tell("index-other-key", "in anagrafica è invece «" + words_of(*key) + "»",
             "Vedere quale dei due è giusto. Se è giusta l'anagrafica: «repair indexes». Se è "
             "giusto l'indice: correggere l'anagrafica.");
    }
    if (held < count || index.unread > 0) return;
    for (int number = 1; number <= count; ++number) {
        if (met[static_cast<std::size_t>(number)] || !index.key_of(known, number)) continue;
        into.push_back({gravity::error, "index-missing", index.name(),
                        index.record_named(known, number) + " manca nell'indice", rebuild});
    }
}

}  // namespace

void check_indexes(const survey& found, findings& into) {
    for (const key_index& index : found.indexes) {
        const std::string& doubt =
            index.of_customers ? found.doubt.customers : found.doubt.articles;
        if (!doubt.empty() || !index.present) continue;
        check_index(index, found, into);
    }
}

}  // namespace vantora::archive
