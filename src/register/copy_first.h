#pragma once

#include "program/program.h"
#include "ui/controls.h"

namespace vantora {

/// What the user wants before a compaction, behind which nothing leads back.
enum class copy_first { make, skip, give_up };

/// Asks where the last copy of the company is older than a day; a guard, so a script that wants
/// none skips the copy.
copy_first copy_wanted(program& app);

/// Copies the company, the progress shown in `bar`. False: the user was told why there is no copy,
/// and that the archive stays as it is.
bool copy_made(program& app, ui::progress_bar& bar);

}  // namespace vantora
