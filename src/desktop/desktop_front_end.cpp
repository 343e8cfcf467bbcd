#include "desktop/desktop_front_end.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <QImage>
#include <QPainter>
#include <algorithm>

#include "desktop/dialogs/file_dialog.h"
#include "desktop/look/tip.h"
#include "ui/desk.h"

namespace vantora::ui::desktop {

namespace {

/// Long work serves the window system this often, in milliseconds.
constexpr qint64 serving_pause = 16;

/// So long after the program brought a window to the front, others may still come forward that it
/// had called before, in milliseconds.
constexpr qint64 settling_time = 600;

/// What the user typed is kept aside so often, in milliseconds.
constexpr int resting_pause = 2000;

/// So long a note can be read, in milliseconds.
constexpr int note_time = 6000;

constexpr const char* program_title = "Vantora Ordini";

}  // namespace

desktop_front_end::desktop_front_end(screen_layouts layouts)
    : layouts_(std::move(layouts)),
      handing_over_([this]() -> form_window* {
          form* active = desk_->active();
          return active && boxes_.none() ? window_of(*active) : nullptr;
      }),
      idle_([this] { catch_up(); }) {
    since_events_.start();
}

desktop_front_end::~desktop_front_end() {
    // The windows of the last screens wait for their end.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void desktop_front_end::begin(desk& on) {
    desk_ = &on;
    if (!next_step_) handing_over_.begin();
    keys_.begin();  // is asked first
    pause_.setSingleShot(true);
    pause_.setInterval(resting_pause);
    QObject::connect(&pause_, &QTimer::timeout, [this] { desk_->rest(); });
}

// Waiting -----------------------------------------------------------------------------------------

void desktop_front_end::run() {
    run_until([this] { return next_step_ == nullptr && desk_->ended().has_value(); });
    handing_over_.hide_all();
}

bool desktop_front_end::may_end() {
    bool may = true;
    if (!desk_->open_box()) carry_out([&] { may = desk_->may_end(); });
    return may;
}

void desktop_front_end::end_by_user() {
    desk_->stop();
    // The system's own dialogs wait in loops of theirs.
    for (QWidget* open : QApplication::topLevelWidgets()) {
        auto* dialog = qobject_cast<QDialog*>(open);
        if (dialog && dialog->isVisible()) dialog->reject();
    }
    leave_finished_waits();
}

void desktop_front_end::run_until(const std::function<bool()>& done) {
    if (done()) return;
    if (next_step_) return step_until(done);
    QEventLoop loop;
    waits_.push_back({&loop, &done});
    loop.exec();
    waits_.pop_back();
}

void desktop_front_end::step_until(const std::function<bool()>& done) {
    ++stepping_;
    while (!done()) {
        for (int settling = 0; settling < 3; ++settling) QCoreApplication::processEvents();
        // Closed windows go when none of their events can still be under way.
        if (stepping_ == 1) QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        desk_->rest();
        if (!next_step_()) {
            desk_->stop();
            break;
        }
    }
    --stepping_;
}

void desktop_front_end::leave_finished_waits() {
    if (!waits_.empty() && (*waits_.back().done)()) waits_.back().loop->quit();
}

void desktop_front_end::let_events_run() {
    if (since_events_.elapsed() < serving_pause) return;
    QCoreApplication::processEvents();
    since_events_.restart();
    // The user may have closed the window while it was only painted.
    if (QPointer<form_window> closing = std::exchange(late_closing_, nullptr)) closing->close();
}

namespace {

bool has_bar_of_its_own(const form& screen) {
    return std::ranges::any_of(screen.controls(), [](const control* one) {
        return one->kind() == control_kind::progress_bar && one->visible();
    });
}

}  // namespace

void desktop_front_end::progress_changed(control& list, double done) {
    if (has_bar_of_its_own(list.owner())) return;
    form_window* window = window_of(list.owner());
    if (bars_.show(list, window ? &window->widget_of(list) : nullptr, done)) paint();
}

void desktop_front_end::progress_ended(control& list) {
    bars_.end(list);
    close_late();
}

void desktop_front_end::station_awaited(const std::optional<std::string>& station) {
    if (!station) {
        station_.end();
        close_late();
    } else if (station_.show(front_window(), *station)) {
        paint();
    }
}

void desktop_front_end::paint() {
    ++painting_;
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    --painting_;
}

void desktop_front_end::close_late() {
    if (!bars_.none() || station_.waiting() || !late_closing_) return;
    QMetaObject::invokeMethod(late_closing_, &QWidget::close, Qt::QueuedConnection);
    late_closing_.clear();
}

void desktop_front_end::act(control& on, const std::function<void()>& action) {
    if (painting_ > 0) return;
    if (!desk_->obstacle(on)) {
        carry_out(action);
    } else if (control* rightful = desk_->focus()) {
        focus_moved(rightful);
    }
}

void desktop_front_end::catch_up() {
    form* active = desk_ ? desk_->active() : nullptr;
    const bool in_the_midst = next_step_ || waits_.size() != 1 || !boxes_.none() || painting_ > 0 ||
                              desk_->pointer_shape() == pointer::busy ||
                              QApplication::mouseButtons() != Qt::NoButton ||
                              QApplication::activePopupWidget();
    if (active && !in_the_midst && !desk_->obstacle(*active)) {
        carry_out([active] { active->catch_up(); });
    }
}

void desktop_front_end::carry_out(const std::function<void()>& action) {
    desk_->dispatch(action);
    if (!next_step_ && !pause_.isActive()) pause_.start();
    leave_finished_waits();
}

// Windows -----------------------------------------------------------------------------------------

form_window* desktop_front_end::window_of(form& which) {
    const auto found = windows_.find(&which);
    return found == windows_.end() ? nullptr : found->second.get();
}

void desktop_front_end::form_loaded(form& which) {
    const user by{[this](control& on, const std::function<void()>& action) { act(on, action); },
                  next_step_ == nullptr};
    windows_[&which] = std::make_unique<form_window>(
        which, layouts_, by,
        form_window::window_events{[this](form& closing) { close_by_user(closing); },
                                   [this](form& chosen) { come_forward(chosen); }});
}

void desktop_front_end::close_by_user(form& closing) {
    if (painting_ > 0) {
        late_closing_ = window_of(closing);
    } else if (!desk_->obstacle(closing)) {
        carry_out([&] { desk_->close(closing); });
    }
}

void desktop_front_end::come_forward(form& chosen) {
    form* active = desk_->active();
    if (active == &chosen) handing_over_.came(*window_of(chosen));
    if (!active || active == &chosen || painting_ > 0) return;
    if (since_called_.elapsed() < settling_time) {
        // The window system is still busy with what the program asked: no user's choice.
        if (form_window* window = window_of(*active)) window->activateWindow();
    } else if (!desk_->obstacle(chosen)) {
        // The click that brings it forward is meant for what it falls on.
        chosen_by_user_ = true;
        carry_out([&] { chosen.show(); });
        chosen_by_user_ = false;
    }
}

void desktop_front_end::form_shown(form& which) {
    form_window* window = window_of(which);
    if (!window) return;
    handing_over_.stay(*window);
    window->show_title(title_end_);
    form_window* before = desk_->active() ? window_of(*desk_->active()) : nullptr;
    if (before && before->isVisible()) place_ = before->place();
    window->appear(place_);
}

void desktop_front_end::form_hidden(form& which) {
    form_window* window = window_of(which);
    if (!window) return;
    if (window->isVisible()) place_ = window->place();
    next_step_ ? window->hide() : handing_over_.leave(*window);
}

void desktop_front_end::form_unloaded(form& which) {
    const auto found = windows_.find(&which);
    if (found == windows_.end()) return;
    if (found->second->isVisible() && !found->second->isModal()) place_ = found->second->place();
    found->second->hide();
    // The window may be in the midst of one of its own events.
    form_window* window = found->second.release();
    windows_.erase(found);
    window->forget_screen();
    window->deleteLater();
}

void desktop_front_end::form_activated(form& which) {
    form_window* window = window_of(which);
    if (!window) return;
    window->show_title(title_end_);
    if (!chosen_by_user_) keys_.screen_came_up();
    since_called_.start();
    QTimer::singleShot(0, &idle_, [this] { catch_up(); });
    window->raise();
    window->activateWindow();  // even if it is: another may have been called that didn't come yet
    // What stands in the field that had the focus is there to be typed over.
    control* worked_on = desk_->focus();
    if (worked_on && &worked_on->owner() == &which) window->select_text(*worked_on);
}

void desktop_front_end::focus_moved(control* to) {
    if (!to) return;
    if (form_window* window = window_of(to->owner())) window->focus_on(*to);
}

QWidget* desktop_front_end::front_window() const {
    if (!boxes_.none()) return boxes_.front();
    const auto active = windows_.find(desk_->active());
    return active == windows_.end() ? nullptr : active->second.get();
}

bool desktop_front_end::save_picture(const std::filesystem::path& file) const {
    QCoreApplication::processEvents();
    QWidget* front = front_window();
    if (!front) return false;
    const QPixmap picture = front->grab();
    const QString name = QString::fromStdString(file.string());
    QWidget* behind = front->parentWidget();
    if (!behind) return picture.save(name);
    // A message box is shown in front of its window; the picture says where it stands in it.
    QImage whole = behind->window()->grab().toImage();
    const QRect place(
        {(whole.width() - picture.width()) / 2, (whole.height() - picture.height()) / 2},
        picture.size());
    whole.setDevicePixelRatio(1);
    QPainter(&whole).drawPixmap(place, picture);
    whole.setText("Box", QString("%1 %2 %3 %4")
                             .arg(place.left())
                             .arg(place.top())
                             .arg(place.width())
                             .arg(place.height()));
    return whole.save(name);
}

// Boxes and pointer -------------------------------------------------------------------------------

void desktop_front_end::box_opened(const message_box& box) {
    QWidget* parent = desk_->active() ? window_of(*desk_->active()) : nullptr;
    boxes_.open(box, parent,
                [this](answer given) { carry_out([&] { desk_->answer_box(given); }); });
    keys_.screen_came_up();
    pointer_changed();
}

void desktop_front_end::box_closed() {
    if (boxes_.none()) return;
    boxes_.close_front();
    pointer_changed();
    if (form* active = desk_->active()) form_activated(*active);
    focus_moved(desk_->focus());
    // The next bar code takes the place of the one that the box complained about.
    if (control* worked_on = desk_->focus()) {
        if (form_window* window = window_of(worked_on->owner())) window->select_text(*worked_on);
    }
}

void desktop_front_end::pointer_changed() {
    // A box can be answered even if the work that asks isn't over.
    const bool busy = desk_->pointer_shape() == pointer::busy && boxes_.none();
    if (busy == busy_shown_) return;
    busy_shown_ = busy;
    busy ? QGuiApplication::setOverrideCursor(Qt::WaitCursor)
         : QGuiApplication::restoreOverrideCursor();
}

void desktop_front_end::note_shown(const std::string& text) {
    QWidget* window = front_window();
    if (!window) return;
    const QWidget* beside = QApplication::focusWidget() ? QApplication::focusWidget() : window;
    show_tip(beside->mapToGlobal(QPoint(0, beside->height())), to_qt(text), window, note_time);
}

void desktop_front_end::text_offered(const std::string& called, const std::string& text) {
    const QString file = ask_where_to_save("Salva l'elenco", to_qt(called),
                                           {"File di testo", "txt"}, front_window());
    if (!file.isEmpty()) save_whole(file, to_qt(text).toUtf8(), front_window());
}

void desktop_front_end::report_fatal(const std::string& message) {
    if (!next_step_) tell(to_qt(message), nullptr, icon::stop, program_title);
}

}  // namespace vantora::ui::desktop
