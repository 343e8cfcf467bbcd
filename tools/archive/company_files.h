#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "store/archives.h"
#include "store/drive.h"
#include "store/record_runs.h"

namespace vantora::archive {

/// The files of one company, open for reading only: what the tool does beside the suite at work
/// changes nothing.
class company_files {
 public:
    /// `root`: folder that holds the suite's tree.
    company_files(const std::filesystem::path& root, int numero_azienda);
    /// Through a port that outlives it and creates nothing.
    company_files(file_port& port, int numero_azienda);

    [[nodiscard]] bool folder_exists() const;
    [[nodiscard]] int numero_azienda() const { return numero_; }
    [[nodiscard]] file_port& files() { return port_; }
    [[nodiscard]] archivi& records() { return records_; }

    [[nodiscard]] std::filesystem::path folder() const;
    /// Where a file of the company lies, by its extension.
    [[nodiscard]] std::filesystem::path path_of(std::string_view extension) const;
    /// Its length in bytes; empty if no plain file is there.
    [[nodiscard]] std::optional<std::int64_t> length_of(std::string_view extension) const;
    /// A counters record; zero bytes if it can't be read.
    [[nodiscard]] rec_tot counter(int record) const;
    /// How many records a counter says there are, never below 0.
    [[nodiscard]] std::int16_t count(int record) const;
    /// Who is writing just now, "anna su cassa2", or an empty text; nothing if nobody is.
    [[nodiscard]] std::optional<std::string> lock_holder() const;

 private:
    int numero_;
    std::unique_ptr<drive> own_;
    file_port& port_;
    archivi records_;
};

/// What a record of the counters counts, in words: "ordini".
const char* counted_by(int record);

/// The names of all that lies in a folder, as it tells them.
std::vector<std::string> names_in(const std::filesystem::path& folder);

/// Up to where a file is read that should have `count` records: what lies behind its end is no
/// finding of its own. A record that is cut off counts.
template <class Record>
int held_of(const channel<Record>& from, int count) {
    constexpr std::int64_t length = sizeof(Record);
    const auto bytes = from.shared_file() ? from.shared_file()->length() : std::nullopt;
    if (!bytes) return count;
    return static_cast<int>(std::min<std::int64_t>(count, (*bytes + length - 1) / length));
}

/// Hands records 1 to `count` over in order, read ahead in stretches of 128 KiB. What can't
/// be read is passed over; returns how many records that were.
template <class Record, class Visit>
int scan(const channel<Record>& from, int count, Visit visit) {
    constexpr int at_once = std::max(1, (1 << 17) / static_cast<int>(sizeof(Record)));
    count = held_of(from, count);
    auto ahead = all_records_ahead(from, count, at_once);
    Record one;
    int unread = 0;
    for (int number = 1; number <= count; ++number) {
        if (ahead.next(one)) {
            visit(number, std::as_const(one));
        } else {
            ++unread;
        }
    }
    return unread;
}

/// The same with the 200 rows of a block at a time: visit(registrazione, rows). A block is read as
/// a whole or passed over; returns how many were. `look` sees each before, in whatever order, while
/// others are visited.
template <class Row, class Visit>
int scan_blocks(const channel<Row>& from, int blocks, Visit visit,
                typename records_ahead<Row>::first_look look = {}) {
    constexpr int rows = righe_blocco;
    blocks = (held_of(from, blocks * rows) + rows - 1) / rows;
    auto ahead = all_records_ahead(from, blocks * rows, rows, std::move(look));
    int unread = 0;
    for (int block = 1; block <= blocks; ++block) {
        if (const auto its = ahead.next_run()) {
            visit(block, *its);
        } else {
            ++unread;
        }
    }
    return unread;
}

}  // namespace vantora::archive
