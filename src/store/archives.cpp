#include "store/archives.h"

#include "store/suite_paths.h"

namespace vantora {

namespace {

template <class Record>
void open(channel<Record>& into, file_port& port, int numero_azienda, const char* extension) {
    into = channel<Record>(port.open_records(company_path(numero_azienda, extension)),
                           std::string("vantora.") + extension);
}

}  // namespace

void apri_archivi(archivi& files, file_port& port, int numero_azienda) {
    open(files.tot, port, numero_azienda, "tot");
    open(files.cli, port, numero_azienda, "cli");
    open(files.src, port, numero_azienda, "src");
    open(files.art, port, numero_azienda, "art");
    open(files.sra, port, numero_azienda, "sra");
    open(files.orc, port, numero_azienda, "orc");
    open(files.srb, port, numero_azienda, "srb");
    open(files.mag, port, numero_azienda, "mag");
    open(files.bol, port, numero_azienda, "bol");
    open(files.prx, port, numero_azienda, "prx");
    open(files.prv, port, numero_azienda, "prv");
    open(files.art_blocchi, port, numero_azienda, "art");
}

void follow_archives(archivi& files) {
    const auto follow = [](auto&... all) { (all.follow(), ...); };
    follow(files.tot, files.cli, files.src, files.art, files.sra, files.orc, files.srb, files.mag,
           files.bol, files.prx, files.prv, files.art_blocchi);
}

void keep_archives_exact(archivi& files, bool on) {
    const auto keep = [on](const auto&... all) {
        ((all.shared_file() ? all.shared_file()->keep_exact(on) : void()), ...);
    };
    keep(files.cli, files.src, files.art, files.sra, files.orc, files.srb, files.mag, files.bol,
         files.prx, files.prv);
}

void chiudi_archivi(archivi& files) {
    files = archivi{};
}

}  // namespace vantora
