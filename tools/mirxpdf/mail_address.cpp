#include <QByteArray>
#include <algorithm>

#include "mirxpdf/mail.h"

namespace vantora::mirxpdf {

namespace {

bool is_plain(unsigned char character) {
    return character >= 32 && character < 127;
}

bool is_address(std::string_view text) {
    const std::size_t at = text.find('@');
    if (at == 0 || at == std::string_view::npos || at + 1 == text.size()) return false;
    return text.find('@', at + 1) == std::string_view::npos &&
           text.find_first_of(" <>()[]\\,;:\"") == std::string_view::npos &&
           std::ranges::all_of(text, is_plain);
}

std::string_view without_blanks(std::string_view text) {
    while (text.starts_with(' ')) text.remove_prefix(1);
    while (text.ends_with(' ')) text.remove_suffix(1);
    return text;
}

/// End of a stretch of at most `size` bytes that cuts no character in two.
std::size_t stretch_end(std::string_view utf8, std::size_t begin, std::size_t size) {
    std::size_t end = std::min(begin + size, utf8.size());
    const auto continues = [&](std::size_t at) {
        return (static_cast<unsigned char>(utf8[at]) & 0xC0) == 0x80;
    };
    while (end > begin + 1 && end < utf8.size() && continues(end)) --end;
    return end;
}

}  // namespace

std::optional<mailbox> read_mailbox(std::string_view text) {
    mailbox read;
    std::string_view address = without_blanks(text);
    const std::size_t bracket = address.find('<');
    if (bracket != std::string_view::npos) {
        read.name = without_blanks(address.substr(0, bracket));
        address.remove_prefix(bracket + 1);
        if (!address.ends_with('>')) return {};
        address.remove_suffix(1);
    }
    const bool name_is_clean = std::ranges::none_of(
        read.name, [](unsigned char character) { return character < 32 || character == 127; });
    if (!name_is_clean || !is_address(address)) return {};
    read.address = address;
    return read;
}

std::vector<mailbox> read_addressees(std::string_view text) {
    constexpr std::string_view between = "; ";
    std::vector<mailbox> all;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(between), text.size()));
        if (text.empty()) return all;
        const std::size_t end = std::min(text.find_first_of(between), text.size());
        if (!is_address(text.substr(0, end))) return {};
        all.push_back({"", std::string(text.substr(0, end))});
        text.remove_prefix(end);
    }
}

std::string header_text(std::string_view utf8) {
    constexpr std::size_t longest_plain = 200;
    constexpr std::size_t stretch = 42;  // an encoded word has at most 75 characters
    const bool looks_encoded = utf8.find("=?") != std::string_view::npos;
    if (!looks_encoded && utf8.size() <= longest_plain && std::ranges::all_of(utf8, is_plain)) {
        return std::string(utf8);
    }
    std::string words;
    for (std::size_t begin = 0; begin < utf8.size();) {
        const std::size_t end = stretch_end(utf8, begin, stretch);
        const QByteArray part(utf8.data() + begin, static_cast<qsizetype>(end - begin));
        words += (words.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") +
                 part.toBase64().toStdString() + "?=";
        begin = end;
    }
    return words;
}

}  // namespace vantora::mirxpdf
