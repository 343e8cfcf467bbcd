#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "archive/check.h"
#include "demo_folder.h"
#include "store/suite_paths.h"

namespace vantora::test {

/// Small enough to be read byte by byte many times.
inline constexpr demo::demo_request tiny_company{
    .numero_azienda = 7, .orders = 20, .articles = 30, .customers = 20, .seed = 5};
inline constexpr int tiny_orders = tiny_company.orders;

/// Changes record `number` of a file as another program would.
template <class Record>
void change(const demo_folder& company, const char* extension, std::int64_t number,
            const std::function<void(Record&)>& by) {
    drive files(company.drive());
    channel<Record> records(files.open_records(company_path(7, extension)));
    Record record;
    records.read(number, record);
    by(record);
    records.write(number, record);
}

/// The damage that a wrong value does in one record.
template <class Record, class Field, class Value>
auto wrong(const char* extension, std::int64_t number, Field Record::*field, Value value) {
    return [=](const demo_folder& company) {
        change<Record>(company, extension, number, [&](Record& one) { one.*field = value; });
    };
}

constexpr std::size_t block_bytes = 200 * sizeof(rec_orc);

/// The bytes of the orders, block `from` also in place of block `to`, or behind the end.
inline void copy_block(const demo_folder& company, std::size_t from, std::size_t to) {
    std::string bytes = bytes_of(company.file("orc"));
    const std::string block = bytes.substr((from - 1) * block_bytes, block_bytes);
    if (bytes.size() < to * block_bytes) bytes.resize(to * block_bytes);
    bytes.replace((to - 1) * block_bytes, block_bytes, block);
    put(company.file("orc"), bytes);
}

/// The kinds of what is found, in order; but not that ordered quantities are no more judged. Each
/// finding says what to do, and one of a line whose it is.
inline std::string kinds_of(const demo_folder& folder) {
    archive::company_files company(folder.drive(), 7);
    const archive::findings all = archive::check_archive(company);
    std::string kinds;
    for (const auto& group : all.groups()) {
        const archive::finding& first = group.kept.front();
        EXPECT_FALSE(first.advice.empty() || first.where.empty()) << first.kind;
        EXPECT_TRUE(!first.kind.starts_with("line-") ||
                    (first.where.starts_with("ordine ") &&
                     first.where.find(" (registrazione ") != std::string::npos))
            << first.where;
        if (first.kind == "ordered-not-judged") continue;
        kinds += (kinds.empty() ? "" : " ") + first.kind;
    }
    return kinds;
}

/// The blocks of orders that are open, or fulfilled, with an article in their row 1.
inline std::vector<std::int64_t> blocks_that_are(const demo_folder& company, bool open) {
    std::vector<std::int64_t> blocks;
    const auto rows = records_of<rec_orc>(company.file("orc"));
    for (std::size_t i = 0; i < rows.size(); i += righe_blocco) {
        const rec_orc& row = rows[i];
        if (row.annullato != 1 && (row.evaso_flag != 1) == open && row.articolo >= 1) {
            blocks.push_back(static_cast<std::int64_t>(i) / righe_blocco + 1);
        }
    }
    return blocks;
}

}  // namespace vantora::test
