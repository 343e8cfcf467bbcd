#include <algorithm>

#include "archive/repair.h"
#include "archive/survey.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

using entries = std::vector<key_index::entry>;

struct rebuilt_index {
    entries now;
    int moved = 0;                     ///< entries that stand otherwise
    std::vector<std::string> renamed;  ///< "«Rossi» diventa «Bianchi»"
    std::string refusal;
};

/// A record's entry keeps its bytes if its key is still the record's.
std::string key_for(const key_index& index, std::string_view key,
                    const std::vector<const key_index::entry*>& by_record, int record) {
    const auto* old = by_record[static_cast<std::size_t>(record)];
    std::string bytes(key.substr(0, index.width));
    return old && same_key(old->key, key) ? old->key : bytes;
}

rebuilt_index rebuild(const key_index& index, const masters& known) {
    const int count = index.counted(known);
    rebuilt_index made;
    std::vector<const key_index::entry*> by_record(static_cast<std::size_t>(count) + 1);
    for (const key_index::entry& one : index.entries) {
        const bool of_a_record = one.read && one.record >= 1 && one.record <= count;
        if (of_a_record) by_record[static_cast<std::size_t>(one.record)] = &one;
    }
    for (int record = 1; record <= count; ++record) {
        const auto key = index.key_of(known, record);
        if (!key) {
            made.refusal = "non tutte le registrazioni si possono leggere";
            return made;
        }
        const auto* old = by_record[static_cast<std::size_t>(record)];
        if (old && is_lost_key(*key, old->key)) {
            made.refusal = index.record_named(known, record) +
                           " ha perso il nome o il codice, che l'indice ha ancora («" +
                           words_of(old->key) + "»): prima correggere l'anagrafica";
            return made;
        }
        if (old && !same_key(old->key, *key)) {
            made.renamed.push_back("«" + words_of(old->key) + "» diventa «" + words_of(*key) + "»");
        }
        made.now.push_back({key_for(index, *key, by_record, record), record, true});
    }
    std::ranges::stable_sort(made.now, {}, [](const auto& one) { return upper(one.key); });
    for (std::size_t i = 0; i < made.now.size(); ++i) {
        const bool same = i < index.entries.size() && index.entries[i].key == made.now[i].key &&
                          index.entries[i].record == made.now[i].record;
        made.moved += same ? 0 : 1;
    }
    return made;
}

std::string bytes_of(const entries& all) {
    std::string bytes;
    for (const key_index::entry& one : all) {
        bytes += one.key;
        const i16le number = static_cast<std::int16_t>(one.record);
        bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
    return bytes;
}

std::string words_for(const key_index& index, const rebuilt_index& made) {
    return index.name() + ": rifatto con " + std::to_string(made.now.size()) + " voci, " +
           std::to_string(made.moved) + " diverse da prima" + first_lines(made.renamed, "");
}

}  // namespace

repair_plan plan_indexes(company_files& company) {
    const survey found = survey_company(company);
    repair_plan plan;
    plan.nothing = "Gli indici sono in ordine.";
    for (const key_index& index : found.indexes) {
        const std::string& doubt =
            index.of_customers ? found.doubt.customers : found.doubt.articles;
        if (!doubt.empty()) plan.refusal = doubt;
        if (!plan.refusal.empty()) return plan;
        if (fits(index, found.known, index.counted(found.known))) continue;
        const rebuilt_index made = rebuild(index, found.known);
        plan.refusal = made.refusal;
        plan.certain = plan.certain && made.renamed.empty();
        plan.steps.push_back(
            {words_for(index, made), index.extension,
             [extension = index.extension, bytes = bytes_of(made.now)](const repair_tools& tools) {
                 const bool put =
                     put_whole(tools.files, company_path(tools.numero_azienda, extension),
                               std::as_bytes(std::span(bytes)));
                 return tools.change.note_write(put, std::string("vantora.") + extension);
             }});
    }
    return plan;
}

}  // namespace vantora::archive
