#include "archive/lock_trial.h"

#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "archive/words.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

namespace fs = std::filesystem;

constexpr const char* one_at_a_time =
    "Salvare da una postazione alla volta, finché la cartella non è collegata come dice il "
    "manuale («Cartelle di rete»).";

finding about_locks(const char* kind, std::string what, const char* advice = one_at_a_time) {
    return {gravity::note, kind, "blocchi fra le postazioni", std::move(what), advice};
}

finding not_tried(std::string why) {
    return about_locks("locks-not-tried", "non si è potuto provare se funzionano: " + why,
                       "Provare da una postazione che può scrivere in questo disco.");
}

struct mount {
    std::string type;     ///< "ext4"
    std::string options;  ///< "rw,nobrl"
};

/// Both empty where the system doesn't tell.
mount mount_of(dev_t device) {
    const std::string wanted = std::to_string(major(device)) + ":" + std::to_string(minor(device));
    std::ifstream table("/proc/self/mountinfo");
    mount found;
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::string id, parent, number, word;
        words >> id >> parent >> number;
        if (number != wanted) continue;
        while (words >> word && word != "-") continue;
        words >> found.type >> word >> found.options;
    }
    return found;
}

bool starts_with_any(const std::string& text, std::initializer_list<const char*> heads) {
    return std::ranges::any_of(heads, [&text](const char* one) { return text.starts_with(one); });
}

/// The first of the options that is one of those wanted; empty if none is.
std::string option_among(const std::string& options, std::initializer_list<const char*> wanted) {
    std::istringstream all(options);
    for (std::string one; std::getline(all, one, ',');) {
        if (std::ranges::find(wanted, one) != wanted.end()) return one;
    }
    return {};
}

/// A file that goes with the object, whatever happens.
struct passing_file {
    fs::path place;
    ~passing_file() {
        std::error_code ignored;
        fs::remove(place, ignored);
    }
};

}  // namespace

finding judge_locks(lock_answer first, lock_answer second, const std::string& type,
                    const std::string& options) {
    if (first == lock_answer::unknown) {
        return about_locks("locks-missing",
                           "questo disco non li conosce: due postazioni che salvano insieme "
                           "possono prendere lo stesso posto");
    }
    if (first != lock_answer::held) return not_tried("il disco adesso non li concede");
    if (second != lock_answer::busy) {
        return about_locks("locks-useless",
                           "questo disco li concede a due insieme: due postazioni che salvano "
                           "insieme possono prendere lo stesso posto");
    }
    const auto local =
        option_among(options, {"nobrl", "nolock", "local_lock=all", "local_lock=posix"});
    if (!local.empty()) {
        return about_locks("locks-local", "restano su questa macchina (" + type + ", " + local +
                                              "): le altre non li vedono");
    }
    if (starts_with_any(type, {"ext", "xfs", "btrfs", "tmpfs", "vfat", "exfat", "ntfs", "f2fs"})) {
        return about_locks(locks_work,
                           "I blocchi fra le postazioni funzionano (disco di questa macchina, " +
                               type +
                               "; se è anche una cartella SMB, vedere «Cartelle di rete» nel "
                               "manuale).",
                           "");
    }
    return about_locks(locks_work,
                       "I blocchi funzionano fra i programmi di questa macchina" +
                           in_brackets(type) +
                           ". Che le altre macchine li vedano non si può sapere da una sola: il "
                           "manuale, in «Cartelle di rete», dice come provare da due.",
                       "");
}

finding try_locks(file_port& files, int numero_azienda) {
    struct stat company {};
    struct stat general {};
    const fs::path folder = files.locate(cartella_generale);
    if (::stat(files.locate(folder_of_company(numero_azienda)).c_str(), &company) != 0 ||
        ::stat(folder.c_str(), &general) != 0 || company.st_dev != general.st_dev) {
        return not_tried("la ditta sta su un disco diverso dalla cartella generale");
    }
    char host[256] = "";
    ::gethostname(host, sizeof host - 1);
    const std::string path =
        std::string(cartella_generale) + "prova-blocchi-" + host + "-" + std::to_string(::getpid());
    const bool made = files.create(path) != nullptr;
    const passing_file probe{made ? files.locate(path) : fs::path()};
    const auto one = made ? files.open_records(path) : nullptr;
    const auto other = made ? files.open_records(path) : nullptr;
    if (!one || !other) return not_tried("in " + words_of_path(folder) + " non si può scrivere");
    const lock_answer first = one->try_lock();
    const lock_answer second = other->try_lock();
    const mount where = mount_of(company.st_dev);
    return judge_locks(first, second, where.type, where.options);
}

}  // namespace vantora::archive
