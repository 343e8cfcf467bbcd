#include "archive/export_sqlite.h"

#include <cmath>
#include <fstream>

#include "archive/csv_text.h"

namespace vantora::archive {

namespace fs = std::filesystem;

namespace {

const char* type_of(content of) {
    switch (of) {
        case content::whole:
            return "INTEGER";
        case content::number:
            return "REAL";
        default:
            return "TEXT";
    }
}

std::string quoted(const char* name) {
    return std::string("\"") + name + "\"";
}

/// "a", "b": the columns in front of a table that make its key.
std::string key_of(const exported_table& table) {
    std::string key;
    for (int i = 0; i < table.key_columns; ++i) {
        key += (i > 0 ? ", " : "") + quoted(table.columns[static_cast<std::size_t>(i)].name);
    }
    return key;
}

}  // namespace

sqlite_file::sqlite_file(fs::path place) : place_(std::move(place)), made_(place_) {
    if (made_.folder().empty()) {
        good_ = false;
        return;
    }
    sqlite3* opened = nullptr;
    good_ = sqlite3_open((made_.folder() / "made").c_str(), &opened) == SQLITE_OK;
    database_.reset(opened);
    // Nobody reads it before it is whole.
    run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN");
}

std::string sqlite_file::obstacle(const fs::path& place) {
    constexpr std::string_view mark = "SQLite format 3";
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(place, failed))) return {};
    if (!fs::is_regular_file(place, failed)) return "non è un file";
    std::string head(mark.size(), ' ');
    std::ifstream(place, std::ios::binary).read(head.data(), static_cast<int>(head.size()));
    if (fs::file_size(place, failed) == 0 || head == mark) return {};
    return "non è un file SQLite, e non lo si sovrascrive";
}

void sqlite_file::run(const std::string& statement) {
    if (!good_) return;
    good_ =
        sqlite3_exec(database_.get(), statement.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
}

void sqlite_file::begin(const exported_table& table) {
    std::string create = "CREATE TABLE " + quoted(table.name) + " (";
    std::string places;
    after_.clear();
    for (const table_column& one : table.columns) {
        create += quoted(one.name) + " " + type_of(one.of);
        if (one.refers_to) {
            create += " REFERENCES " + quoted(one.refers_to) + "(id)";
            after_ += "CREATE INDEX \"" + std::string(table.name) + "_" + one.name + "\" ON " +
                      quoted(table.name) + " (" + quoted(one.name) + ");";
        }
        create += ", ";
        places += places.empty() ? "?" : ",?";
    }
    create += "PRIMARY KEY (" + key_of(table) + "))";
    if (table.key_columns > 1) create += " WITHOUT ROWID";
    run(create);
    if (!good_) return;
    const std::string insert = "INSERT INTO " + quoted(table.name) + " VALUES (" + places + ")";
    sqlite3_stmt* prepared = nullptr;
    good_ =
        sqlite3_prepare_v2(database_.get(), insert.c_str(), -1, &prepared, nullptr) == SQLITE_OK;
    insert_.reset(prepared);
}

void sqlite_file::row(std::span<const cell_value> values) {
    if (!good_) return;
    int at = 0;
    for (const cell_value& value : values) {
        ++at;
        if (const auto* whole = std::get_if<std::int64_t>(&value)) {
            sqlite3_bind_int64(insert_.get(), at, *whole);
        } else if (const auto* number = std::get_if<double>(&value)) {
            if (std::isfinite(*number)) {
                sqlite3_bind_double(insert_.get(), at, *number);
            } else {
                const std::string word = digits_of(*number);
                sqlite3_bind_text(insert_.get(), at, word.data(), static_cast<int>(word.size()),
                                  SQLITE_TRANSIENT);
            }
        } else if (const auto& text = std::get<std::string>(value); text.empty()) {
            sqlite3_bind_null(insert_.get(), at);
        } else {
            sqlite3_bind_text(insert_.get(), at, text.data(), static_cast<int>(text.size()),
                              SQLITE_TRANSIENT);
        }
    }
    good_ = sqlite3_step(insert_.get()) == SQLITE_DONE;
    sqlite3_reset(insert_.get());
}

void sqlite_file::end() {
    insert_.reset();
    run(after_);
}

bool sqlite_file::finish() {
    run("COMMIT");
    good_ = sqlite3_close(database_.release()) == SQLITE_OK && good_;
    return good_ && swap_in(made_.folder() / "made", place_, made_.folder() / "former");
}

}  // namespace vantora::archive
