#pragma once

#include "documents/document_output.h"
#include "program/program.h"
#include "ui/controls.h"

namespace vantora {

/// Draws what a pre-printed form would carry, at the head of a page: pictures lie undermost, then
/// filled boxes, then lines, outlines and texts in the order of the list. Values that lie off an A4
/// page are pulled to its edges in `drawing` itself, for the pages to come.
/// `figure`: where the user sees a picture while it prints.
void disegna_sfondo(program& app, document_output& out, disegno& drawing, ui::picture& figure);

}  // namespace vantora
