#include "archive/check.h"

namespace vantora::archive {

namespace {

/// The keys of the records, from 1, in capitals; empty for a record that can't be read.
using record_keys = std::vector<std::optional<std::string>>;

constexpr const char* rebuild = "Have the suite's archive module build the index anew.";

/// What a record that isn't there or an entry that isn't there would lead to is told with its file.
template <class Entry>
void check_index(const channel<Entry>& index, const record_keys& keys, const char* records,
                 findings& into) {
    const int count = static_cast<int>(keys.size()) - 1;
    std::vector<bool> met(keys.size());
    std::string before;
    int entries = 0;
    const int unread = scan(index, count, [&](std::int64_t position, const Entry& entry) {
        const auto tell = [&](std::string what) {
            into.push_back({gravity::error, index.name() + ", entry " + std::to_string(position),
                            std::move(what), rebuild});
        };
        const auto record = [records](int number) {
            return std::string(records) + " " + std::to_string(number);
        };
        ++entries;
        const std::string key = upper(entry.chiave.trimmed());
        if (key < before) tell("it isn't in the order of its key");
        before = key;
        const std::int16_t number = entry.numero;
        if (number < 1 || number > count) {
            return tell("it points to " + record(number) + ", which there isn't");
        }
        const auto place = static_cast<std::size_t>(number);
        if (met[place]) tell(record(number) + " stands twice in the index");
        met[place] = true;
        if (keys[place] && key != *keys[place]) tell("its key isn't that of " + record(number));
    });
    tell_unread(index, unread, into);
    if (entries < count) return;
    for (std::size_t number = 1; number < keys.size(); ++number) {
        if (met[number] || !keys[number]) continue;
        into.push_back({gravity::error, index.name(),
                        std::string(records) + " " + std::to_string(number) + " isn't in the index",
                        rebuild});
    }
}

}  // namespace

void check_indexes(company_files& company, findings& into) {
    archivi& files = company.records();
    record_keys names(static_cast<std::size_t>(company.count(contatori::clienti)) + 1);
    const auto count_of = [](const record_keys& keys) { return static_cast<int>(keys.size()) - 1; };
    int unread = scan(files.cli, count_of(names), [&](std::int64_t number, const rec_cli& one) {
        names[static_cast<std::size_t>(number)] = upper(one.intestazione1.trimmed());
    });
    tell_unread(files.cli, unread, into);
    check_index(files.src, names, "customer", into);

    record_keys codes(static_cast<std::size_t>(company.count(contatori::articoli)) + 1);
    record_keys bar_codes(codes.size());
    unread = scan(files.art, count_of(codes), [&](std::int64_t number, const rec_art& one) {
        codes[static_cast<std::size_t>(number)] = upper(one.codice.trimmed());
        bar_codes[static_cast<std::size_t>(number)] = upper(one.codice_barre.trimmed());
    });
    tell_unread(files.art, unread, into);
    check_index(files.sra, codes, "article", into);
    check_index(files.srb, bar_codes, "article", into);
}

}  // namespace vantora::archive
