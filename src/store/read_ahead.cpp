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
constexpr std::size_t batches_max = 72;
constexpr std::size_t batch_places_max = 64;
constexpr std::size_t batch_bytes_max = 256U << 10U;
/// Batches that a plan falls into if it is small, so that all threads find work.
constexpr std::size_t batches_wanted = 128;
/// A read that takes longer waits for something: more of them at once are worth a thread.
constexpr std::chrono::microseconds slow_read{30};

/// Some places that one thread reads one after the other.
struct batch {
    struct piece {
        read_ahead::place place;
        std::size_t at = 0;  ///< in `bytes`
        bool read = false;
    };

    std::vector<piece> pieces;
    std::unique_ptr<std::byte[]> bytes;
    std::size_t size = 0;
    bool taken = false;  ///< by a thread
    bool done = false;
};

void read_piece(file& from, batch& into, batch::piece& piece) {
    if (piece.place.offset < 0) return;
    const std::span bytes(into.bytes.get() + piece.at, piece.place.bytes);
    const auto had = from.read(piece.place.offset, bytes);
    if (!had) return;
    std::ranges::fill(bytes.subspan(*had), std::byte{0});
    piece.read = true;
}

}  // namespace

class read_ahead::readers {
 public:
    readers(std::shared_ptr<file> from, std::size_t places, std::function<place(std::size_t)> plan)
        : from_(std::move(from)),
          places_(places),
          plan_(std::move(plan)),
          batch_places_(std::clamp<std::size_t>(places / batches_wanted, 1, batch_places_max)) {}

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

    std::optional<std::span<const std::byte>> next() {
        if (!from_) return {};
        if (current_ && piece_ == current_->pieces.size()) current_ = nullptr;
        if (!current_ && !next_batch()) return {};
        const batch::piece& piece = current_->pieces[piece_++];
        if (!piece.read) return {};
        return std::span<const std::byte>(current_->bytes.get() + piece.at, piece.place.bytes);
    }

 private:
    /// Waits for the batch in front, or reads it here if no thread has begun it.
    bool next_batch() {
        plan_ahead();
        if (batches_.empty()) return false;
        std::unique_lock locked(mutex_);
        batch& front = *batches_.front();
        if (front.taken) {
            done_.wait(locked, [&front] { return front.done; });
        } else {
            front.taken = true;
            locked.unlock();
            fill(front);
            locked.lock();
        }
        current_ = std::move(batches_.front());
        batches_.pop_front();
        piece_ = 0;
        return true;
    }

    void plan_ahead() {
        // Several batches at a time, so that the threads aren't woken for each.
        if (batches_.size() > batches_max / 2 || planned_ == places_) return;
        std::vector<std::unique_ptr<batch>> fresh;
        while (batches_.size() + fresh.size() < batches_max && planned_ < places_) {
            fresh.push_back(plan_batch());
        }
        const std::scoped_lock locked(mutex_);
        std::ranges::move(fresh, std::back_inserter(batches_));
        if (batches_.size() > 1 && threads_.size() < threads_from_start()) add_thread();
        work_.notify_all();
    }

    std::unique_ptr<batch> plan_batch() {
        auto planned = std::make_unique<batch>();
        do {
            if (!ahead_of_plan_) ahead_of_plan_ = plan_(planned_);
            const std::size_t bytes = ahead_of_plan_->bytes;
            if (planned->size > 0 && planned->size + bytes > batch_bytes_max) break;
            planned->pieces.push_back({*ahead_of_plan_, planned->size, false});
            planned->size += bytes;
            ahead_of_plan_.reset();
            ++planned_;
        } while (planned_ < places_ && planned->pieces.size() < batch_places_);
        planned->bytes = std::make_unique_for_overwrite<std::byte[]>(planned->size);
        return planned;
    }

    static std::size_t threads_from_start() {
        return std::max<std::size_t>(std::thread::hardware_concurrency(), 2) - 1;
    }

    /// REQUIRES: the mutex is held.
    void add_thread() {
        if (threads_.size() == threads_max || ending_) return;
        try {
            threads_.emplace_back([this] { work(); });
        } catch (const std::system_error&) {
            // The machine has no more; those that run, and the caller's own, do it all.
        }
    }

    batch* untaken() {
        const auto found =
            std::ranges::find_if(batches_, [](const auto& one) { return !one->taken; });
        return found == batches_.end() ? nullptr : found->get();
    }

    void work() {
        std::unique_lock locked(mutex_);
        while (true) {
            batch* mine = nullptr;
            work_.wait(locked, [&] { return ending_ || (mine = untaken()) != nullptr; });
            if (ending_) return;
            mine->taken = true;
            locked.unlock();
            fill(*mine);
            locked.lock();
            mine->done = true;
            done_.notify_one();
        }
    }

    void fill(batch& into) {
        using clock = std::chrono::steady_clock;
        auto before = clock::now();
        for (auto& piece : into.pieces) {
            if (ending_) return;
            read_piece(*from_, into, piece);
            const auto after = clock::now();
            if (after - before > slow_read) {
                const std::scoped_lock locked(mutex_);
                if (untaken()) add_thread();
            }
            before = after;
        }
    }

    const std::shared_ptr<file> from_;
    const std::size_t places_;
    const std::function<place(std::size_t)> plan_;
    const std::size_t batch_places_;

    // Of the caller's thread alone.
    std::size_t planned_ = 0;
    std::optional<place> ahead_of_plan_;
    std::unique_ptr<batch> current_;
    std::size_t piece_ = 0;

    std::mutex mutex_;  ///< guards what follows; a taken batch is its thread's alone until done
    std::condition_variable work_;
    std::condition_variable done_;
    std::deque<std::unique_ptr<batch>> batches_;
    std::vector<std::thread> threads_;
    std::atomic<bool> ending_ = false;
};

read_ahead::read_ahead(std::shared_ptr<file> from, std::size_t places,
                       std::function<place(std::size_t)> plan)
    : readers_(std::make_unique<readers>(std::move(from), places, std::move(plan))) {}

read_ahead::~read_ahead() = default;

std::optional<std::span<const std::byte>> read_ahead::next() {
    return readers_->next();
}

}  // namespace vantora
