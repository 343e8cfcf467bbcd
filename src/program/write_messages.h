#pragma once

#include "store/instance_lock.h"
#include "store/write_plan.h"
#include "ui/desk.h"

namespace vantora {

// What the user is told of writes that can't be made, or weren't made whole.

/// Whether writing may begin. If another station compacts the archive, or something stands in the
/// way of what is planned, a message says so, and which file; nothing is to be written then, and
/// what was typed stays.
bool may_write(ui::desk& desk, const instance_lock& lock);
bool may_write(ui::desk& desk, const write_plan& plan);

/// Names the files that refused a write or a flush on the way; nothing if all went well.
void tell_faults(ui::desk& desk, const write_faults& faults);

/// A compaction stopped short: which files refused.
void tell_not_compacted(ui::desk& desk, const std::string& files);

}  // namespace vantora
