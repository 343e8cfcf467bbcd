#pragma once

#include <functional>
#include <span>
#include <vector>

#include "customer/customer_head.h"
#include "desktop/form_window.h"

namespace vantora::ui::desktop {

// The window of a screen that shows a customer and holds the head of a document: what differs from
// screen to screen is the frame with the document's own fields, and the way on.

/// A field of a frame.
struct frame_field {
    const control& shown;
    int characters = 0;        ///< how many shall fit; 0: it takes what is left
    const char* caption = "";  ///< of a field that isn't the first of its row
};

/// A row of a frame: a caption and the fields behind it.
struct frame_row {
    const char* caption;
    std::vector<frame_field> fields;
};

struct customer_window {
    const char* frame;           ///< title of the frame with the document's own fields
    std::vector<frame_row> own;  ///< its rows
    command_look go_on;          ///< the button that goes on
    const char* leaving;         ///< what the button that leaves does
    /// Leaves; without it, the window is closed as by its title bar.
    std::function<void()> leave = {};
};

void lay_out_customer(form_window& window, customer_head& head, const customer_window& look);

}  // namespace vantora::ui::desktop
