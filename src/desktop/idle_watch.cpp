#include "desktop/idle_watch.h"

#include <QApplication>
#include <QEvent>
#include <chrono>
#include <set>

namespace vantora::ui::desktop {

namespace {

constexpr std::chrono::seconds pause{3};
constexpr qint64 untouched_for = 1500;  ///< milliseconds
constexpr qint64 rest_share = 20;       ///< what took a second isn't done again for so many

}  // namespace

idle_watch::idle_watch(std::function<void()> idle) : idle_(std::move(idle)) {
    since_touched_.start();
    every_.setInterval(pause);
    connect(&every_, &QTimer::timeout, this, &idle_watch::look);
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState now) {
                if (now == Qt::ApplicationActive) QTimer::singleShot(0, this, idle_);
            });
    qApp->installEventFilter(this);
    every_.start();
}

bool idle_watch::eventFilter(QObject*, QEvent* event) {
    static const std::set touches{QEvent::KeyPress, QEvent::MouseButtonPress,
                                  QEvent::MouseButtonRelease, QEvent::Wheel};
    if (touches.contains(event->type())) since_touched_.restart();
    return false;
}

void idle_watch::look() {
    if (since_touched_.elapsed() < untouched_for || !rests_until_.hasExpired()) return;
    QElapsedTimer takes;
    takes.start();
    idle_();
    rests_until_.setRemainingTime(takes.elapsed() * rest_share);
}

}  // namespace vantora::ui::desktop
