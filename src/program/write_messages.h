#pragma once

#include <string_view>

#include "store/write_outcome.h"
#include "ui/desk.h"

namespace vantora {

// What the user is told of writes that can't be made, or weren't made whole.

/// What is undone where nothing was written, in UTF-8.
inline constexpr std::string_view nulla_salvato = "nulla è stato salvato";

/// Whether writing may begin. If another station compacts the archive, a message says so; nothing
/// is to be written then.
bool may_write(ui::desk& desk, const instance_lock& lock);

/// True if `outcome` began; a message then names the files that refused on the way, if there are
/// any. False if nothing was written: a message says what stood in the way and what is `undone`,
/// and what was typed is to stay. Other stations are not to be kept out any more: the message waits
/// for its answer.
bool was_written(ui::desk& desk, const write_outcome& outcome,
                 std::string_view undone = nulla_salvato);

/// A compaction stopped short: which files refused.
void tell_not_compacted(ui::desk& desk, const std::string& files);

}  // namespace vantora
