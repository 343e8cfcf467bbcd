#include "demo/indexes.h"

#include <algorithm>
#include <string>
#include <utility>

#include "text/code_page.h"

namespace vantora::demo {

namespace {

template <class Entry, class Master, class Key>
std::vector<Entry> index_by(const std::vector<Master>& masters, Key key) {
    std::vector<std::pair<std::string, Entry>> ranked;
    ranked.reserve(masters.size());
    for (const Master& one : masters) {
        Entry entry;
        entry.chiave = key(one);
        entry.numero = static_cast<std::int16_t>(ranked.size() + 1);
        ranked.emplace_back(upper(entry.chiave.full()), entry);
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<std::string, Entry>::first);
    std::vector<Entry> index;
    index.reserve(ranked.size());
    for (const auto& [rank, entry] : ranked) index.push_back(entry);
    return index;
}

}  // namespace

std::vector<rec_src> index_by_name(const std::vector<rec_cli>& customers) {
    return index_by<rec_src>(customers,
                             [](const rec_cli& one) { return one.intestazione1.full(); });
}

std::vector<rec_sra> index_by_code(const std::vector<article>& articles) {
    return index_by<rec_sra>(articles, [](const article& one) { return one.record.codice.full(); });
}

std::vector<rec_srb> index_by_bar_code(const std::vector<article>& articles) {
    return index_by<rec_srb>(articles,
                             [](const article& one) { return one.record.codice_barre.full(); });
}

}  // namespace vantora::demo
