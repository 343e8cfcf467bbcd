#include "store/archives.h"

#include "store/suite_paths.h"

namespace vantora {

namespace {

/// visit(channel, extension) for each file, the counters first.
template <class Visit>
void for_each_file(archivi& files, Visit visit) {
    visit(files.tot, "tot");
    visit(files.cli, "cli");
    visit(files.src, "src");
    visit(files.art, "art");
    visit(files.sra, "sra");
    visit(files.orc, "orc");
    visit(files.srb, "srb");
    visit(files.mag, "mag");
    visit(files.bol, "bol");
    visit(files.prx, "prx");
    visit(files.prv, "prv");
    visit(files.art_blocchi, "art");
}

}  // namespace

void apri_archivi(archivi& files, file_port& port, int numero_azienda) {
    for_each_file(files, [&]<class Record>(channel<Record>& one, const char* extension) {
        one = channel<Record>(port.open_records(company_path(numero_azienda, extension)),
                              std::string("vantora.") + extension);
    });
}

void follow_archives(archivi& files) {
    for_each_file(files, [](auto& one, auto) { one.follow(); });
}

void keep_archives_exact(archivi& files, bool on) {
    for_each_file(files, [&](auto& one, auto) {
        // The counters' file bears the lock itself; the articles' two channels need one lock only.
        const auto& its = one.shared_file();
        const bool apart = its == files.tot.shared_file() || its == files.art_blocchi.shared_file();
        if (its && !apart) its->keep_exact(on);
    });
}

void chiudi_archivi(archivi& files) {
    files = archivi{};
}

}  // namespace vantora
