#pragma once

#include <deque>
#include <functional>
#include <numeric>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "store/record_runs.h"
#include "store/records/order_block.h"

namespace vantora {

/// Reads the blocks of orders or quotes, a rec_orc or rec_prv each row, one call a block. A row
/// that can't be read, or that no file has, comes with the values of the row read before it. A walk
/// over many blocks reads ahead if it is announced; it may end anywhere.
template <class Row>
class block_reader {
 public:
    /// `before`: what the first row is if it can't be read.
    explicit block_reader(const channel<Row>& from, const Row& before = {})
        : from_(from), last_(before) {}
    block_reader(const block_reader&) = delete;
    block_reader& operator=(const block_reader&) = delete;

    /// first_row() will be called for blocks `first` to `last`, in order. block() behind it is
    /// ready where `wanted` takes the row, which is asked some time before; where it took many of
    /// late, row 1 isn't read apart from its block.
    void walk_heads(std::int64_t first, std::int64_t last,
                    std::function<bool(const Row&)> wanted = {}) {
        begin_walk(first, last);
        wanted_ = std::move(wanted);
        heads_.emplace(from_, blocks_between(first, last), [this, first](std::size_t i) {
            return run_of(first + static_cast<std::int64_t>(i), many_taken_ ? righe_blocco : 1);
        });
        if (wanted_) blocks_.emplace(from_);
    }
    /// block() will be called for these blocks, in their order.
    void walk_blocks(std::vector<int> blocks) {
        begin_walk(1, 0);
        listed_ = std::move(blocks);
        blocks_.emplace(from_, listed_.size(),
                        [this](std::size_t i) { return run_of(listed_[i], righe_blocco); });
    }
    /// The same for blocks `first` to `last`.
    void walk_blocks(std::int64_t first, std::int64_t last) {
        std::vector<int> blocks(blocks_between(first, last));
        std::iota(blocks.begin(), blocks.end(), static_cast<int>(first));
        walk_blocks(std::move(blocks));
    }
    /// Nothing is read ahead any longer.
    void end_walk() { begin_walk(1, 0); }

    /// Row 1 of a block. Valid until the next call.
    const Row& first_row(std::int64_t block) {
        if (heads_ && block == next_ && block <= end_) {
            step_to_head();
        } else {
            first_row_read_ = from_.read(block_record(block, 1), last_);
        }
        return last_;
    }

    /// All rows of a block. Valid until the next call.
    std::span<const Row> block(std::int64_t block) {
        const auto rows = planned(block);
        if (!rows) return read_now(block);
        first_row_read_ = true;
        last_ = rows->back();
        return *rows;
    }

    /// Whether row 1 of the block read last was really read.
    [[nodiscard]] bool first_row_read() const { return first_row_read_; }

 private:
    /// A row 1 on its way.
    struct coming {
        Row row;
        bool read = false;
        bool chosen = false;         ///< the whole block is on its way too
        std::span<const Row> whole;  ///< or it is here
    };
    static constexpr std::size_t coming_most = 32;
    static constexpr int stretch_length = 32;
    /// Of a stretch, from here on passing over the rows of the others costs less than their heads.
    static constexpr int many_of_a_stretch = 4;

    static std::size_t blocks_between(std::int64_t first, std::int64_t last) {
        return last < first ? 0 : static_cast<std::size_t>(last - first) + 1;
    }
    static record_run run_of(std::int64_t block, std::int64_t rows) {
        return {block_record(block, 1), static_cast<std::size_t>(rows)};
    }

    void begin_walk(std::int64_t first, std::int64_t last) {
        heads_.reset();
        blocks_.reset();
        coming_.clear();
        ready_ = {};
        wanted_ = nullptr;
        listed_.clear();
        next_listed_ = 0;
        stretch_seen_ = stretch_taken_ = 0;
        many_taken_ = false;
        next_ = seen_ = first;
        end_ = last;
    }

    void step_to_head() {
        // A block that nobody wanted in the end.
        if (ready_ && whole_.empty()) blocks_->next_run();
        ready_ = {};
        whole_ = {};
        if (!wanted_) {
            first_row_read_ = heads_->next(last_);
        } else {
            look_ahead();
            const coming& head = coming_.front();
            first_row_read_ = head.read;
            if (head.read) last_ = head.row;
            if (head.chosen) ready_ = next_;
            whole_ = head.whole;
            coming_.pop_front();
        }
        ++next_;
    }

    /// No further than to a block that came whole: its rows are gone with the next step.
    void look_ahead() {
        while (coming_.size() < coming_most && seen_ <= end_ &&
               (coming_.empty() || coming_.back().whole.empty())) {
            take_head(coming_.emplace_back());
            ++seen_;
        }
        blocks_->send();
    }

    void take_head(coming& head) {
        const auto rows = heads_->next_run();
        const bool alone = heads_->run().count == 1;
        head.read = rows || (!alone && from_.read(block_record(seen_, 1), head.row));
        if (rows) head.row = rows->front();
        if (rows && !alone) head.whole = *rows;
        const bool taken = !head.read || wanted_(head.row);
        note(taken);
        head.chosen = taken || !head.whole.empty();
        if (taken && head.whole.empty()) blocks_->ask(run_of(seen_, righe_blocco));
    }

    void note(bool taken) {
        stretch_taken_ += taken ? 1 : 0;
        if (++stretch_seen_ < stretch_length) return;
        many_taken_ = stretch_taken_ >= many_of_a_stretch;
        stretch_seen_ = stretch_taken_ = 0;
    }

    /// The block, if it comes next of those read ahead and could be read.
    std::optional<std::span<const Row>> planned(std::int64_t block) {
        if (heads_ && ready_ == block) {
            ready_ = {};
            if (!whole_.empty()) return std::exchange(whole_, {});
            return blocks_->next_run();
        }
        if (next_listed_ == listed_.size() || block != listed_[next_listed_]) return {};
        ++next_listed_;
        return blocks_->next_run();
    }

    std::span<const Row> read_now(std::int64_t block) {
        rows_.resize(static_cast<std::size_t>(righe_blocco));
        first_row_read_ = true;
        read_run(from_, block_record(block, 1), std::span(rows_), [this](std::size_t i) {
            rows_[i] = i > 0 ? rows_[i - 1] : last_;
            if (i == 0) first_row_read_ = false;
        });
        last_ = rows_.back();
        return rows_;
    }

    const channel<Row>& from_;
    Row last_;  ///< the row read last
    bool first_row_read_ = false;
    std::vector<Row> rows_;

    // The walk.
    std::vector<int> listed_;      ///< the blocks to be taken, if they were listed
    std::size_t next_listed_ = 0;  ///< of these
    std::int64_t next_ = 1;        ///< block whose head is taken next
    std::int64_t end_ = 0;
    std::function<bool(const Row&)> wanted_;
    std::optional<records_ahead<Row>> heads_;
    std::optional<records_ahead<Row>> blocks_;
    std::deque<coming> coming_;
    std::int64_t seen_ = 1;              ///< block of the next head to come
    std::optional<std::int64_t> ready_;  ///< block that comes next of those chosen
    std::span<const Row> whole_;         ///< its rows, if they are here
    int stretch_seen_ = 0;               ///< heads of the stretch at hand
    int stretch_taken_ = 0;              ///< those that were taken
    bool many_taken_ = false;            ///< of the stretch before
};

}  // namespace vantora
