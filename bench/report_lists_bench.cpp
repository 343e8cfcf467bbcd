// How long the reports take to build their lists on an archive filled to its limits, against
// reading the parts of the order file that they have to look at, bare (customer sheets are to stay
// below 1.4 times that); how much memory a build takes beside its grid; and how long it takes from
// the disk, against reading the file from end to end.

#include <malloc.h>

#include <atomic>
#include <cstdlib>
#include <map>
#include <mutex>
#include <new>

#include "bench/cold_files.h"
#include "bench/full_archive.h"
#include "bench/measure.h"
#include "reports/mirstoa.h"
#include "reports/mirstoe.h"
#include "reports/mirston.h"
#include "reports/mirstos.h"
#include "reports/mirstov.h"
#include "store/suite_paths.h"
#include "support/program_stage.h"

namespace {

std::atomic<std::size_t> bytes_in_use = 0;
std::atomic<std::size_t> bytes_at_most = 0;

}  // namespace

// Not inlined: the compiler would take each pair of new and free for a mistake.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const place = std::malloc(size);
    if (!place) throw std::bad_alloc();
    const std::size_t now = bytes_in_use += ::malloc_usable_size(place);
    std::size_t most = bytes_at_most;
    while (most < now && !bytes_at_most.compare_exchange_weak(most, now)) continue;
    return place;
}

[[gnu::noinline]] void operator delete(void* place) noexcept {
    bytes_in_use -= ::malloc_usable_size(place);
    std::free(place);
}

[[gnu::noinline]] void operator delete(void* place, std::size_t) noexcept {
    operator delete(place);
}

namespace vantora::bench {
namespace {

constexpr std::size_t block_bytes = righe_blocco * sizeof(rec_orc);
constexpr std::int64_t block_length{block_bytes};

/// Notes how much of each block of the order file is read, by whichever thread.
class watched_file final : public file {
 public:
    watched_file(std::unique_ptr<file> real, std::map<std::int64_t, std::size_t>& looked_at)
        : real_(std::move(real)), looked_at_(looked_at) {}

    std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) override {
        {
            const std::scoped_lock one_at_a_time(noting_);
            for (std::size_t at = 0; at < into.size(); at += block_bytes) {
                const auto block = (offset + static_cast<std::int64_t>(at)) / block_length;
                auto& most = looked_at_[block];
                most = std::max(most, std::min(into.size() - at, block_bytes));
            }
        }
        return real_->read(offset, into);
    }
    bool write(std::int64_t, std::span<const std::byte>) override { return false; }
    bool flush() override { return false; }

 private:
    std::unique_ptr<file> real_;
    std::map<std::int64_t, std::size_t>& looked_at_;
    std::mutex noting_;
};

struct lists_bench {
    channel<rec_orc> orders(std::map<std::int64_t, std::size_t>* looked_at) {
        auto real = stage.files.open_records(company_path(1, "orc"));
        if (!looked_at) return channel<rec_orc>(std::move(real));
        return channel<rec_orc>(std::make_shared<watched_file>(std::move(real), *looked_at));
    }

    template <class Form>
    report_screen& show(ui::screen<Form>& place, bool analytic) {
        stage.provide(place);
        place.use().show();
        report_screen& screen = *place;
        if (analytic) screen.Combo2.choose(1);
        screen.text1[1].set_text(std::to_string(count));
        screen.text2[1].set_text("31/12/2099");
        return screen;
    }

    template <class Form>
    void compare_list(ui::screen<Form>& place, bool analytic) {
        report_screen& screen = show(place, analytic);
        std::map<std::int64_t, std::size_t> looked_at;
        stage.app.archives.orc = orders(&looked_at);
        screen.build_list();
        stage.app.archives.orc = orders(nullptr);
        const auto file = stage.app.archives.orc.shared_file();
        std::vector<std::byte> bytes(block_bytes);
        const auto bare = [&] {
            for (const auto& [block, size] : looked_at)
                file->read(block * block_length, std::span(bytes).first(size));
        };
        std::size_t in_all = 0;
        for (const auto& [block, size] : looked_at) in_all += size;
        const std::string what = std::string(screen.name()) + (analytic ? ", analytic" : "") +
                                 ", " + std::to_string(in_all >> 20) + " MB of " +
                                 std::to_string(looked_at.size()) + " blocks";
        compare(
            what.c_str(), rounds, [&] { screen.build_list(); }, "their bare reads", bare);
        bytes_at_most = bytes_in_use.load();
        screen.build_list();
        std::printf("%-34s %9.1f MB beside the list of %d rows\n", "",
                    double(bytes_at_most - bytes_in_use) / (1 << 20), screen.elenco.rows() - 1);
    }

    template <class Form>
    void compare_cold(ui::screen<Form>& place, bool analytic = false) {
        report_screen& screen = show(place, analytic);
        const auto file = stage.app.archives.orc.shared_file();
        std::vector<std::byte> bytes(1 << 20);
        const auto whole_file = [&] {
            for (std::int64_t at = 0; file->read(at, bytes).value_or(0) > 0; at += 1 << 20)
                continue;
        };
        const std::string what = std::string(screen.name()) + ", from the disk";
        compare(
            what.c_str(), 3, [&] { screen.build_list(); }, "the order file from end to end",
            whole_file, [&] { drop_from_memory(stage.folder.path()); });
    }

    int count;
    int rounds;
    test::program_stage<> stage{};
};

int run(int count, int rounds) {
    for (const int lines : {1, 4, 9}) {
        lists_bench bench{count, rounds};
        program& app = bench.stage.app;
        apri_archivi(app.archives, bench.stage.files, 1);
        fill_archive(app.archives,
                     {.orders = count, .lines = lines, .customers = count, .articles = count});
        std::printf("%d orders of %d lines, articles and customers\n", count, lines);
        bench.compare_list(app.mirston, false);
        bench.compare_list(app.mirstoe, false);
        if (lines > 4) continue;
        bench.compare_list(app.mirstoe, true);
        bench.compare_list(app.mirstos, false);
        bench.compare_list(app.mirstos, true);
        bench.compare_list(app.mirstov, false);
        bench.compare_list(app.mirstoa, false);
        if (lines > 1) continue;
        bench.compare_cold(app.mirstoe, true);
        bench.compare_cold(app.mirstov);
        bench.compare_cold(app.mirstoa);
        bench.compare_cold(app.mirston);
    }
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(200, 3)
                                                      : vantora::bench::run(32767, 7);
}
