#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace vantora::archive {

/// How bad a finding is. Notes are things that a user may have meant; they leave an archive sound.
enum class gravity { note, warning, error };

/// One thing that a check noticed, in words (UTF-8).
struct finding {
    gravity how_bad = gravity::error;
    std::string where;   ///< file, record, row
    std::string what;    ///< what is wrong there
    std::string advice;  ///< what to do about it
};

using findings = std::vector<finding>;

/// "error: orders, registrazione 12: no such customer (77). Open the order and ..."
std::string in_one_line(const finding& one);
nlohmann::ordered_json as_json(const finding& one);

/// True if nothing worse than a note is among them.
bool is_sound(const findings& all);

}  // namespace vantora::archive
