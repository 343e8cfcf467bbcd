#include "demo/companion.h"

#include "demo/output.h"
#include "store/drive.h"
#include "store/suite_paths.h"

namespace vantora::demo {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view program = "mirxpdf";
constexpr std::string_view settings = "mirxpdf.conf";
constexpr std::string_view installed_settings = "../share/vantora-ordini/mirxpdf.conf";

/// In one step: the older one may be running.
void put(const fs::path& from, const fs::path& to) {
    fs::path unfinished = to;
    unfinished += ".parziale";
    fs::copy_file(from, unfinished, fs::copy_options::overwrite_existing);
    fs::rename(unfinished, to);
}

}  // namespace

void install_companion(const fs::path& programs, const fs::path& drive_root) {
    const drive suite(drive_root);
    const auto place = [&](std::string_view name) {
        return suite.locate(std::string(cartella_generale).append(name));
    };
    try {
        if (!fs::exists(programs / program)) return;
        put(programs / program, place(program));
        fs::path sample = programs / settings;
        if (!fs::exists(sample)) sample = programs / installed_settings;
        if (fs::exists(place(settings)) || !fs::exists(sample)) return;
        put(sample, place(settings));
        // A password is going to stand in it.
        fs::permissions(place(settings), fs::perms::owner_read | fs::perms::owner_write);
    } catch (const fs::filesystem_error& refused) {
        throw demo_error(refused.what());
    }
}

}  // namespace vantora::demo
