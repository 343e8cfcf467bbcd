#pragma once

#include <fstream>

#include "archive/export_tables.h"
#include "backup/staging.h"

namespace vantora::archive {

/// Writes each table into a file of its own in a folder, which appears, or replaces an earlier one,
/// when all of it is written. For a spreadsheet on an Italian machine: UTF-8 with its mark,
/// semicolons, comma decimals, dd/mm/yyyy, texts as `kept_as_text`; `plain` for programs: no mark,
/// commas, decimal points, yyyy-mm-dd, texts as they are.
class csv_folder final : public table_sink {
 public:
    csv_folder(std::filesystem::path folder, bool plain);

    /// Why this folder can't be replaced; empty if it can, or isn't there.
    [[nodiscard]] static std::string obstacle(const std::filesystem::path& folder);

    void begin(const exported_table& table) override;
    void row(std::span<const cell_value> values) override;
    void end() override;
    bool finish() override;

 private:
    void put(const cell_value& value, content of);
    void hand_over();

    std::filesystem::path place_;
    staging made_;
    bool plain_;
    char separator_;
    std::vector<table_column> columns_;
    std::ofstream out_;
    std::string pending_;
    bool good_;
};

}  // namespace vantora::archive
