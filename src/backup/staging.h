#pragma once

#include <filesystem>

namespace vantora {

/// A new folder beside a target, in which it is made before it takes its place. What is still in it
/// at the end goes with it.
class staging {
 public:
    /// `folder()` is empty if none could be made.
    explicit staging(const std::filesystem::path& target);
    staging(const staging&) = delete;
    staging& operator=(const staging&) = delete;
    ~staging();

    [[nodiscard]] const std::filesystem::path& folder() const { return folder_; }

 private:
    std::filesystem::path folder_;
};

/// Puts what was made in the place of what stands there, in one step where the file system can,
/// else in two, the second of which is taken back if it fails. What stood there is at `former`
/// afterwards. False: all is as it was.
bool swap_in(const std::filesystem::path& made, const std::filesystem::path& place,
             const std::filesystem::path& former);

/// Rights and group of the folder `like`, for one that was made to take its place, and of what is
/// in it, for namesakes; what has none gets the folder's. Where the disk refuses, things stay as
/// made.
void take_rights(const std::filesystem::path& like, const std::filesystem::path& made);

/// Leaves a folder open to nobody to whom `like` is closed.
void close_as(const std::filesystem::path& like, const std::filesystem::path& folder);

}  // namespace vantora
