#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <filesystem>

namespace vantora::bench {

/// Takes the files of a folder, and of those in it, out of the system's memory: the next read of
/// each place waits for the disk.
inline void drop_from_memory(const std::filesystem::path& folder) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file()) continue;
        const int descriptor = ::open(entry.path().c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0) continue;
        ::fdatasync(descriptor);
        ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
        ::close(descriptor);
    }
}

}  // namespace vantora::bench
