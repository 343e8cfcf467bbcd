#include "support/faulty_files.h"

namespace vantora::test {

namespace {

class faulty_file final : public file {
 public:
    faulty_file(faulty_files& faults, std::string path, std::unique_ptr<file> real)
        : faults_(faults), path_(std::move(path)), real_(std::move(real)) {}

    std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) override {
        ++faults_.reads;
        if (faults_.read_fails && faults_.read_fails(path_, offset, into.size())) return {};
        return real_->read(offset, into);
    }
    bool write(std::int64_t offset, std::span<const std::byte> bytes) override {
        if (faults_.write_fails && faults_.write_fails(path_, offset)) return false;
        if (faults_.writes >= faults_.writes_before_crash) throw crash{};
        ++faults_.writes;
        faults_.events.push_back({path_, offset, bytes.size(), false});
        return real_->write(offset, bytes);
    }
    bool flush() override {
        // The disk itself is no part of a test, and slow.
        faults_.events.push_back({path_, 0, 0, true});
        return true;
    }

 private:
    faulty_files& faults_;
    std::string path_;
    std::unique_ptr<file> real_;
};

}  // namespace

std::unique_ptr<file> faulty_files::open_records(std::string_view path) {
    auto real = real_.open_records(path);
    if (!real) return nullptr;
    return std::make_unique<faulty_file>(*this, std::string(path), std::move(real));
}

std::unique_ptr<file> faulty_files::create(std::string_view path) {
    auto real = real_.create(path);
    if (!real) return nullptr;
    return std::make_unique<faulty_file>(*this, std::string(path), std::move(real));
}

}  // namespace vantora::test
