#pragma once

#include <string>

#include "program/program.h"

namespace vantora {

/// Opens the order's window with what a draft holds, in place of the register. An opened order is
/// looked for where it stands now; if it isn't what it was, the person decides. Nothing happens,
/// and a message says why, if the draft can't be had or another order is being worked on.
void resume_draft(program& app, const std::string& name);

/// At the start of the program: asks whether to take up what was being worked on when it ended last
/// time without a word.
void offer_drafts(program& app);

/// How the person knows a draft: "ROSSI SPA", "ordine 77 di ROSSI SPA" for an opened one.
std::string draft_name(const struct bozza& draft);

}  // namespace vantora
