#pragma once

#include <chrono>
#include <memory>

#include "store/archives.h"

namespace vantora {

/// Keeps apart the instances of this program that work on one company, for as long as it lives:
/// while one of them goes from reading a counter to writing it, or moves the blocks of orders. The
/// lock lies on the counters file. It holds nobody else up, neither a reader nor another program,
/// and falls with the instance that has it, however that one ends.
///
/// One at a time in an instance: they don't nest.
class instance_lock {
 public:
    /// For work on counters and records: a save, an edit, a deletion, a booking, an unloading.
    enum class kind { records, compaction };

    enum class outcome {
        held,
        compaction_elsewhere,  ///< another station compacts, and did so all the time: give up
        without,  ///< no such locks here, or one that was never given back: go on as if alone
    };

    static constexpr std::chrono::milliseconds patience{10'000};

    /// Waits for the lock as long as `limit`, which the user is shown. REQUIRES: counters are read
    /// only after that.
    instance_lock(const archivi& files, kind what, std::chrono::milliseconds limit = patience);
    instance_lock(const instance_lock&) = delete;
    instance_lock& operator=(const instance_lock&) = delete;
    ~instance_lock() { release(); }

    /// False if another station compacts the archive: nothing may be written now.
    [[nodiscard]] bool may_go_on() const { return outcome_ != outcome::compaction_elsewhere; }
    [[nodiscard]] outcome result() const { return outcome_; }

    /// Gives the lock up before the end of the scope: nobody waits while a question is open.
    void release();

 private:
    std::shared_ptr<file> file_;  ///< null once released
    outcome outcome_ = outcome::without;
};

}  // namespace vantora
