#pragma once

#include <functional>
#include <optional>
#include <string>

#include "ui/message_box.h"

namespace vantora::ui {

class control;
class form;

enum class pointer { normal, busy };

/// What a front end does for the models: it shows what they say and waits for the user. It calls
/// back into the models only through desk::dispatch.
class front_end {
 public:
    virtual ~front_end() = default;

    /// Serves the user until `done` answers true, or until the program ends. Nests.
    virtual void run_until(const std::function<bool()>& done) = 0;
    /// Serves what the user has done meanwhile, once, and comes back.
    virtual void let_events_run() = 0;

    /// The answer that the user of this front end gave before the box came up: it is then not
    /// shown.
    virtual std::optional<answer> answer_at_once(const message_box&) { return {}; }

    virtual void form_loaded(form&) {}
    virtual void form_shown(form&) {}
    virtual void form_hidden(form&) {}
    /// The form is about to go; its widgets go with it.
    virtual void form_unloaded(form&) {}
    virtual void form_activated(form&) {}
    /// Null: no control has it.
    virtual void focus_moved(control*) {}
    virtual void box_opened(const message_box&) {}
    virtual void box_closed() {}
    virtual void pointer_changed() {}
    /// A list is being filled, and so much of it is there, of 0 to 1. Nothing that the user does
    /// may be served, windows may be painted.
    virtual void progress_changed(control& /*list*/, double /*done*/) {}
    /// Called once behind the above; the list may be shown.
    virtual void progress_ended(control& /*list*/) {}
    /// Something to know that needs no answer.
    virtual void note_shown(const std::string& /*text*/) {}
    /// The user is asked where to save a text that they want to keep.
    virtual void text_offered(const std::string& /*called*/, const std::string& /*text*/) {}
    /// Another station holds this one up: which one, "anna su cassa2" or empty if that isn't known.
    /// Called again and again meanwhile, with none at the end.
    /// Nothing that the user does may be served, windows may be painted.
    virtual void station_awaited(const std::optional<std::string>& /*station*/) {}
    /// The program ends on an error: tell the user before it does.
    virtual void report_fatal(const std::string& /*message*/) {}
};

}  // namespace vantora::ui
