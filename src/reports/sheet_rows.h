#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

namespace vantora {

/// Lines that a sheet takes beside its rows: its total and a blank one.
inline constexpr int righe_di_totale = 2;

/// Gathers the rows of the sheets, which stand by article, while the orders are walked
/// once, from the first to the last. Keeps no more than may still be listed: a list has only so
/// many lines, and each row found for an early sheet pushes the last ones out.
template <class Row>
class sheet_rows {
 public:
    /// `lines`: lines of the list; a sheet takes two more than it has rows.
    explicit sheet_rows(int lines)
        : lines_(lines), places_(numbers, nowhere), counts_(numbers, 0), prune_at_(2 * margin()) {}

    /// The sheet of article `number` comes next in the list. One that comes a second
    /// time has the same rows.
    void expect(std::int16_t number) {
        auto& place = places_[index(number)];
        if (place != nowhere) return;
        place = static_cast<std::int32_t>(sheets_.size());
        sheets_.push_back(number);
        last_place_ = place;
    }

    /// Whether a row of that number may be listed.
    [[nodiscard]] bool wants(std::int16_t number) const {
        const std::size_t at = index(number);
        const bool listed = places_[at] <= last_place_ && counts_[at] < lines_;
        dropped_ = dropped_ || (!listed && places_[at] != nowhere);
        return listed;
    }
    /// Whether rows of some sheet have no place in the list.
    [[nodiscard]] bool dropped() const { return dropped_; }
    /// Whether no further row can be listed.
    [[nodiscard]] bool complete() const { return sheets_.empty() || !wants(sheets_.front()); }

    /// REQUIRES: wants(number).
    void add(std::int16_t number, Row row) {
        ++counts_[index(number)];
        rows_.emplace_back(number, std::move(row));
        if (rows_.size() >= prune_at_) prune();
    }

    /// Groups the rows by their sheets. Nothing can be added afterwards.
    void group() {
        begins_.assign(sheets_.size() + 1, 0);
        for (const auto& [number, row] : rows_) ++begins_[place_of(number) + 1];
        for (std::size_t i = 1; i < begins_.size(); ++i) begins_[i] += begins_[i - 1];
        auto next = begins_;
        grouped_.resize(rows_.size());
        for (auto& [number, row] : rows_) grouped_[next[place_of(number)]++] = std::move(row);
        rows_ = {};
    }
    /// The rows of a number in the order in which they were found. REQUIRES: group() was called,
    /// the number is expected.
    [[nodiscard]] std::span<const Row> rows_of(std::int16_t number) const {
        const std::size_t place = place_of(number);
        return std::span(grouped_).subspan(begins_[place], begins_[place + 1] - begins_[place]);
    }

 private:
    static constexpr std::size_t numbers = 65536;
    static constexpr std::int32_t nowhere = INT32_MAX;

    static std::size_t index(std::int16_t number) { return static_cast<std::uint16_t>(number); }
    [[nodiscard]] std::size_t place_of(std::int16_t number) const {
        return static_cast<std::size_t>(places_[index(number)]);
    }
    [[nodiscard]] std::size_t margin() const { return static_cast<std::size_t>(lines_); }

    void prune() {
        int taken = 0;
        for (std::int32_t place = 0; place <= last_place_; ++place) {
            const int count = counts_[index(sheets_[static_cast<std::size_t>(place)])];
            if (count > 0) taken += count + righe_di_totale;
            if (taken >= lines_) last_place_ = place;
        }
        const auto behind = [this](const auto& one) {
            return places_[index(one.first)] > last_place_;
        };
        dropped_ = std::erase_if(rows_, behind) > 0 || dropped_;
        prune_at_ = rows_.size() + margin();
    }

    int lines_;
    mutable bool dropped_ = false;
    std::vector<std::int16_t> sheets_;  ///< in their order
    std::vector<std::int32_t> places_;  ///< of each number among the sheets
    std::vector<std::int32_t> counts_;  ///< rows of each number
    std::int32_t last_place_ = -1;      ///< no sheet behind it is listed
    std::vector<std::pair<std::int16_t, Row>> rows_;
    std::size_t prune_at_;
    std::vector<Row> grouped_;
    std::vector<std::size_t> begins_;
};

}  // namespace vantora
