#include "archive/finding.h"

#include <algorithm>
#include <nlohmann/json.hpp>

namespace vantora::archive {

namespace {

// In the order of the enumeration.
constexpr const char* gravity_words[] = {"nota", "attenzione", "errore"};
constexpr const char* gravity_keys[] = {"note", "warning", "error"};

}  // namespace

void findings::push_back(finding one) {
    if (one.how_bad != gravity::note) sound_ = false;
    auto place = std::ranges::find_if(
        groups_, [&one](const group& other) { return other.kept.front().kind == one.kind; });
    if (place == groups_.end()) place = groups_.insert(place, group{});
    ++place->count;
    if (place->kept.size() < kept_most) place->kept.push_back(std::move(one));
}

void findings::append(const findings& other) {
    for (const group& alike : other.groups_) {
        for (const finding& one : alike.kept) push_back(one);
        const auto place = std::ranges::find_if(groups_, [&alike](const group& mine) {
            return mine.kept.front().kind == alike.kept.front().kind;
        });
        place->count += alike.more();
    }
}

bool findings::has(std::string_view kind) const {
    return std::ranges::any_of(groups_,
                               [kind](const group& one) { return one.kept.front().kind == kind; });
}

std::string findings::in_lines() const {
    std::string lines;
    for (const group& alike : groups_) {
        for (const finding& one : alike.kept) {
            lines += std::string(gravity_words[static_cast<int>(one.how_bad)]) + ": " + one.where +
                     ": " + one.what + ". " + one.advice + '\n';
        }
        if (alike.more() > 0) {
            lines += "  ... e altri " + std::to_string(alike.more()) + " casi come questi\n";
        }
    }
    return lines;
}

nlohmann::ordered_json findings::as_json() const {
    auto list = nlohmann::ordered_json::array();
    for (const group& alike : groups_) {
        for (const finding& one : alike.kept) {
            list.push_back({{"gravity", gravity_keys[static_cast<int>(one.how_bad)]},
                            {"kind", one.kind},
                            {"where", one.where},
                            {"what", one.what},
                            {"advice", one.advice}});
        }
        if (alike.more() == 0) continue;
        list.push_back({{"gravity", gravity_keys[static_cast<int>(alike.kept.front().how_bad)]},
                        {"kind", alike.kept.front().kind},
                        {"more", alike.more()}});
    }
    return list;
}

}  // namespace vantora::archive
