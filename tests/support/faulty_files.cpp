#include "support/faulty_files.h"

#include <algorithm>
#include <thread>

namespace vantora::test {

class faulty_file final : public file {
 public:
    faulty_file(faulty_files& faults, std::string path, std::unique_ptr<file> real)
        : faults_(faults), path_(std::move(path)), real_(std::move(real)) {}

    std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) override {
        if (faults_.refuses_read(path_, offset, into.size())) {
            // A disk that gives up has often delivered a part.
            std::ranges::fill(into.first((into.size() + 1) / 2), std::byte{0xEE});
            return {};
        }
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
        return !faults_.flush_fails || !faults_.flush_fails(path_);
    }
    [[nodiscard]] std::optional<std::int64_t> length() const override { return real_->length(); }
    [[nodiscard]] std::optional<std::int64_t> last_write() const override {
        return real_->last_write();
    }
    [[nodiscard]] bool writable() const override {
        return real_->writable() && (!faults_.read_only || !faults_.read_only(path_));
    }
    bool reserve(std::int64_t offset, std::int64_t size) override {
        if (faults_.room_lacks && faults_.room_lacks(path_, offset + size)) return false;
        return real_->reserve(offset, size);
    }
    bool put_in_place() override { return !faults_.refuses_open(path_) && real_->put_in_place(); }
    file_place follow() override { return real_->follow(); }
    lock_answer try_lock() override { return faults_.lock_answers.value_or(real_->try_lock()); }
    void unlock() override { real_->unlock(); }
    void keep_exact(bool on) override { real_->keep_exact(on); }
    [[nodiscard]] std::optional<std::string> locked_by() const override {
        return real_->locked_by();
    }

 private:
    faulty_files& faults_;
    std::string path_;
    std::unique_ptr<file> real_;
};

bool faulty_files::refuses_read(const std::string& path, std::int64_t offset, std::size_t size) {
    if (read_takes.count() > 0) std::this_thread::sleep_for(read_takes);
    const std::scoped_lock one_at_a_time(counting_);
    ++reads;
    return read_fails && read_fails(path, offset, size);
}

void faulty_files::fail_at(std::size_t n, bool for_good, bool& failed) {
    failed = false;
    const auto counted = std::make_shared<std::size_t>(0);
    const auto fails = [=, &failed](auto&&...) {
        const std::size_t now = (*counted)++;
        const bool hit = now == n || (for_good && now > n);
        failed |= hit;
        return hit;
    };
    read_fails = fails;
    write_fails = fails;
    flush_fails = fails;
    open_fails = fails;
}

std::unique_ptr<file> faulty_files::opened(std::string_view path, std::unique_ptr<file> real) {
    if (!real) return nullptr;
    return std::make_unique<faulty_file>(*this, std::string(path), std::move(real));
}

std::unique_ptr<file> faulty_files::open_records(std::string_view path) {
    return refuses_open(path) ? nullptr : opened(path, real_.open_records(path));
}

std::optional<std::string> faulty_files::read_whole(std::string_view path) {
    if (refuses_read(std::string(path), 0, 0)) return {};
    return real_.read_whole(path);
}

std::unique_ptr<file> faulty_files::create(std::string_view path) {
    return refuses_open(path) ? nullptr : opened(path, real_.create(path));
}

std::unique_ptr<file> faulty_files::create_instead(std::string_view path) {
    return refuses_open(path) ? nullptr : opened(path, real_.create_instead(path));
}

std::unique_ptr<file> faulty_files::create_aside(std::string_view path) {
    return refuses_open(path) ? nullptr : opened(path, real_.create_aside(path));
}

}  // namespace vantora::test
