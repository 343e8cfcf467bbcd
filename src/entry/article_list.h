#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/archives.h"

namespace vantora {

/// The entries of the list of all live articles, in the order of the file: code and description in
/// their full widths, then the record number as the last characters. The file is read many blocks
/// of twenty at a time, `progress` is told how far; the last block may reach behind the count. A
/// block that can't be read is left out.
std::vector<std::string> article_entries_of(
    const channel<blocco_articoli>& blocks, std::int16_t articles,
    const std::function<void(int done, int of)>& progress = [](int, int) {});

/// The record number that an entry ends with, in its last five characters.
std::int16_t article_number(std::string_view entry);

/// Its code and description, without the blanks around them.
std::string_view entry_code(std::string_view entry);
std::string_view entry_description(std::string_view entry);

/// Position of the first entry that begins with the text, which is in capitals; -1 if none.
int find_entry(const std::vector<std::string>& entries, std::string_view wanted);

/// Number of the first article, deleted or not, whose description begins with the text, without
/// regard to case; 0 if none. The empty text finds the first article.
std::int16_t find_description(const channel<rec_art>& articles, std::int16_t count,
                              std::string_view text);

/// A quantity for who reads it in a line: 0 is written too.
std::string quantity_or_zero(double quantity);

/// An article's code and how its stock stands.
std::string stock_text(const rec_art& article);

/// The stock line of an article: 140 characters, and its record number in five digits.
std::string stock_entry(const rec_art& article, std::int16_t number);

}  // namespace vantora
