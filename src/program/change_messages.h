#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/archive_change.h"
#include "ui/desk.h"

namespace vantora {

// What the user is told of changes of the archive that can't be made, or weren't made whole.

/// True if the change is stored; a message then names the files that refused on the way, if there
/// are any. False if nothing is: a message says what stood in the way and what is `undone`, in
/// UTF-8, and what was typed is to stay. Nothing is said to a user who didn't want to wait, or
/// who is to be asked something.
bool was_stored(ui::desk& desk, const change_outcome& outcome,
                std::string_view undone = "nulla è stato salvato");

/// "righe 2, 5, 7 ...": up to three rows of an order, for what is told of them.
std::string named_rows(const std::vector<int>& rows);

/// A compaction that began stopped short.
void tell_not_compacted(ui::desk& desk, const change_outcome& outcome);

/// These orders stayed in a compacted archive, since nobody could tell whether they may go.
void tell_kept(ui::desk& desk, const std::vector<std::string>& orders);

/// Shows the user that another station is at work, and asks now and then whether to wait on.
void watch_stations(archivi& files, ui::desk& desk);

}  // namespace vantora
