#pragma once

#include <filesystem>
#include <fstream>

#include "archive/export_tables.h"

namespace vantora::archive {

/// Writes each table into a file of its own in a folder. For a spreadsheet on an Italian machine:
/// UTF-8 with its mark, semicolons, comma decimals, dd/mm/yyyy; `plain` for programs: no mark,
/// commas, decimal points, yyyy-mm-dd.
class csv_folder final : public table_sink {
 public:
    /// Makes the folder if it isn't there.
    csv_folder(std::filesystem::path folder, bool plain);

    void begin(const exported_table& table) override;
    void row(std::span<const cell_value> values) override;
    void end() override;

    /// True if everything was written.
    [[nodiscard]] bool good() const { return good_; }

 private:
    void put_text(std::string_view text);
    void hand_over();

    std::filesystem::path folder_;
    bool plain_;
    char separator_;
    std::vector<table_column> columns_;
    std::ofstream out_;
    std::string pending_;
    bool good_ = true;
};

}  // namespace vantora::archive
