#include "archive/export_sqlite.h"

#include <cmath>

namespace vantora::archive {

namespace {

const char* type_of(content of) {
    switch (of) {
        case content::whole:
        case content::yes_no:
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

sqlite_file::sqlite_file(std::filesystem::path place)
    : place_(std::move(place)), unfinished_(place_) {
    unfinished_ += ".unfinished";
    std::error_code ignored;
    std::filesystem::remove(unfinished_, ignored);
    sqlite3* opened = nullptr;
    good_ = sqlite3_open(unfinished_.c_str(), &opened) == SQLITE_OK;
    database_.reset(opened);
    // Nobody reads it before it is whole.
    run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; BEGIN");
}

sqlite_file::~sqlite_file() {
    insert_.reset();
    database_.reset();
    std::error_code ignored;
    std::filesystem::remove(unfinished_, ignored);
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
            sqlite3_bind_double(insert_.get(), at, *number);
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
    if (!good_) return false;
    std::error_code failed;
    std::filesystem::rename(unfinished_, place_, failed);
    return !failed;
}

}  // namespace vantora::archive
