// Compaction of an archive in which nearly every block moves, against copying the same bytes
// within a file by plain block reads and writes.

#include <vector>

#include "bench/measure.h"
#include "register/compattazione.h"
#include "store/drive.h"
#include "support/scratch_folder.h"

namespace vantora::bench {
namespace {

constexpr std::size_t block_bytes = sizeof(rec_orc) * righe_blocco;

void write_archive(archivi& files, int orders) {
    std::vector<rec_orc> block(righe_blocco);
    for (int i = 1; i <= orders; ++i) {
        for (auto& row : block) row.annullato = static_cast<std::int16_t>(i == 1 ? 1 : 0);
        files.orc.write_block(block_record(i, 1), block);
    }
    files.orc.flush();
}

int run(int orders, int rounds) {
    test::scratch_folder folder;
    std::filesystem::create_directories(folder.path() / "mirwin/mirwin/miraz0.001");
    drive port(folder.path());
    archivi files;
    apri_archivi(files, port, 1);
    write_archive(files, orders);
    const auto plain = port.open_records("\\plain");
    std::vector<std::byte> bytes(block_bytes);
    for (int i = 0; i < orders; ++i)
        plain->write(i * static_cast<std::int64_t>(block_bytes), bytes);
    plain->flush();
    std::printf("%d blocks of %zu bytes\n", orders, block_bytes);

    const auto compact = [&] {
        // The first block is the deleted one again; it alone is restored.
        std::vector<rec_orc> block(righe_blocco);
        for (auto& row : block) row.annullato = std::int16_t{1};
        files.orc.write_block(1, block);
        rec_tot counter{};
        counter.quanti = static_cast<std::int16_t>(orders);
        files.tot.write(contatori::ordini, counter);
        compatta_archivio(files, false, [](int, int) {});
    };
    const auto copy = [&] {
        plain->write(0, bytes);
        for (int i = 1; i < orders; ++i) {
            const auto offset = i * static_cast<std::int64_t>(block_bytes);
            plain->read(offset, bytes);
            plain->write(offset - static_cast<std::int64_t>(block_bytes), bytes);
        }
        plain->flush();
    };
    compare("compaction", rounds, compact, "plain block reads and writes", copy);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(20, 3)
                                                      : vantora::bench::run(4000, 7);
}
