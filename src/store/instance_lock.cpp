#include "store/instance_lock.h"

#include <thread>

namespace vantora {

instance_lock::instance_lock(const archivi& files, kind what, std::chrono::milliseconds limit)
    : file_(files.tot.shared_file()) {
    using clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds pause{5};
    if (!file_) return;
    const auto end = clock::now() + limit;
    auto answer = file_->try_lock(program_lock::counters);
    // The program may end while it is shown, and with it the archives.
    const auto show = answer == lock_answer::busy ? files.station_awaited : nullptr;
    while (answer == lock_answer::busy && clock::now() < end) {
        if (show) show(true);
        std::this_thread::sleep_for(pause);
        answer = file_->try_lock(program_lock::counters);
    }
    if (show) show(false);
    if (answer == lock_answer::held) {
        outcome_ = outcome::held;
        if (what == kind::compaction) file_->try_lock(program_lock::compaction);
    } else if (answer == lock_answer::busy && file_->locked_elsewhere(program_lock::compaction)) {
        outcome_ = outcome::compaction_elsewhere;
    }
}

void instance_lock::release() {
    if (file_ && outcome_ == outcome::held) {
        file_->unlock(program_lock::compaction);
        file_->unlock(program_lock::counters);
    }
    file_ = nullptr;
}

}  // namespace vantora
