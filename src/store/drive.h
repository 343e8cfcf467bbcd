#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "store/file_port.h"

namespace vantora {

/// From now on a write past the size that the system allows a file fails, like one on a full disk,
/// instead of ending the program. For the `main` of every program that writes files.
void take_file_limits_as_errors();

/// The drive of the suite, kept in a folder of this system: "\mirwin\mirwin\x" is
/// ROOT/mirwin/mirwin/x, a drive letter in front is dropped. A component that doesn't exist as
/// it is spelled is looked up without regard to case; what is created takes the given spelling.
class drive final : public file_port {
 public:
    /// What may be done with the files; `reading_only` neither writes nor creates any.
    enum class access { reading_and_writing, reading_only };

    /// REQUIRES: `root` is a folder, or can become one.
    explicit drive(std::filesystem::path root, access to = access::reading_and_writing);

    /// Where a path of the suite lies in this system. ".." and "." never lead out of the drive.
    [[nodiscard]] std::filesystem::path locate(std::string_view path) const override;

    std::unique_ptr<file> open_records(std::string_view path) override;
    std::optional<std::string> read_whole(std::string_view path) override;
    std::optional<std::string> read_head(std::string_view path, std::size_t bytes) override;
    bool exists(std::string_view path) override;
    std::unique_ptr<file> create(std::string_view path) override;
    std::unique_ptr<file> create_instead(std::string_view path) override;
    std::unique_ptr<file> create_aside(std::string_view path) override;
    bool create_folder(std::string_view path) override;

 private:
    std::filesystem::path root_;
    access access_;
};

/// Waits until the names in a folder have reached the disk.
bool flush_folder(const std::filesystem::path& folder);

}  // namespace vantora
