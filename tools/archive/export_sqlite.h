#pragma once

#include <sqlite3.h>

#include <filesystem>
#include <memory>

#include "archive/export_tables.h"
#include "backup/staging.h"

namespace vantora::archive {

/// Writes the tables into a new SQLite database, with keys, types, references and an index for
/// each reference. The file appears under its name when it is whole.
class sqlite_file final : public table_sink {
 public:
    explicit sqlite_file(std::filesystem::path place);

    /// Why this file can't be replaced; empty if it can, or isn't there.
    [[nodiscard]] static std::string obstacle(const std::filesystem::path& place);

    void begin(const exported_table& table) override;
    void row(std::span<const cell_value> values) override;
    void end() override;
    bool finish() override;

 private:
    void run(const std::string& statement);

    struct closer {
        void operator()(sqlite3* one) const { sqlite3_close(one); }
        void operator()(sqlite3_stmt* one) const { sqlite3_finalize(one); }
    };

    std::filesystem::path place_;
    staging made_;
    std::unique_ptr<sqlite3, closer> database_;
    std::unique_ptr<sqlite3_stmt, closer> insert_;
    std::string after_;  ///< indexes of the table at hand
    bool good_ = true;
};

}  // namespace vantora::archive
