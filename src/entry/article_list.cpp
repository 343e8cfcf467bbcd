#include "entry/article_list.h"

#include <algorithm>

#include "orders/stock.h"
#include "store/money.h"
#include "store/record_runs.h"
#include "text/code_page.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::string_view between = " - ";  // code and description of an entry

std::string padded(std::string_view text, std::size_t width) {
    std::string result(text.substr(0, width));
    result.resize(width, ' ');
    return result;
}

std::string entry_of(const rec_art& article, int number) {
    std::string entry;
    entry.reserve(160);
    entry.append(article.codice.full()).append(between).append(article.descrizione.full());
    return entry.append(90, ' ').append(std::to_string(number));
}

std::string_view part(std::string_view entry, std::size_t begin, std::size_t width) {
    return trimmed(entry.substr(std::min(begin, entry.size()), width));
}

bool begins_with(std::string_view text, std::string_view capitals) {
    if (text.size() < capitals.size()) return false;
    return std::equal(capitals.begin(), capitals.end(), text.begin(),
                      [](char wanted, char there) { return wanted == upper(there); });
}

}  // namespace

std::vector<std::string> article_entries_of(const channel<blocco_articoli>& blocks,
                                            std::int16_t articles,
                                            const std::function<void(int, int)>& progress) {
    constexpr int at_once = 16;
    std::vector<std::string> entries;
    // The last block may hold records that no 16-bit number reaches.
    constexpr int last_number = 32767;
    const int last = static_cast<int>(integer_part(articles / 20.0)) + 1;
    auto ahead = all_records_ahead(blocks, last, at_once);
    blocco_articoli read;
    for (int block = 1; block <= last; ++block) {
        progress(block, last);
        if (!ahead.next(read)) continue;
        int number = (block - 1) * 20;
        for (const rec_art& article : read.articoli) {
            const auto deleted = static_cast<std::uint16_t>(article.eliminato) & 0xFF;
            if (++number > last_number) break;
            if (deleted != 0 || filtra_stampa(article.codice.full()).empty()) continue;
            entries.push_back(entry_of(article, number));
        }
    }
    return entries;
}

std::int16_t article_number(std::string_view entry) {
    const std::size_t begin = entry.size() < 5 ? 0 : entry.size() - 5;
    return to_int16(number_at_head(entry.substr(begin))).value_or(0);
}

std::string_view entry_code(std::string_view entry) {
    return part(entry, 0, sizeof(rec_art::codice));
}

std::string_view entry_description(std::string_view entry) {
    return part(entry, sizeof(rec_art::codice) + between.size(), sizeof(rec_art::descrizione));
}

int find_entry(const std::vector<std::string>& entries, std::string_view wanted) {
    const auto found = std::ranges::find_if(
        entries, [wanted](const std::string& entry) { return begins_with(entry, wanted); });
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

std::int16_t find_description(const channel<rec_art>& articles, std::int16_t count,
                              std::string_view text) {
    constexpr int at_once = 256;
    const std::string wanted = upper(text);
    auto ahead = all_records_ahead(articles, count, at_once);
    rec_art read;
    for (int number = 1; number <= count && ahead.next(read); ++number) {
        if (begins_with(read.descrizione.full(), wanted)) return static_cast<std::int16_t>(number);
    }
    return 0;
}

std::string quantity_or_zero(double quantity) {
    return quantity == 0 ? "0" : quantity_text(quantity);
}

std::string stock_text(const rec_art& article) {
    const scorta now = stock_of(article);
    return std::string(article.codice.trimmed()) + ":  in magazzino " +
           quantity_or_zero(now.in_magazzino) + "  \xB7  impegnato " +
           quantity_or_zero(now.impegnato) + "  \xB7  libero " + quantity_or_zero(now.libero) +
           "  \xB7  ordinato dai clienti " + quantity_or_zero(now.ordinato);
}

std::string stock_entry(const rec_art& article, std::int16_t number) {
    const std::string line = padded(article.codice.full(), 15) + " - " +
                             padded(article.descrizione.full(), 80) +
                             " - Giacenza:" + plain_text(article.giacenza) +
                             " - Impegnato:" + plain_text(article.impegnato);
    std::string digits = std::to_string(number);
    digits.insert(0, digits.size() < 5 ? 5 - digits.size() : 0, '0');
    return padded(line, 140) + digits;
}

}  // namespace vantora
