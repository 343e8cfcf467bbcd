#include <algorithm>

#include "text/code_page.h"
#include "text/number_text.h"
#include "ui/grid.h"

namespace vantora::ui {

namespace {

/// One row's place in a sort, read once and compared often.
struct sort_key {
    std::size_t row = 0;
    bool empty = false;
    bool number = false;
    double value = 0;
    std::uint32_t begin = 0;  ///< of the text in capitals, among the texts of all keys
    std::uint32_t size = 0;
};

bool stands_behind(const sort_key& left, const sort_key& right, std::string_view texts) {
    if (left.empty || right.empty) return right.empty && !left.empty;
    if (left.number && right.number) return left.value > right.value;
    return texts.substr(left.begin, left.size) > texts.substr(right.begin, right.size);
}

/// Merges runs of rising length. Mixed columns of numbers and texts have no order that holds for
/// all pairs ("2" < "10" < "1a" < "2"), so this must be safe for any outcome of the comparison.
void merge_sort(std::vector<sort_key>& keys, std::string_view texts) {
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
    std::string texts;
    std::vector<sort_key> keys;
    keys.reserve(cells_.size() - 1);
    for (int row = 1; row < rows(); ++row) {
        const std::string_view shown = text(row, col);
        sort_key key;
        key.row = static_cast<std::size_t>(row);
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
            texts += upper(shown);
        }
        keys.push_back(key);
    }
    merge_sort(keys, texts);
    std::vector<std::vector<cell>> sorted;
    sorted.reserve(cells_.size());
    sorted.push_back(std::move(cells_[0]));
    for (const sort_key& key : keys) sorted.push_back(std::move(cells_[key.row]));
    cells_ = std::move(sorted);
    show_change(aspect::content);
}

}  // namespace vantora::ui
