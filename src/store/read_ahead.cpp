#include "store/read_ahead.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace vantora {

namespace {

constexpr std::size_t threads_max = 32;
constexpr std::size_t batch_bytes_max = 256U << 10U;

// From memory, few and large batches keep the caches warm; from afar, many and small ones keep all
// threads at work.
constexpr std::size_t batches_max = 72;
constexpr std::size_t batches_near = 6;
constexpr std::size_t batch_places_max = 64;
constexpr std::size_t batch_places_far = 8;
/// A batch has one place at first, and twice as many after each so many batches.
constexpr std::size_t batches_of_a_size = 8;

/// A read that takes longer than memory could waits for something: more of them at once are worth
/// a thread.
constexpr std::chrono::nanoseconds slow_read{30'000};
constexpr std::size_t bytes_in_a_nanosecond = 2;

/// Some places that one thread reads one after the other.
struct batch {
    struct piece {
        read_ahead::place place;
        std::size_t at = 0;  ///< in `bytes`
        bool read = false;
    };

    std::vector<piece> pieces;
    std::size_t size = 0;
    std::unique_ptr<std::byte[]> bytes;
    std::size_t room = 0;  ///< of `bytes`
    bool done = false;
};

bool read_place(file& from, const read_ahead::place& place, std::byte* into) {
    if (place.offset < 0) return false;
    const std::span bytes(into, place.bytes);
    const auto had = from.read(place.offset, bytes);
    if (!had) return false;
    std::ranges::fill(bytes.subspan(*had), std::byte{0});
    return true;
}

/// Reads the pieces that lie one behind the other, from the first one on, in one call, or, where
/// that fails, each alone. Returns those that are left.
std::span<batch::piece> read_neighbours(file& from, batch& into, std::span<batch::piece> pieces) {
    read_ahead::place whole = pieces.front().place;
    std::size_t count = 1;
    while (count < pieces.size() &&
           pieces[count].place.offset == whole.offset + static_cast<std::int64_t>(whole.bytes)) {
        whole.bytes += pieces[count++].place.bytes;
    }
    const auto neighbours = pieces.first(count);
    std::byte* const begin = into.bytes.get() + pieces.front().at;
    const bool done = read_place(from, whole, begin);
    for (auto& one : neighbours) {
        one.read = done || (count > 1 && read_place(from, one.place, into.bytes.get() + one.at));
    }
    return pieces.subspan(count);
}

/// Has the disk begin with all places of a batch before the first of them is waited for.
void announce(file& to, const batch& all) {
    if (all.pieces.size() < 2) return;
    for (const auto& one : all.pieces) {
        to.will_read(one.place.offset, static_cast<std::int64_t>(one.place.bytes));
    }
}

/// Whether the reads of late were slow. One alone may have met a busy processor.
class recent_speed {
 public:
    void note(bool slow) {
        const int before = score_.load(std::memory_order_relaxed);
        const int after = slow ? std::min(before + 16, 256) : std::max(before - 1, 0);
        if (after != before) score_.store(after, std::memory_order_relaxed);
    }
    [[nodiscard]] bool is_slow() const { return score_.load(std::memory_order_relaxed) >= 32; }

 private:
    std::atomic<int> score_ = 0;
};

}  // namespace

class read_ahead::readers {
 public:
    readers(std::shared_ptr<file> from, first_look look)
        : from_(std::move(from)), look_(std::move(look)) {}
    readers(const readers&) = delete;
    readers& operator=(const readers&) = delete;

    ~readers() {
        {
            const std::scoped_lock locked(mutex_);
            ending_ = true;
        }
        work_.notify_all();
        for (auto& thread : threads_) thread.join();
    }

    bool has_room() {
        const std::size_t batches = sent_ + fresh_.size();
        const std::size_t most = speed_.is_slow() ? batches_max : batches_near;
        if (batches <= most / 2) filling_ = true;
        if (batches >= most) filling_ = false;
        return filling_;
    }

    void ask(const place& wanted) {
        if (open_ && open_->size + wanted.bytes > batch_bytes_max) close_batch();
        if (!open_) open_ = empty_batch();
        open_->pieces.push_back({wanted, open_->size, false});
        open_->size += wanted.bytes;
        if (open_->pieces.size() >= batch_places()) close_batch();
    }

    void send() {
        close_batch();
        if (fresh_.empty()) return;
        sent_ += fresh_.size();
        const bool several = fresh_.size() > 1;
        {
            const std::scoped_lock locked(mutex_);
            std::ranges::move(fresh_, std::back_inserter(queue_));
            if (queue_.size() > 1 && threads_.size() < threads_from_start()) add_thread();
        }
        fresh_.clear();
        several ? work_.notify_all() : work_.notify_one();
    }

    std::optional<std::span<const std::byte>> next() {
        if (current_ && piece_ == current_->pieces.size()) spare_.push_back(std::move(current_));
        if (!current_ && !next_batch()) return {};
        const batch::piece& piece = current_->pieces[piece_++];
        if (!piece.read) return {};
        return std::span<const std::byte>(current_->bytes.get() + piece.at, piece.place.bytes);
    }

