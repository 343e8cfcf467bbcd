#pragma once

#include <string>

#include "store/instance_lock.h"
#include "store/write_plan.h"

namespace vantora {

/// What came of a save, an edit, a deletion or another change of records: whether it began at all,
/// and what refused on the way.
///
///     const instance_lock alone(files, instance_lock::kind::records);
///     write_plan plan;
///     ...
///     write_outcome outcome(alone, plan);
///     if (!outcome.begun()) return outcome;
///     outcome.faults.note(files.orc.write(...), files.orc);
class write_outcome {
 public:
    /// Nothing stands in the way.
    write_outcome() = default;
    write_outcome(const instance_lock& lock, const write_plan& plan)
        : obstacle_(plan.obstacle()), compaction_elsewhere_(!lock.may_go_on()) {}

    /// False: nothing was written, and nothing is to be written.
    [[nodiscard]] bool begun() const {
        return !compaction_elsewhere_ && !order_moved_ && obstacle_.empty();
    }
    [[nodiscard]] bool compaction_elsewhere() const { return compaction_elsewhere_; }
    /// Another station's compaction has put another order into a block that was to be changed.
    [[nodiscard]] bool order_moved() const { return order_moved_; }
    void give_up_moved_order() { order_moved_ = true; }
    /// The file that stood in the way; empty if there was none.
    [[nodiscard]] const std::string& obstacle() const { return obstacle_; }

    write_faults faults;

 private:
    std::string obstacle_;
    bool compaction_elsewhere_ = false;
    bool order_moved_ = false;
};

}  // namespace vantora
