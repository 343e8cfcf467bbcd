#include "archive/export_csv.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace vantora::archive {

namespace {

constexpr std::size_t handed_over_at = 1 << 20;
constexpr std::string_view utf8_mark = "\xEF\xBB\xBF";
constexpr const char* line_end = "\r\n";

std::string italian_date(const std::string& iso) {
    if (iso.size() != 10) return iso;
    return iso.substr(8, 2) + "/" + iso.substr(5, 2) + "/" + iso.substr(0, 4);
}

}  // namespace

csv_folder::csv_folder(std::filesystem::path folder, bool plain)
    : folder_(std::move(folder)), plain_(plain), separator_(plain ? ',' : ';') {
    std::error_code failed;
    std::filesystem::create_directories(folder_, failed);
}

void csv_folder::begin(const exported_table& table) {
    columns_ = table.columns;
    out_.open(folder_ / (std::string(table.name) + ".csv"), std::ios::binary | std::ios::trunc);
    if (!plain_) pending_.append(utf8_mark);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (i > 0) pending_.push_back(separator_);
        pending_.append(columns_[i].name);
    }
    pending_.append(line_end);
}

void csv_folder::put_text(std::string_view text) {
    if (text.find_first_of("\";,\r\n") == std::string_view::npos) {
        pending_.append(text);
        return;
    }
    pending_.push_back('"');
    for (const char one : text) {
        if (one == '"') pending_.push_back('"');
        pending_.push_back(one);
    }
    pending_.push_back('"');
}

void csv_folder::row(std::span<const cell_value> values) {
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (i > 0) pending_.push_back(separator_);
        if (const auto* text = std::get_if<std::string>(&values[i])) {
            put_text(columns_[i].of == content::date && !plain_ ? italian_date(*text) : *text);
            continue;
        }
        char digits[32];
        char* end = digits;
        if (const auto* whole = std::get_if<std::int64_t>(&values[i])) {
            end = std::to_chars(digits, digits + sizeof digits, *whole).ptr;
        } else if (const double number = std::get<double>(values[i]); std::isfinite(number)) {
            end = std::to_chars(digits, digits + sizeof digits, number).ptr;
            if (!plain_) std::replace(digits, digits + (end - digits), '.', ',');
        }
        pending_.append(digits, end);
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

}  // namespace vantora::archive
