#include "store/text_reader.h"

#include <algorithm>

#include "text/number_text.h"

namespace vantora {

namespace {

bool ends_line(char character) {
    return character == '\r' || character == '\n';
}

}  // namespace

void text_reader::skip_line_end() {
    if (at_end()) return;
    const char first = content_[position_++];
    if (!at_end() && ends_line(content_[position_]) && content_[position_] != first) ++position_;
}

bool text_reader::line(std::string_view& into) {
    if (at_end()) return false;
    const std::string_view left = std::string_view(content_).substr(position_);
    std::size_t length = 0;
    while (length < left.size() && !ends_line(left[length])) ++length;
    into = left.substr(0, length);
    position_ += length;
    skip_line_end();
    return true;
}

bool text_reader::line(std::string& into) {
    std::string_view found;
    if (!line(found)) return false;
    into = found;
    return true;
}

bool text_reader::item(std::string& into) {
    if (at_end()) return false;
    while (!at_end() && content_[position_] == ' ') ++position_;
    const bool quoted = !at_end() && content_[position_] == '"';
    if (quoted) {
        const std::size_t begin = ++position_;
        position_ = std::min(content_.find('"', begin), content_.size());
        into = content_.substr(begin, position_ - begin);
    }
    const std::size_t begin = position_;
    while (!at_end() && content_[position_] != ',' && !ends_line(content_[position_])) ++position_;
    if (!quoted) {
        std::size_t end = position_;
        while (end > begin && content_[end - 1] == ' ') --end;
        into = content_.substr(begin, end - begin);
    }
    if (!at_end() && content_[position_] == ',') {
        ++position_;
    } else {
        skip_line_end();
    }
    return true;
}

bool text_reader::item(double& into) {
    std::string text;
    if (!item(text)) return false;
    into = number_at_head(text);
    return true;
}

}  // namespace vantora
