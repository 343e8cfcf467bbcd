#pragma once

#include <memory>
#include <string>
#include <vector>

#include "entry/draft.h"
#include "program/program.h"

namespace vantora {

/// The file of one draft in the person's folder. Whoever holds it keeps other windows off, those
/// of other runs of the program too; whoever ends without a word leaves it to be found.
class file_bozza {
 public:
    file_bozza() = default;
    /// Takes hold of a draft that lies there; empty if another window has it.
    static std::optional<file_bozza> take(file_port& person, const std::string& name);

    /// Gives the draft its content, in one step; at the first time in a file of its own. False if
    /// the system refused: what was kept before stays.
    bool keep(file_port& person, const std::string& content);
    void drop();
    /// Lets go of it; what was kept stays.
    void release() { *this = file_bozza(); }

 private:
    [[nodiscard]] bool hold(file_port& person, const std::string& name);

    file_port* person_ = nullptr;
    std::string name_;  ///< empty while there is no file
    std::unique_ptr<file> lock_;
};

struct bozza_trovata {
    std::string name;
    bozza draft;
};

/// The drafts of this company that no window has in work, the youngest first. None where the
/// program has no folder of the person.
std::vector<bozza_trovata> waiting_drafts(const program& app);

/// The text of a draft that lies there; empty if it can't be read.
std::optional<bozza> draft_in(file_port& person, const std::string& name);

/// How the company's archive is called in drafts.
std::string archive_name(const program& app);

}  // namespace vantora
