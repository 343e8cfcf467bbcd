#pragma once

#include <QElapsedTimer>
#include <QTimer>
#include <filesystem>
#include <map>
#include <memory>
#include <vector>

#include "desktop/form_window.h"
#include "desktop/handing_over.h"
#include "desktop/idle_watch.h"
#include "desktop/keys/key_guard.h"
#include "desktop/lists/list_bars.h"
#include "desktop/message_boxes.h"
#include "desktop/station_note.h"
#include "ui/front_end.h"

class QEventLoop;

namespace vantora::ui {
class desk;
}

namespace vantora::ui::desktop {

/// The front end with windows. What the user does is carried out on the models, one action at a
/// time; while the program waits inside one, the window system goes on.
class desktop_front_end final : public front_end {
 public:
    explicit desktop_front_end(screen_layouts layouts = {});
    ~desktop_front_end() override;

    /// Tells whose front end this is. Called once, before the program starts.
    void begin(desk& on);

    using answers_in_advance = std::function<std::optional<answer>(const message_box&)>;

    /// Something that acts in the user's place: called whenever the program waits and its windows
    /// have settled; false when there is nothing more to come. Sizes are then not remembered.
    /// Boxes for which `answers` has one are not shown.
    void served_by(std::function<bool()> next_step, answers_in_advance answers = {}) {
        next_step_ = std::move(next_step);
        answers_ = std::move(answers);
    }

    /// What stands at the end of every title bar: whose program it is.
    void end_titles_with(QString text) { title_end_ = std::move(text); }

    /// Serves the user until the program ends.
    void run();
    /// Whether the program may end from outside: what isn't saved is asked about, if there is no
    /// question open already.
    bool may_end();
    /// Ends the program from outside, as when the user logs off.
    void end_by_user();

    /// Saves a picture of the window in front.
    bool save_picture(const std::filesystem::path& file) const;
    /// The window in front; null if there is none.
    [[nodiscard]] QWidget* front_window() const;

    void run_until(const std::function<bool()>& done) override;
    void let_events_run() override;
    std::optional<answer> answer_at_once(const message_box& box) override {
        return answers_ ? answers_(box) : std::nullopt;
    }
    void form_loaded(form& which) override;
    void form_shown(form& which) override;
    void form_hidden(form& which) override;
    void form_unloaded(form& which) override;
    void form_activated(form& which) override;
    void focus_moved(control* to) override;
    void box_opened(const message_box& box) override;
    void box_closed() override;
    void pointer_changed() override;
    void progress_changed(control& list, double done) override;
    void progress_ended(control& list) override;
    void station_awaited(const std::optional<std::string>& station) override;
    void note_shown(const std::string& text) override;
    void text_offered(const std::string& called, const std::string& text) override;
    void report_fatal(const std::string& message) override;

 private:
    struct wait {
        QEventLoop* loop;
        const std::function<bool()>* done;
    };

    void act(control& on, const std::function<void()>& action);
    void carry_out(const std::function<void()>& action);
    void step_until(const std::function<bool()>& done);
    void leave_finished_waits();
    /// Paints windows; what the user does waits.
    void paint();
    void close_late();
    /// The active screen may show what others changed.
    void catch_up();
    form_window* window_of(form& which);
    void close_by_user(form& closing);
    /// The user brings a window to the front.
    void come_forward(form& chosen);

    screen_layouts layouts_;
    QString title_end_;
    desk* desk_ = nullptr;
    std::function<bool()> next_step_;
    answers_in_advance answers_;
    std::map<form*, std::unique_ptr<form_window>> windows_;
    window_place place_;          ///< of the last window
    QElapsedTimer since_called_;  ///< since the program brought a window to the front
    message_boxes boxes_;
    bool busy_shown_ = false;
    std::vector<wait> waits_;
    int stepping_ = 0;  ///< waits served by steps, inside one another
    QElapsedTimer since_events_;
    QTimer pause_;  ///< from something that the user did to the next time they can rest
    list_bars bars_;
    station_note station_;
    int painting_ = 0;                    ///< what the user does waits
    QPointer<form_window> late_closing_;  ///< closed by the user meanwhile
    bool chosen_by_user_ = false;         ///< a window is being brought to the front by its user
    handing_over handing_over_;
    key_guard keys_;
    idle_watch idle_;
};

}  // namespace vantora::ui::desktop
