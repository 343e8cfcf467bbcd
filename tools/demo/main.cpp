#include <iostream>

#include "command_line/command_line.h"
#include "demo/demo_company.h"
#include "store/drive.h"
#include "store/suite_paths.h"

namespace {

constexpr int made = 0;
constexpr int refused = 1;

namespace fs = std::filesystem;

/// In one step: the older one may be running.
void put(const fs::path& from, const fs::path& to) {
    fs::path unfinished = to;
    unfinished += ".parziale";
    fs::copy_file(from, unfinished, fs::copy_options::overwrite_existing);
    fs::rename(unfinished, to);
}

/// Puts `mirxpdf`, which turns printed documents into PDF files, into the general folder of the
/// suite, in place of an older one, and beside it its settings, all of them comments, unless there
/// are some. Both come from `programs`, the folder of built or installed programs; what isn't there
/// isn't put.
void install_companion(const fs::path& programs, const fs::path& drive) {
    const auto place = [&](std::string_view name) {
        return vantora::drive(drive).locate(std::string(vantora::cartella_generale).append(name));
    };
    if (!fs::exists(programs / "mirxpdf")) return;
    put(programs / "mirxpdf", place("mirxpdf"));
    const fs::path settings = place("mirxpdf.conf");
    fs::path sample = programs / "mirxpdf.conf";
    if (!fs::exists(sample)) sample = programs / "../share/vantora-ordini/mirxpdf.conf";
    if (fs::exists(settings) || !fs::exists(sample)) return;
    put(sample, settings);
    // A password is going to stand in it.
    fs::permissions(settings, fs::perms::owner_read | fs::perms::owner_write);
}

}  // namespace

int main(int argc, char** argv) {
    vantora::take_file_limits_as_errors();
    using namespace vantora::demo;
    demo_request request;
    std::string drive;
    int seed = 1;
    vantora::command_line line(
        "vantora-demo", "Crea un'azienda dimostrativa completa di archivi e moduli di stampa");
    line.text("cartella", drive, "cartella che fa da disco della suite");
    line.require("cartella");
    line.number("azienda", request.numero_azienda, 999, "numero dell'azienda, per esempio 007");
    line.require("azienda");
    line.number("--orders", request.orders, massimo_record, "ordini");
    line.number("--articles", request.articles, massimo_record, "articoli");
    line.number("--customers", request.customers, massimo_record, "clienti");
    line.number("--seed", seed, 999'999'999, "seme dei dati inventati");
    if (const auto code = line.read(argc, argv)) return *code;
    request.seed = static_cast<std::uint64_t>(seed);
    try {
        make_company(request, drive);
        install_companion(std::filesystem::read_symlink("/proc/self/exe").parent_path(), drive);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return refused;
    }
    return made;
}
