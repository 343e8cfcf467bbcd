#include "entry/draft_files.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <span>

#include "store/suite_paths.h"

namespace vantora {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view folder = "\\bozze";
constexpr std::string_view ending = ".bozza";
constexpr int drafts_max = 500;  ///< of one person

std::string path_of(const std::string& name) {
    return std::string(folder) + "\\" + name + std::string(ending);
}

/// Stays when its draft goes: another window may be about to lock it.
std::string lock_of(const std::string& name) {
    return std::string(folder) + "\\" + name + ".uso";
}

bool is_in_work(file_port& person, const std::string& name) {
    if (!person.exists(lock_of(name))) return false;
    const auto lock = person.open_records(lock_of(name));
    return lock && lock->locked_by().has_value();
}

std::vector<std::string> names_in(const file_port& person) {
    std::vector<std::string> names;
    std::error_code refused;
    fs::directory_iterator all(person.locate(folder), refused);
    for (; !refused && all != fs::directory_iterator() && names.size() < drafts_max;
         all.increment(refused)) {
        if (all->path().extension() == ending) names.push_back(all->path().stem().string());
    }
    return names;
}

}  // namespace

bool file_bozza::hold(file_port& person, const std::string& name) {
    auto lock = person.open_records(lock_of(name));
    if (!lock || lock->try_lock() == lock_answer::busy) return false;
    person_ = &person;
    name_ = name;
    lock_ = std::move(lock);
    return true;
}

std::optional<file_bozza> file_bozza::take(file_port& person, const std::string& name) {
    file_bozza one;
    if (!one.hold(person, name)) return {};
    return one;
}

bool file_bozza::keep(file_port& person, const std::string& content) {
    std::error_code refused;
    fs::create_directories(person.locate(folder), refused);
    if (refused) return false;
    for (int number = 1; name_.empty() && number <= drafts_max; ++number) {
        const std::string name = "ordine" + std::to_string(number);
        // Another window may hold a name whose file isn't there yet.
        if (!person.exists(path_of(name)) && hold(person, name) && person.exists(path_of(name))) {
            release();
        }
    }
    return !name_.empty() && put_whole(person, path_of(name_), std::as_bytes(std::span(content)));
}

void file_bozza::drop() {
    if (name_.empty()) return;
    std::error_code refused;
    fs::remove(person_->locate(path_of(name_)), refused);
    release();
}

std::optional<bozza> draft_in(file_port& person, const std::string& name) {
    const auto text = person.read_whole(path_of(name));
    return text ? read_draft(*text) : std::nullopt;
}

std::vector<bozza_trovata> waiting_drafts(const program& app) {
    std::vector<bozza_trovata> found;
    if (!app.person) return found;
    for (const std::string& name : names_in(*app.person)) {
        auto draft = draft_in(*app.person, name);
        if (!draft || draft->archivio != archive_name(app) || is_in_work(*app.person, name)) {
            continue;
        }
        found.push_back({name, std::move(*draft)});
    }
    std::ranges::stable_sort(found, std::greater(),
                             [](const bozza_trovata& one) { return one.draft.salvata; });
    return found;
}

std::string archive_name(const program& app) {
    const auto company = app.files.locate(folder_of_company(app.parameters.numero_azienda));
    std::error_code refused;
    const auto whole = fs::weakly_canonical(company, refused);
    return (refused ? company : whole).string();
}

}  // namespace vantora
