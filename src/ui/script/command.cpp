#include "ui/script/command.h"

#include <charconv>
#include <nlohmann/json.hpp>

namespace vantora::ui::script {

namespace {

bool is_blank(char character) {
    return character == ' ' || character == '\t' || character == '\r';
}

/// Position behind the closing quote of the text that opens at `begin`.
std::size_t end_of_text(std::string_view line, std::size_t begin) {
    for (std::size_t i = begin + 1; i < line.size(); ++i) {
        if (line[i] == '\\') {
            ++i;
        } else if (line[i] == '"') {
            return i + 1;
        }
    }
    return std::string_view::npos;
}

}  // namespace

std::optional<std::vector<word>> split_words(std::string_view line) {
    std::vector<word> words;
    for (std::size_t i = 0; i < line.size();) {
        if (is_blank(line[i])) {
            ++i;
            continue;
        }
        const std::size_t begin = i;
        if (line[i] != '"') {
            while (i < line.size() && !is_blank(line[i])) ++i;
            words.push_back({std::string(line.substr(begin, i - begin)), false});
            continue;
        }
        i = end_of_text(line, begin);
        if (i == std::string_view::npos) return {};
        const auto text =
            nlohmann::json::parse(line.substr(begin, i - begin), nullptr, /*exceptions=*/false);
        if (!text.is_string()) return {};
        words.push_back({text.get<std::string>(), true});
    }
    return words;
}

std::optional<int> read_int(std::string_view text) {
    int value = 0;
    const auto [end, failed] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (failed != std::errc{} || end != text.data() + text.size()) return {};
    return value;
}

std::optional<address> read_address(std::string_view text) {
    const std::size_t point = text.find('.');
    if (point == std::string_view::npos || point == 0) return {};
    address read;
    read.screen = text.substr(0, point);
    text.remove_prefix(point + 1);
    const std::size_t open = text.find('(');
    read.control = text.substr(0, open);
    if (read.control.empty()) return {};
    if (open == std::string_view::npos) return read;
    if (text.back() != ')') return {};
    read.index = read_int(text.substr(open + 1, text.size() - open - 2));
    if (!read.index) return {};
    return read;
}

}  // namespace vantora::ui::script
