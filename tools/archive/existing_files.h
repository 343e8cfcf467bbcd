#pragma once

#include "store/file_port.h"

namespace vantora::archive {

/// Files that are there: opening one that isn't creates none.
class existing_files final : public file_port {
 public:
    explicit existing_files(file_port& all) : all_(all) {}

    std::unique_ptr<file> open_records(std::string_view path) override {
        return all_.exists(path) ? all_.open_records(path) : nullptr;
    }
    std::optional<std::string> read_whole(std::string_view path) override {
        return all_.read_whole(path);
    }
    std::optional<std::string> read_head(std::string_view path, std::size_t bytes) override {
        return all_.read_head(path, bytes);
    }
    bool exists(std::string_view path) override { return all_.exists(path); }
    std::unique_ptr<file> create(std::string_view) override { return nullptr; }
    std::unique_ptr<file> create_aside(std::string_view path) override {
        return all_.create_aside(path);
    }
    bool create_folder(std::string_view) override { return false; }
    [[nodiscard]] std::filesystem::path locate(std::string_view path) const override {
        return all_.locate(path);
    }

 private:
    file_port& all_;
};

}  // namespace vantora::archive
