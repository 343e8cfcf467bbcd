#include <algorithm>

#include "text/code_page.h"
#include "text/number_text.h"
#include "ui/grid.h"

namespace vantora::ui {

namespace {

/// One row's place in a sort, read once and compared often.
struct sort_key {
    std::uint32_t row = 0;  ///< storage row
    bool empty = false;
    bool number = false;
    double value = 0;
    std::uint32_t begin = 0;  ///< of the text in capitals, among the texts of all keys
    std::uint32_t size = 0;
};

bool stands_behind(const sort_key& left, const sort_key& right, const std::string& texts) {
    if (left.empty || right.empty) return right.empty && !left.empty;
    if (left.number && right.number) return left.value > right.value;
    const std::string_view all = texts;
    return all.substr(left.begin, left.size) > all.substr(right.begin, right.size);
}

/// Merges runs of rising length. Mixed columns of numbers and texts have no order that holds for
/// all pairs ("2" < "10" < "1a" < "2"), so this must be safe for any outcome of the comparison.
void merge_sort(std::vector<sort_key>& keys, const std::string& texts) {
    std::vector<sort_key> merged(keys.size());
    for (std::size_t run = 1; run < keys.size(); run *= 2) {
        for (std::size_t begin = 0; begin < keys.size(); begin += 2 * run) {
            const std::size_t middle = std::min(begin + run, keys.size());
            const std::size_t end = std::min(begin + 2 * run, keys.size());
            std::size_t left = begin;
            std::size_t right = middle;
            for (std::size_t to = begin; to < end; ++to) {
                const bool take_right =
                    right < end &&
                    (left == middle || stands_behind(keys[left], keys[right], texts));
                merged[to] = take_right ? keys[right++] : keys[left++];
            }
        }
        keys.swap(merged);
    }
}

}  // namespace

void grid::sort(int col, sort_order by) {
    if (rows() < 3 || !holds(0, col)) return;
    store_rows(static_cast<std::size_t>(rows()));
    std::string texts;
    std::vector<sort_key> keys;
    keys.reserve(order_.size() - 1);
    for (int row = 1; row < rows(); ++row) {
        const std::string_view shown = text(row, col);
        sort_key key;
        key.row = order_[static_cast<std::size_t>(row)];
        key.empty = shown.empty();
        if (by == sort_order::numeric_ascending) {
            key.number = true;
            key.value = number_at_head(shown);
        } else {
            const auto number = whole_number_text(shown);
            key.number = number.has_value();
            key.value = number.value_or(0);
            key.begin = static_cast<std::uint32_t>(texts.size());
            key.size = static_cast<std::uint32_t>(shown.size());
            for (const char character : shown) texts.push_back(upper(character));
        }
        keys.push_back(key);
    }
    merge_sort(keys, texts);
    for (std::size_t i = 0; i < keys.size(); ++i) order_[i + 1] = keys[i].row;
    show_change(aspect::content);
}

}  // namespace vantora::ui
