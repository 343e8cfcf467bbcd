#pragma once

#include <filesystem>
#include <string>

#include "archive/finding.h"
#include "store/file_port.h"

namespace vantora::archive {

/// The kind of a trial that found nothing wrong.
inline constexpr const char* locks_work = "locks-work";

/// Tries whether the locks that keep stations apart work on the drive of a company: on a small file
/// of its own in the general folder, which is gone afterwards. What it can't know it says.
finding try_locks(file_port& files, int numero_azienda);

/// What it means that one opening of a file got such an answer and a second one, meanwhile, such;
/// `type` and `options` of the file system, empty if they aren't known.
finding judge_locks(lock_answer first, lock_answer second, const std::string& type,
                    const std::string& options);

}  // namespace vantora::archive
