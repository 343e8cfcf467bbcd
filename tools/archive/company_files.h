#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

#include "store/archives.h"
#include "store/drive.h"

namespace vantora::archive {

/// The files of one company, open for reading only: what the tool does beside the suite at work
/// changes nothing.
class company_files {
 public:
    /// `root`: folder that holds the suite's tree.
    company_files(const std::filesystem::path& root, int numero_azienda);

    [[nodiscard]] bool folder_exists() const;
    [[nodiscard]] int numero_azienda() const { return numero_; }
    [[nodiscard]] drive& files() { return drive_; }
    [[nodiscard]] archivi& records() { return records_; }

    /// Where a file of the company lies, by its extension.
    [[nodiscard]] std::filesystem::path path_of(std::string_view extension) const;
    /// Its length in bytes; empty if it isn't there.
    [[nodiscard]] std::optional<std::int64_t> length_of(std::string_view extension) const;
    /// A counters record; zero bytes if it can't be read.
    [[nodiscard]] rec_tot counter(int record) const;
    /// How many records a counter says there are, never below 0.
    [[nodiscard]] std::int16_t count(int record) const;

 private:
    int numero_;
    drive drive_;
    archivi records_;
};

/// Hands records 1 to `count` over in order, read in stretches of about a megabyte. A stretch that
/// can't be read as a whole is read record by record; what can't be read at all is passed over.
template <class Record, class Visit>
void scan(const channel<Record>& from, std::int64_t count, Visit visit) {
    constexpr std::int64_t at_once =
        std::max<std::int64_t>(1, (1 << 20) / static_cast<std::int64_t>(sizeof(Record)));
    std::vector<Record> stretch(static_cast<std::size_t>(at_once));
    for (std::int64_t first = 1; first <= count; first += at_once) {
        const std::int64_t size = std::min(at_once, count - first + 1);
        const std::span<Record> part(stretch.data(), static_cast<std::size_t>(size));
        const bool whole = from.read_block(first, part);
        for (std::int64_t i = 0; i < size; ++i) {
            Record& one = part[static_cast<std::size_t>(i)];
            if (whole || from.read(first + i, one)) visit(first + i, std::as_const(one));
        }
    }
}

/// The same with the 200 rows of a block at a time: visit(registrazione, rows).
template <class Row, class Visit>
void scan_blocks(const channel<Row>& from, int blocks, Visit visit) {
    constexpr int at_once = 16;
    constexpr auto rows = static_cast<std::size_t>(righe_blocco);
    std::vector<Row> stretch(rows * at_once);
    for (int first = 1; first <= blocks; first += at_once) {
        const int size = std::min(at_once, blocks - first + 1);
        const std::span<Row> part(stretch.data(), rows * static_cast<std::size_t>(size));
        const bool whole = from.read_block(block_record(first, 1), part);
        for (int i = 0; i < size; ++i) {
            const auto block = part.subspan(rows * static_cast<std::size_t>(i), rows);
            if (whole || from.read_block(block_record(first + i, 1), block)) {
                visit(first + i, std::span<const Row>(block));
            }
        }
    }
}

}  // namespace vantora::archive
