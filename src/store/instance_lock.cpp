#include "store/instance_lock.h"

#include <thread>

namespace vantora {

instance_lock::instance_lock(const channel<rec_tot>& counters, kind what,
                             std::chrono::milliseconds limit)
    : file_(counters.shared_file()) {
    using clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds pause{5};
    if (!file_) return;
    const auto end = clock::now() + limit;
    auto answer = file_->try_lock(program_lock::counters);
    while (answer == lock_answer::busy && clock::now() < end) {
        std::this_thread::sleep_for(pause);
        answer = file_->try_lock(program_lock::counters);
    }
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
