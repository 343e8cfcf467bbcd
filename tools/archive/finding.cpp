#include "archive/finding.h"

#include <algorithm>

namespace vantora::archive {

namespace {

const char* word_of(gravity how_bad) {
    switch (how_bad) {
        case gravity::note:
            return "note";
        case gravity::warning:
            return "warning";
        default:
            return "error";
    }
}

}  // namespace

std::string in_one_line(const finding& one) {
    return std::string(word_of(one.how_bad)) + ": " + one.where + ": " + one.what + ". " +
           one.advice;
}

nlohmann::ordered_json as_json(const finding& one) {
    return {{"gravity", word_of(one.how_bad)},
            {"where", one.where},
            {"what", one.what},
            {"advice", one.advice}};
}

bool is_sound(const findings& all) {
    return std::ranges::all_of(all,
                               [](const finding& one) { return one.how_bad == gravity::note; });
}

}  // namespace vantora::archive
