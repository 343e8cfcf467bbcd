#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

namespace vantora::archive {

/// How bad a finding is. Notes are things that a user may have meant; they leave an archive sound.
enum class gravity { note, warning, error };

/// One thing that a check noticed, in Italian words (UTF-8) that hold no control byte.
struct finding {
    gravity how_bad = gravity::error;
    std::string kind;    ///< what findings alike share, for programs: "order-doubled"
    std::string where;   ///< order, article, file
    std::string what;    ///< what is wrong there
    std::string advice;  ///< what to do about it
};

/// What a check noticed, the alike together, in the order of the first of each kind. Of a kind
/// only some are kept, the others counted: a damaged file may hold millions.
class findings {
 public:
    static constexpr std::size_t kept_most = 10;

    struct group {
        std::vector<finding> kept;
        std::size_t count = 0;
        [[nodiscard]] std::size_t more() const { return count - kept.size(); }
    };

    void push_back(finding one);
    /// Those of another behind one's own.
    void append(const findings& other);

    [[nodiscard]] const std::vector<group>& groups() const { return groups_; }
    [[nodiscard]] bool empty() const { return groups_.empty(); }
    [[nodiscard]] bool has(std::string_view kind) const;
    /// True if nothing worse than a note is among them.
    [[nodiscard]] bool sound() const { return sound_; }

    /// One line each: "errore: ordine 12 del 03/05/2024, Rossi: non c'è il cliente 77. Aprire ..."
    [[nodiscard]] std::string in_lines() const;
    [[nodiscard]] nlohmann::ordered_json as_json() const;

 private:
    std::vector<group> groups_;
    bool sound_ = true;
};

}  // namespace vantora::archive
