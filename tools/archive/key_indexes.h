#pragma once

#include <array>
#include <string>
#include <vector>

#include "archive/masters.h"

namespace vantora::archive {

/// One of the three sorted indexes as its file holds it.
struct key_index {
    struct entry {
        std::string key;  ///< all its bytes
        int record = 0;
        bool read = false;
    };

    const char* extension;
    bool of_customers;
    std::size_t width;  ///< of the key
    std::vector<entry> entries;
    int unread = 0;
    bool present = false;  ///< the file could be opened

    [[nodiscard]] std::string name() const { return std::string("vantora.") + extension; }
    /// How many records the counters say there are for it.
    [[nodiscard]] int counted(const masters& known) const {
        return of_customers ? known.customers() : known.articles();
    }
    /// The key's bytes in the record that an entry stands for; null if there is no such record.
    [[nodiscard]] std::optional<std::string_view> key_of(const masters& known, int record) const;
    [[nodiscard]] std::string record_named(const masters& known, int record) const;
};

/// Whether two keys are the same to the programs.
bool same_key(std::string_view one, std::string_view other);

/// Whether an entry with this key may not follow one with the other.
bool out_of_order(std::string_view before, std::string_view key);

/// Whether the key of a record was lost, and an entry still tells it.
bool is_lost_key(std::string_view of_record, std::string_view of_entry);

/// By customer name, article code, bar code.
std::array<key_index, 3> read_key_indexes(company_files& company);

/// Whether the index is whole for `count` records: each once, in order, under its own key.
bool fits(const key_index& index, const masters& known, int count);

}  // namespace vantora::archive
