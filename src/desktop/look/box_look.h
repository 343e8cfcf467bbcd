#pragma once

#include "ui/message_box.h"

class QMessageBox;

namespace vantora::ui {

/// Gives a box the program's own picture for its kind, a frame with nothing but its closing button,
/// and a width that is seen even if its text is short and holds its captions. REQUIRES: its text
/// and buttons are set.
void dress_box(QMessageBox& box, icon sign);

}  // namespace vantora::ui
