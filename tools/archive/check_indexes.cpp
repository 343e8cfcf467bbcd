#include "archive/check.h"

namespace vantora::archive {

namespace {

struct index_words {
    const char* file;     ///< "vantora.src"
    const char* records;  ///< "customer"
};

constexpr const char* rebuild = "Have the suite's archive module build the index anew.";

/// `key_of(number)`: the key of a record in capitals; asked for records 1 to `count` only.
template <class Entry, class KeyOf>
void check_index(const channel<Entry>& index, std::int16_t count, const index_words& words,
                 KeyOf key_of, findings& into) {
    std::vector<bool> met(static_cast<std::size_t>(count) + 1);
    std::string before;
    scan(index, count, [&](std::int64_t position, const Entry& entry) {
        const auto where = [&] {
            return std::string(words.file) + ", entry " + std::to_string(position);
        };
        const std::string key = upper(entry.chiave.trimmed());
        if (key < before) {
            into.push_back({gravity::error, where(), "it isn't in the order of its key", rebuild});
        }
        before = key;
        const std::int16_t number = entry.numero;
        if (number < 1 || number > count) {
            into.push_back({gravity::error, where(),
                            "it points to " + std::string(words.records) + " " +
                                std::to_string(number) + ", which there isn't",
                            rebuild});
            return;
        }
        if (met[static_cast<std::size_t>(number)]) {
            into.push_back({gravity::error, where(),
                            std::string(words.records) + " " + std::to_string(number) +
                                " stands twice in the index",
                            rebuild});
        }
        met[static_cast<std::size_t>(number)] = true;
        if (key != key_of(number)) {
            into.push_back({gravity::error, where(),
                            "its key isn't that of " + std::string(words.records) + " " +
                                std::to_string(number),
                            rebuild});
        }
    });
    for (int number = 1; number <= count; ++number) {
        if (met[static_cast<std::size_t>(number)]) continue;
        into.push_back(
            {gravity::error, words.file,
             std::string(words.records) + " " + std::to_string(number) + " isn't in the index",
             rebuild});
    }
}

template <class Record, class KeyOf>
std::vector<std::string> keys_of(const channel<Record>& records, std::int16_t count, KeyOf key_of) {
    std::vector<std::string> keys(static_cast<std::size_t>(count) + 1);
    scan(records, count, [&](std::int64_t number, const Record& one) {
        keys[static_cast<std::size_t>(number)] = upper(key_of(one));
    });
    return keys;
}

}  // namespace

void check_indexes(company_files& company, findings& into) {
    archivi& files = company.records();
    const auto look_up = [](const std::vector<std::string>& keys) {
        return [&keys](std::int16_t number) { return keys[static_cast<std::size_t>(number)]; };
    };
    const std::int16_t customers = company.count(contatori::clienti);
    const auto names = keys_of(files.cli, customers,
                               [](const rec_cli& one) { return one.intestazione1.trimmed(); });
    check_index(files.src, customers, {"vantora.src", "customer"}, look_up(names), into);

    const std::int16_t articles = company.count(contatori::articoli);
    std::vector<std::string> codes(static_cast<std::size_t>(articles) + 1);
    std::vector<std::string> bar_codes(codes.size());
    scan(files.art, articles, [&](std::int64_t number, const rec_art& one) {
        codes[static_cast<std::size_t>(number)] = upper(one.codice.trimmed());
        bar_codes[static_cast<std::size_t>(number)] = upper(one.codice_barre.trimmed());
    });
    check_index(files.sra, articles, {"vantora.sra", "article"}, look_up(codes), into);
    check_index(files.srb, articles, {"vantora.srb", "article"}, look_up(bar_codes), into);
}

}  // namespace vantora::archive
