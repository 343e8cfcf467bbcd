// How long the archive tool takes over an archive filled to its limits: a check, against reading
// what it reads bare from end to end, and the exports, against reading all files bare, the tens of
// thousands beside the documents too.

#include <fstream>
#include <iostream>

#include "archive/check.h"
#include "archive/export_csv.h"
#include "archive/export_sqlite.h"
#include "bench/cold_files.h"
#include "bench/measure.h"
#include "demo/demo_company.h"
#include "support/scratch_folder.h"

namespace vantora::bench {
namespace {

std::vector<std::filesystem::path> files_in(const std::filesystem::path& place) {
    std::vector<std::filesystem::path> files;
    for (const auto& one : std::filesystem::directory_iterator(place)) files.push_back(one.path());
    return files;
}

void read_bare(const std::vector<std::filesystem::path>& files) {
    std::vector<char> bytes(1 << 20);
    for (const auto& one : files) {
        std::ifstream in(one, std::ios::binary);
        in.rdbuf()->pubsetbuf(nullptr, 0);
        while (in.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) continue;
    }
}

int run(int count, int rounds) {
    const test::scratch_folder folder;
    demo::make_company({1, count, count, count}, folder.path());
    archive::company_files company(folder.path(), 1);
    const auto all_files = files_in(company.folder());
    auto files = all_files;
    std::erase_if(files, [](const auto& one) { return one.stem() != "vantora"; });
    std::printf("%d orders, articles and customers\n", count);

    std::size_t found = 0;
    const auto check = [&] { found = check_archive(company).groups().size(); };
    const auto read = [&] { read_bare(files); };
    compare("check", rounds, check, "its files from end to end", read);
    compare("check, from the disk", 3, check, "its files from end to end", read,
            [&] { drop_from_memory(files); });
    if (found > 0) std::printf("%zu kinds of findings\n", found);

    const auto csv = folder.path() / "csv";
    const auto database = folder.path() / "all.sqlite";
    const auto export_csv = [&] {
        archive::csv_folder into(csv, false);
        export_tables(company, into, false, {});
        into.finish();
    };
    const auto export_database = [&] {
        std::filesystem::remove(database);
        archive::sqlite_file into(database);
        export_tables(company, into, false, {});
        into.finish();
    };
    const auto read_all = [&] { read_bare(all_files); };
    compare("export as CSV (below 10 s)", 1, export_csv, "all files from end to end", read_all);
    compare("export as SQLite (below 10 s)", 1, export_database, "all files from end to end",
            read_all);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(60, 1)
                                                      : vantora::bench::run(32767, 7);
}
