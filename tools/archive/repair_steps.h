#pragma once

#include "archive/existing_files.h"
#include "archive/repair.h"
#include "store/archive_change.h"

namespace vantora::archive {

/// What one repair may write with.
struct repair_tools {
    file_port& files;
    int numero_azienda;
    archivi& records;
    archive_change& change;
};

/// One thing that a repair changes.
struct repair_step {
    std::string shown;  ///< what changes, from what to what: what still holds has the same words
    const char* extension;                           ///< of the file that it writes
    std::function<bool(const repair_tools&)> write;  ///< false if a file refused
};

/// All of them.
struct repair_plan {
    std::string refusal;  ///< why nothing may be changed; empty: nothing is in the way
    std::string nothing;  ///< what to say if there is nothing to change
    bool certain = true;  ///< false: only a person who looks can tell that it is right
    std::vector<repair_step> steps;
};

/// Works out a repair from what the files hold now.
using repair_planner = std::function<repair_plan(company_files&)>;

/// Shows, asks, locks, works it out again, copies, writes. `name`: as the command line has it.
int carry_out(const repair_request& request, const char* name, const repair_planner& planner);

}  // namespace vantora::archive