 private:
    [[nodiscard]] std::size_t batch_places() const {
        return std::min(growing_places_, speed_.is_slow() ? batch_places_far : batch_places_max);
    }

    std::unique_ptr<batch> empty_batch() {
        if (spare_.empty()) return std::make_unique<batch>();
        auto again = std::move(spare_.back());
        spare_.pop_back();
        again->pieces.clear();
        again->size = 0;
        again->done = false;
        return again;
    }

    void close_batch() {
        if (!open_) return;
        if (open_->room < open_->size) {
            open_->bytes = std::make_unique_for_overwrite<std::byte[]>(open_->size);
            open_->room = open_->size;
        }
        fresh_.push_back(std::move(open_));
        if (++batches_closed_ % batches_of_a_size == 0) {
            growing_places_ = std::min(2 * growing_places_, batch_places_max);
        }
    }

    /// Waits for the batch in front, or reads it here if no thread has begun it.
    bool next_batch() {
        if (sent_ == 0) send();
        if (sent_ == 0) return false;
        std::unique_lock locked(mutex_);
        batch& front = *queue_.front();
        while (!front.done) {
            // As long as memory answers, reading a later one is better than waiting.
            batch* mine = taken_ == 0 || !speed_.is_slow() ? take() : nullptr;
            if (mine) {
                fill(*mine, locked);
            } else {
                done_.wait(locked, [&front] { return front.done; });
            }
        }
        current_ = std::move(queue_.front());
        queue_.pop_front();
        --taken_;
        --sent_;
        piece_ = 0;
        return true;
    }

    static std::size_t threads_from_start() {
        return std::max<std::size_t>(std::thread::hardware_concurrency(), 2) - 1;
    }

    // REQUIRES: the mutex is held, from here on ---------------------------------------------------

    void add_thread() {
        if (threads_.size() == threads_max || ending_ || !from_) return;
        try {
            threads_.emplace_back([this] { work(); });
        } catch (const std::system_error&) {
            // The machine has no more; those that run, and the caller's own, do it all.
        }
    }

    batch* take() { return taken_ == queue_.size() ? nullptr : queue_[taken_++].get(); }

    void work() {
        std::unique_lock locked(mutex_);
        while (true) {
            batch* mine = nullptr;
            work_.wait(locked, [&] { return ending_ || (mine = take()) != nullptr; });
            if (ending_) return;
            fill(*mine, locked);
            done_.notify_one();
        }
    }

    /// Gives the mutex up meanwhile.
    void fill(batch& mine, std::unique_lock<std::mutex>& locked) {
        locked.unlock();
        using clock = std::chrono::steady_clock;
        const auto begin = clock::now();
        if (from_ && speed_.is_slow()) announce(*from_, mine);
        for (std::span left(mine.pieces); !left.empty() && from_ && !ending_;) {
            left = read_neighbours(*from_, mine, left);
        }
        const auto allowed = slow_read * mine.pieces.size() +
                             std::chrono::nanoseconds(mine.size / bytes_in_a_nanosecond);
        speed_.note(clock::now() - begin > allowed);
        for (const auto& one : mine.pieces) {
            if (look_ && one.read) look_(one.place, {mine.bytes.get() + one.at, one.place.bytes});
        }
        locked.lock();
        mine.done = true;
        if (taken_ < queue_.size() && speed_.is_slow()) add_thread();
    }

    const std::shared_ptr<file> from_;
    const first_look look_;
    recent_speed speed_;
    std::atomic<bool> ending_ = false;

    // Of the caller's thread alone.
    std::unique_ptr<batch> open_;                ///< places are still added to it
    std::vector<std::unique_ptr<batch>> fresh_;  ///< closed, not sent yet
    std::vector<std::unique_ptr<batch>> spare_;
    std::size_t sent_ = 0;  ///< batches in the queue
    std::size_t batches_closed_ = 0;
    std::size_t growing_places_ = 1;
    bool filling_ = true;
    std::unique_ptr<batch> current_;
    std::size_t piece_ = 0;

    std::mutex mutex_;  ///< guards what follows; a taken batch is its thread's alone until done
    std::condition_variable work_;
    std::condition_variable done_;
    std::deque<std::unique_ptr<batch>> queue_;
    std::size_t taken_ = 0;  ///< the first ones of the queue
    std::vector<std::thread> threads_;
};

read_ahead::read_ahead(std::shared_ptr<file> from, first_look look)
    : readers_(std::make_unique<readers>(std::move(from), std::move(look))) {}

read_ahead::~read_ahead() = default;

bool read_ahead::has_room() {
    return readers_->has_room();
}

void read_ahead::ask(place wanted) {
    readers_->ask(wanted);
}

void read_ahead::send() {
    readers_->send();
}

std::optional<std::span<const std::byte>> read_ahead::next() {
    return readers_->next();
}

}  // namespace vantora
