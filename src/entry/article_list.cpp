#include "entry/article_list.h"

#include <algorithm>
#include <array>

#include "store/text/code_page.h"
#include "store/text/int16.h"
#include "store/text/number_text.h"

namespace vantora {

namespace {

std::string padded(std::string_view text, std::size_t width) {
    std::string result(text.substr(0, width));
    result.resize(width, ' ');
    return result;
}

std::string entry_of(const rec_art& article, std::int64_t number, modo_lista mode) {
    const std::string_view code = article.codice.full();
    const std::string_view description = article.descrizione.full();
    std::string entry;
    entry.reserve(160);
    entry.append(mode == per_codice ? code : description).append(" - ");
    entry.append(mode == per_codice ? description : code).append(90, ' ');
    return entry.append(std::to_string(number));
}

bool begins_with(std::string_view text, std::string_view capitals) {
    if (text.size() < capitals.size()) return false;
    return std::equal(capitals.begin(), capitals.end(), text.begin(),
                      [](char wanted, char there) { return wanted == upper(there); });
}

}  // namespace

std::vector<std::string> voci_articoli(const channel<blocco_articoli>& blocks,
                                       std::int16_t articles, modo_lista mode) {
    constexpr int at_once = 16;
    std::vector<std::string> entries;
    std::vector<blocco_articoli> read(at_once);
    // The last block may hold records that no 16-bit number reaches.
    constexpr int last_number = 32767;
    const int last = static_cast<int>(integer_part(articles / 20.0)) + 1;
    for (int first = 1; first <= last; first += at_once) {
        const auto count = static_cast<std::size_t>(std::min(at_once, last - first + 1));
        const std::span<blocco_articoli> part(read.data(), count);
        if (!blocks.read_block(first, part)) continue;
        for (std::size_t block = 0; block < count; ++block) {
            for (std::size_t place = 0; place < 20; ++place) {
                const rec_art& article = read[block].articoli[place];
                const auto deleted = static_cast<std::uint16_t>(article.eliminato) & 0xFF;
                if (deleted != 0 || filtra_stampa(article.codice.full()).empty()) continue;
                const auto number =
                    (first - 1 + static_cast<int>(block)) * 20 + static_cast<int>(place) + 1;
                if (number <= last_number) entries.push_back(entry_of(article, number, mode));
            }
        }
    }
    return entries;
}

std::int16_t numero_articolo(std::string_view entry) {
    const std::size_t begin = entry.size() < 5 ? 0 : entry.size() - 5;
    return to_int16(number_at_head(entry.substr(begin))).value_or(0);
}

int cerca_voce(const std::vector<std::string>& entries, std::string_view wanted) {
    const auto found = std::ranges::find_if(
        entries, [wanted](const std::string& entry) { return begins_with(entry, wanted); });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

std::int16_t cerca_descrizione(const channel<rec_art>& articles, std::int16_t count,
                               std::string_view text) {
    constexpr int at_once = 256;
    const std::string wanted = upper(text);
    std::vector<rec_art> read(at_once);
    for (int first = 1; first <= count; first += at_once) {
        const auto size = static_cast<std::size_t>(std::min(at_once, count - first + 1));
        if (!articles.read_block(first, std::span(read.data(), size))) return 0;
        for (std::size_t i = 0; i < size; ++i) {
            if (begins_with(read[i].descrizione.full(), wanted)) {
                return static_cast<std::int16_t>(first + static_cast<int>(i));
            }
        }
    }
    return 0;
}

std::string riga_giacenza(const rec_art& article, std::int16_t number) {
    const std::string line = padded(article.codice.full(), 15) + " - " +
                             padded(article.descrizione.full(), 80) +
                             " - Giacenza:" + plain_text(article.giacenza) +
                             " - Impegnato:" + plain_text(article.impegnato);
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 5 ? 5 - digits.size() : 0, '0');
    return padded(line, 140) + digits;
}

}  // namespace vantora
