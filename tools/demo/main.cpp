#include <CLI/CLI.hpp>
#include <iostream>

#include "demo/demo_company.h"
#include "store/drive.h"
#include "store/suite_paths.h"

namespace {

constexpr int made = 0;
constexpr int refused = 1;
constexpr int wrong_options = 2;

/// Refuses what isn't a whole number from `low` to `high`.
CLI::Validator whole_number(long long low, long long high) {
    const std::string range = std::to_string(low) + " - " + std::to_string(high);
    return {[=](const std::string& text) -> std::string {
                long long value = 0;
                const bool plain = !text.empty() && text.size() < 10 &&
                                   text.find_first_not_of("0123456789") == std::string::npos;
                if (plain) value = std::stoll(text);
                if (plain && value >= low && value <= high) return {};
                return "\"" + text + "\" non è un numero intero tra " + std::to_string(low) +
                       " e " + std::to_string(high);
            },
            range};
}

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
    std::string company;
    CLI::App app("Crea un'azienda dimostrativa completa di archivi e moduli di stampa");
    app.set_version_flag("--version", VANTORA_VERSION)->description("Versione");
    app.add_option("cartella", drive, "Cartella che fa da disco della suite")->required();
    app.add_option("azienda", company, "Numero dell'azienda, per esempio 007")
        ->required()
        ->check(whole_number(0, 999));
    const CLI::Validator count = whole_number(0, massimo_record);
    app.add_option("--orders", request.orders, "Ordini")->check(count)->capture_default_str();
    app.add_option("--articles", request.articles, "Articoli")->check(count)->capture_default_str();
    app.add_option("--customers", request.customers, "Clienti")
        ->check(count)
        ->capture_default_str();
    app.add_option("--seed", request.seed, "Seme dei dati inventati")->capture_default_str();
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? made : wrong_options;
    }
    request.numero_azienda = std::stoi(company);
    try {
        make_company(request, drive);
        install_companion(std::filesystem::read_symlink("/proc/self/exe").parent_path(), drive);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return refused;
    }
    return made;
}
