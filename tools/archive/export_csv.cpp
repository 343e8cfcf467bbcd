#include "archive/export_csv.h"

#include <algorithm>
#include <cmath>

#include "archive/csv_text.h"
#include "archive/words.h"
#include "text/csv.h"

namespace vantora::archive {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t handed_over_at = 1 << 20;
constexpr const char* line_end = "\r\n";

/// A list of any other name is somebody's own.
bool is_name(const table_names& both, const std::string& name) {
    return name == both.shop || name == both.program;
}

}  // namespace

csv_folder::csv_folder(fs::path folder, bool plain)
    : place_(std::move(folder)),
      made_(place_),
      plain_(plain),
      separator_(plain ? ',' : ';'),
      good_(!made_.folder().empty()) {
    std::error_code failed;
    fs::create_directory(made_.folder() / "csv", failed);
}

std::string csv_folder::obstacle(const fs::path& folder) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(folder, failed))) return {};
    if (!fs::is_directory(fs::symlink_status(folder, failed))) return "non è una cartella";
    bool empty = true;
    bool exported = false;  // every export has its counters
    for (fs::directory_iterator each(folder, failed), none; !failed && each != none;
         each.increment(failed)) {
        const std::string name = each->path().stem().string();
        if (!each->is_regular_file(failed) || each->path().extension() != ".csv" ||
            std::ranges::none_of(names_of_tables,
                                 [&](const auto& both) { return is_name(both, name); })) {
            return "contiene altro che un'esportazione (" + words_of_path(each->path().filename()) +
                   ")";
        }
        empty = false;
        exported |= is_name(names_of_tables[static_cast<std::size_t>(table_id::counters)], name);
    }
    if (failed) return "non si può leggere";
    return empty || exported ? "" : "contiene altro che un'esportazione";
}

void csv_folder::begin(const exported_table& table) {
    columns_ = table.columns;
    const fs::path file = made_.folder() / "csv" / (std::string(table.name) + ".csv");
    out_.open(file, std::ios::binary | std::ios::trunc);
    if (!plain_) pending_.append(utf8_mark);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (i > 0) pending_.push_back(separator_);
        pending_.append(columns_[i].name);
    }
    pending_.append(line_end);
}

void csv_folder::put(const cell_value& value, content of) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) {
        pending_.append(std::to_string(*whole));
    } else if (const auto* number = std::get_if<double>(&value)) {
        std::string digits = digits_of(*number);
        if (!plain_) std::ranges::replace(digits, '.', ',');
        pending_.append(digits);
    } else if (const auto& text = std::get<std::string>(value); plain_) {
        add_csv_cell(pending_, text, separator_);
    } else {
        const std::string day = of == content::date ? italian_date(text) : text;
        add_csv_cell(pending_, day == text ? kept_as_text(text) : day, separator_);
    }
}

void csv_folder::row(std::span<const cell_value> values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) pending_.push_back(separator_);
        put(values[i], columns_[i].of);
    }
    pending_.append(line_end);
    if (pending_.size() >= handed_over_at) hand_over();
}

void csv_folder::hand_over() {
    out_.write(pending_.data(), static_cast<std::streamsize>(pending_.size()));
    pending_.clear();
}

void csv_folder::end() {
    hand_over();
    out_.close();
    good_ = good_ && !out_.fail();
}

bool csv_folder::finish() {
    // What stood there goes with the rest of the staging.
    return good_ && swap_in(made_.folder() / "csv", place_, made_.folder() / "former");
}

}  // namespace vantora::archive
