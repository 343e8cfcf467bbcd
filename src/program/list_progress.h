#pragma once

#include "ui/desk.h"

namespace vantora {

/// Shows the user how far a list is while it takes long, in the place where the list will be. The
/// windows are painted meanwhile; what the user does waits until the list is there.
class list_progress {
 public:
    list_progress(ui::desk& desk, ui::control& list) : desk_(desk), list_(list) {
        desk_.show_progress(list_, 0);
    }
    list_progress(const list_progress&) = delete;
    list_progress& operator=(const list_progress&) = delete;
    ~list_progress() { desk_.end_progress(list_); }

    /// `done` steps of `of`. Cheap enough for every row.
    void come_to(int done, int of) {
        if (++calls_ % calls_a_look == 0 || done == of)
            desk_.show_progress(list_, double(done) / of);
    }

 private:
    static constexpr unsigned calls_a_look = 16;

    ui::desk& desk_;
    ui::control& list_;
    unsigned calls_ = 0;
};

}  // namespace vantora
