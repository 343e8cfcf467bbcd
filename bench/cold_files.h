#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <thread>
#include <vector>

namespace vantora::bench {

/// Takes files out of the system's memory: the next read of each place waits for the disk. Then
/// lets the disk rest: one that is given only so many bytes a second would make the side of a
/// comparison that comes second pay for the first.
inline void drop_from_memory(const std::vector<std::filesystem::path>& files) {
    constexpr std::uintmax_t bytes_in_a_microsecond = 1000;
    std::uintmax_t dropped = 0;
    for (const auto& one : files) {
        const int descriptor = ::open(one.c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0) continue;
        dropped += std::filesystem::file_size(one);
        ::fdatasync(descriptor);
        ::posix_fadvise(descriptor, 0, 0, POSIX_FADV_DONTNEED);
        ::close(descriptor);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(dropped / bytes_in_a_microsecond));
}

/// Those of a folder, and of those in it.
inline void drop_from_memory(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (entry.is_regular_file()) files.push_back(entry.path());
    }
    drop_from_memory(files);
}

}  // namespace vantora::bench
