#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "desktop/desktop_front_end.h"
#include "desktop/look/style.h"
#include "ui/desk.h"
#include "ui/script/recording_ports.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop::test {

/// The one application object of all tests of this program; what it remembers goes with them.
inline QApplication& application() {
    static const QTemporaryDir remembered;
    static int count = 1;
    static char name[] = "desktop_test";
    static char* arguments[] = {name, nullptr};
    static QApplication* one = [] {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, remembered.path());
        auto* made = new QApplication(count, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
        // Steps follow each other faster than a hand does.
        QApplication::setDoubleClickInterval(0);
        dress_application(*made);
        return made;
    }();
    return *one;
}

/// Answers the boxes that `work` opens without a desk; the text of the last one.
inline QString told_by(const std::function<void()>& work) {
    QString told;
    QTimer look;
    look.callOnTimeout([&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box) return;
        told = box->text();
        box->accept();
    });
    look.start(5);
    work();
    return told;
}

/// A desk behind real windows. What the user does is prepared in steps, each of which runs when
/// the program waits; the last one done, the program ends.
class window_stage {
 public:
    window_stage() { front.begin(desk); }

    void run(const std::function<void()>& begin, std::vector<std::function<void()>> steps) {
        steps_ = std::move(steps);
        come_back();
        desk.dispatch(begin);
        front.run();
    }

    /// A widget of the active window, by its control's address.
    template <class Widget = QWidget>
    Widget* find(const char* address) {
        return front.front_window()->findChild<Widget*>(address);
    }
    void press_button(const char* address) { QTest::mouseClick(find(address), Qt::LeftButton); }

    QApplication& toolkit = application();  ///< must be there before the front end
    local_clock time;
    script::recording_printer paper;
    script::recording_launcher programs;
    desktop_front_end front{lay_out_screen};
    ui::desk desk{front, time, paper, programs};

 private:
    /// What the program waits behind; a step that opened something lets the next one run inside it.
    struct depth {
        const void* box;
        const void* modal;
        bool waiting;
        bool operator==(const depth&) const = default;
    };
    [[nodiscard]] depth now() const { return {desk.open_box(), desk.modal(), desk.waiting()}; }

    // Each step calls for the next before it runs, since it may itself wait for that one.
    void come_back() {
        QTimer::singleShot(5, &here_, [this] { next_step(); });
    }
    void next_step() {
        if (desk.ended()) return;
        come_back();
        const QWidget* window = front.front_window();
        const bool busy = desk.pointer_shape() == pointer::busy;
        if (busy || (window && !window->isActiveWindow())) return;
        // A step in the midst of its work only serves events.
        if (running_ && *running_ == now()) return;
        if (next_ == steps_.size()) return front.end_by_user();
        const auto step = steps_[next_++];
        const auto outer = std::exchange(running_, now());
        step();
        running_ = outer;
    }

    QApplication& application_ = application();
    std::vector<std::function<void()>> steps_;
    std::size_t next_ = 0;
    std::optional<depth> running_;  ///< how things stood when the step at work began
    QObject here_;
};

/// A screen of a test's own in its window.
template <class Form>
class window_of : public testing::Test {
 protected:
    void run(std::vector<std::function<void()>> steps) {
        const auto open = [this] {
            auto made = std::make_unique<Form>(bench.desk);
            screen = made.get();
            bench.desk.load(std::move(made)).show();
        };
        bench.run(open, std::move(steps));
    }

    window_stage bench;
    Form* screen = nullptr;
};

}  // namespace vantora::ui::desktop::test
