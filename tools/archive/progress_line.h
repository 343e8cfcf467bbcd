#pragma once

#include <chrono>
#include <ostream>
#include <string>

namespace vantora::archive {

/// From one second on, a line that is written over until the end.
class progress_line {
 public:
    /// Null: nobody looks.
    explicit progress_line(std::ostream* out) : out_(out) {}
    progress_line(const progress_line&) = delete;
    progress_line& operator=(const progress_line&) = delete;
    ~progress_line() {
        if (shown_) *out_ << "\r\x1B[K" << std::flush;
    }

    /// So much of so much; all 0: at the beginning.
    void show(const std::string& what, std::int64_t done, std::int64_t all) {
        using namespace std::chrono_literals;
        const auto now = clock::now();
        if (!out_ || now < next_) return;
        next_ = now + 200ms;
        shown_ = true;
        *out_ << "\r\x1B[K" << what;
        if (all > 0) *out_ << " " << done * 100 / all << " %";
        *out_ << std::flush;
    }

 private:
    using clock = std::chrono::steady_clock;
    std::ostream* out_;
    clock::time_point next_ = clock::now() + std::chrono::seconds(1);
    bool shown_ = false;
};

}  // namespace vantora::archive
