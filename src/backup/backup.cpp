#include "backup/backup.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <sstream>

#include "backup/staging.h"
#include "store/archive_change.h"
#include "store/archives.h"
#include "store/suite_paths.h"
#include "store/suite_table.h"
#include "text/code_page.h"

namespace vantora {

namespace fs = std::filesystem;

namespace {

constexpr const char* title = "VANTORA COPIA 1";

copy_outcome failed(std::string why) {
    copy_outcome outcome;
    outcome.fault = std::move(why);
    return outcome;
}

std::string words_of(const fs::filesystem_error& problem) {
    return from_utf8(problem.path1().string() + ": " + problem.code().message());
}

std::string list_of(const std::vector<copied_file>& files) {
    std::string text = std::string(title) + "\n";
    for (const copied_file& one : files) {
        text += std::to_string(one.mark) + " " + std::to_string(one.size) + " " + one.path + "\n";
    }
    return text + "FINE\n";
}

std::optional<std::vector<copied_file>> read_list(const std::string& text) {
    std::istringstream in(text);
    std::string line;
    if (!std::getline(in, line) || line != title) return {};
    std::vector<copied_file> files;
    while (std::getline(in, line) && line != "FINE") {
        copied_file one;
        std::istringstream fields(line);
        if (!(fields >> one.mark >> one.size) || fields.get() != ' ') return {};
        std::getline(fields, one.path);
        if (one.path.empty() || one.path.find("..") != std::string::npos) return {};
        files.push_back(std::move(one));
    }
    if (line != "FINE") return {};
    return files;
}

/// Makes all folders above a file.
bool make_folders(file_port& to, const std::string& target) {
    for (std::size_t at = target.find('/'); at != std::string::npos;
         at = target.find('/', at + 1)) {
        if (!to.create_folder(drive_path(target.substr(0, at)))) return false;
    }
    return true;
}

/// Copies everything into `into` of the drive `to`. A fault names the file.
std::string copy_all(file_port& from, const std::vector<listed_file>& listed, file_port& to,
                     const std::string& into, std::vector<copied_file>& copied, copy_pace& pace) {
    copied.clear();
    pace.done = pace.all = 0;
    // Each is read again from the copy.
    for (const listed_file& one : listed) pace.all += 2 * one.size;
    std::set<std::string> names;
    for (const listed_file& one : listed) {
        const std::string target = into + "/" + one.path;
        if (!make_folders(to, target))
            return from_utf8(target) + ": la cartella non si può creare"_cp;
        if (!names.insert(upper(drive_path(target))).second)
            return from_utf8(one.path) + ": lo stesso nome due volte";
        const auto done = copy_over(from, one.path, to, target, pace);
        if (!done) return from_utf8(one.path) + ": non si può leggere o copiare"_cp;
        copied.push_back(*done);
    }
    return {};
}

/// Reads the copies again.
std::string compare_all(file_port& to, const std::string& folder,
                        const std::vector<copied_file>& copied, copy_pace& pace) {
    for (const copied_file& one : copied) {
        const auto read = read_over(to, folder + one.path, pace);
        if (!read || read->size != one.size || read->mark != one.mark) {
            return from_utf8(one.path) + ": riletta, la copia non è uguale"_cp;
        }
    }
    return {};
}

/// The counters file alone: what the lock lies on.
archivi lock_file(file_port& files, int numero_azienda) {
    archivi opened;
    const std::string tot = company_path(numero_azienda, "tot");
    if (files.exists(tot)) opened.tot = channel<rec_tot>(files.open_records(tot), "vantora.tot");
    return opened;
}

/// Who holds a copy up, in words.
std::string at_work(const archivi& tot) {
    const auto by = tot.tot.shared_file() ? tot.tot.shared_file()->locked_by() : std::nullopt;
    return "un'altra postazione" + (by && !by->empty() ? " (" + *by + ")" : "") +
           " sta scrivendo nell'archivio";
}

/// Copies until the files stayed the same all the while: other programs of the suite don't wait.
std::string copy_consistently(file_port& from, archivi tot, int numero_azienda, file_port& to,
                              const staging& made, std::vector<copied_file>& copied,
                              std::string& into, copy_pace& pace) {
    constexpr int attempts_max = 3;
    const fs::path root = from.locate("\\");
    const fs::path company = from.locate(folder_of_company(numero_azienda));
    for (int attempt = 1; attempt <= attempts_max; ++attempt) {
        const archive_change alone(tot);
        if (alone.others_at_work()) return at_work(tot);
        const auto before = list_company(root, company);
        into = made.folder().filename().string() + "/" + std::to_string(attempt);
        std::string fault = copy_all(from, before, to, into, copied, pace);
        if (!fault.empty()) return fault;
        if (list_company(root, company) == before) return {};
    }
    return "l'archivio cambia di continuo: un altro programma della suite vi lavora";
}

constexpr const char* new_company = "ditta";

/// Where a file of a copy goes: into the new folder of the company if it is the company's, to its
/// own place if it is a general table; nowhere if it is another company's.
std::optional<std::string> target_of(const std::string& path, int numero_azienda,
                                     const std::string& into) {
    const std::size_t general = std::string("mirwin/mirwin/").size();
    const std::size_t end = path.find('/', general);
    if (end == std::string::npos) return path;
    const std::string folder = upper(path.substr(general, end - general));
    const std::string own = folder_of_company(numero_azienda);
    if (folder != upper(own.substr(own.rfind('\\') + 1))) return {};
    return into + "/" + new_company + path.substr(end);
}

/// The end of a copy's name that tells when it was made.
bool is_moment(std::string_view text) {
    constexpr std::string_view shape = "-0000-00-00-000000";
    return text.size() == shape.size() && std::ranges::equal(text, shape, [](char one, char as) {
               return as == '0' ? one >= '0' && one <= '9' : one == as;
           });
}

std::vector<std::string> copies_in(const fs::path& folder, const std::string& stem) {
    std::vector<std::string> names;
    std::error_code failure;
    for (const auto& one : fs::directory_iterator(folder, failure)) {
        const std::string name = one.path().filename().string();
        if (name.starts_with(stem) && is_moment(std::string_view(name).substr(stem.size())) &&
            fs::exists(one.path() / copy_list, failure)) {
            names.push_back(name);
        }
    }
    std::ranges::sort(names);
    return names;
}

/// What a copy left that was ended on the way, long ago.
void drop_unfinished(const fs::path& folder, const std::string& stem) {
    constexpr std::size_t random_end = 7;  // ".XXXXXX"
    const auto long_ago = fs::file_time_type::clock::now() - std::chrono::hours(24);
    std::error_code failure;
    for (const auto& one : fs::directory_iterator(folder, failure)) {
        const std::string name = one.path().filename().string();
        if (name.size() < stem.size() + random_end || !name.starts_with(stem)) continue;
        const auto middle = std::string_view(name).substr(stem.size());
        if (!is_moment(middle.substr(0, middle.size() - random_end)) ||
            middle[middle.size() - random_end] != '.') {
            continue;
        }
        if (one.last_write_time(failure) < long_ago) fs::remove_all(one.path(), failure);
    }
}

}  // namespace

std::string stem_of_copies(int numero_azienda) {
    const std::string padded = "00" + std::to_string(numero_azienda);
    return "ditta" + padded.substr(padded.size() - 3);
}

std::string end_of_copy(const date_time& made) {
    std::string time;
    for (const int part : {made.hour, made.minute, made.second}) time += two_digits(part);
    return "-" + std::to_string(made.day.year) + "-" + two_digits(made.day.month) + "-" +
           two_digits(made.day.day) + "-" + time;
}

std::int64_t copy_outcome::bytes() const {
    std::int64_t all = 0;
    for (const copied_file& one : files) all += one.size;
    return all;
}

copy_outcome make_copy(file_port& from, file_port& locks, int numero_azienda, file_port& to,
                       const std::string& name, const copy_progress& tell) try {
    copy_outcome outcome;
    copy_pace pace{tell};
    outcome.place = to.locate("\\") / name;
    if (fs::exists(fs::symlink_status(outcome.place))) return failed(name + " c'è già"_cp);
    const staging made(outcome.place);
    if (made.folder().empty()) return failed("nella cartella delle copie non si può scrivere"_cp);
    std::string into;
    outcome.fault = copy_consistently(from, lock_file(locks, numero_azienda), numero_azienda, to,
                                      made, outcome.files, into, pace);
    if (!outcome.fault.empty()) return outcome;
    outcome.fault = compare_all(to, into + "/", outcome.files, pace);
    if (!outcome.fault.empty()) return outcome;
    const std::string list = list_of(outcome.files);
    const auto file = to.create(drive_path(into + "/" + copy_list));
    if (!file || !file->write(0, std::as_bytes(std::span(list))) || !file->flush()) {
        return failed("l'elenco della copia non si può scrivere"_cp);
    }
    const fs::path finished = made.folder() / fs::path(into).filename();
    close_as(from.locate(folder_of_company(numero_azienda)), finished);
    if (!swap_in(finished, outcome.place, made.folder() / "former")) {
        return failed("la copia non si può mettere al suo posto"_cp);
    }
    return outcome;
} catch (const fs::filesystem_error& problem) {
    return failed(words_of(problem));
}

copy_outcome checked_copy(const fs::path& copy, file_port& files, const copy_progress& tell) {
    copy_outcome outcome;
    outcome.place = copy;
    const auto text = files.read_whole(std::string("\\") + copy_list);
    auto listed = text ? read_list(*text) : std::nullopt;
    if (!listed) return failed(from_utf8(copy.string()) + " non è una copia intera"_cp);
    outcome.files = std::move(*listed);
    copy_pace pace{tell, outcome.bytes()};
    outcome.fault = compare_all(files, "", outcome.files, pace);
    return outcome;
}

copy_outcome put_back(const copy_outcome& copy, file_port& from, int numero_azienda, file_port& to,
                      const std::string& former, const copy_progress& tell) try {
    const fs::path place = to.locate(folder_of_company(numero_azienda));
    fs::create_directories(place.parent_path());
    const staging made(place);
    if (made.folder().empty()) return failed("accanto alla ditta non si può scrivere"_cp);
    const std::string into = made.folder().lexically_relative(to.locate("\\")).generic_string();
    bool any = false;
    copy_pace pace{tell, copy.bytes()};
    for (const copied_file& one : copy.files) {
        const auto target = target_of(one.path, numero_azienda, into);
        if (!target || (*target == one.path && to.exists(drive_path(*target)))) continue;
        any = any || *target != one.path;
        if (!make_folders(to, *target))
            return failed(from_utf8(*target) + ": la cartella non si può creare"_cp);
        const auto done = copy_over(from, one.path, to, *target, pace);
        if (!done || done->mark != one.mark || done->size != one.size) {
            return failed(from_utf8(one.path) + ": non si può copiare"_cp);
        }
    }
    if (!any) return failed("la copia non è di questa ditta"_cp);
    archivi tot = lock_file(to, numero_azienda);
    const archive_change alone(tot);
    if (alone.others_at_work()) return failed(at_work(tot));
    take_rights(fs::exists(place) ? place : place.parent_path(), made.folder() / new_company);
    copy_outcome outcome;
    outcome.files = copy.files;
    if (fs::exists(place)) outcome.place = place.parent_path() / former;
    if (!swap_in(made.folder() / new_company, place, place.parent_path() / former)) {
        return failed("la ditta non si può sostituire; è rimasta com'era"_cp);
    }
    return outcome;
} catch (const fs::filesystem_error& problem) {
    return failed(words_of(problem));
}

int drop_old_copies(const fs::path& folder, const std::string& stem, int keep) {
    drop_unfinished(folder, stem);
    const auto names = copies_in(folder, stem);
    int dropped = 0;
    std::error_code failure;
    for (std::size_t i = 0; i + static_cast<std::size_t>(keep) < names.size(); ++i) {
        fs::remove_all(folder / names[i], failure);
        if (!failure) ++dropped;
    }
    return dropped;
}

std::optional<date_time> newest_copy(const fs::path& folder, const std::string& stem) {
    const auto names = copies_in(folder, stem);
    if (names.empty()) return {};
    const std::string made = names.back().substr(stem.size() + 1);
    return read_clock(made.substr(0, 10) + " " + made.substr(11, 2) + ":" + made.substr(13, 2) +
                      ":" + made.substr(15));
}

}  // namespace vantora
