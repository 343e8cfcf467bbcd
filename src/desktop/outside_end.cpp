#include "desktop/outside_end.h"

#include <QGuiApplication>
#include <QSessionManager>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace vantora::ui::desktop {

namespace {

constexpr int end_signals[] = {SIGTERM, SIGINT, SIGHUP};

// A handler may do next to nothing: it writes a byte, and the event loop does the rest.
std::array<int, 2> alarm_pipe{-1, -1};

void raise_alarm(int) {
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const auto written = write(alarm_pipe[1], &byte, 1);
    errno = error;
}

}  // namespace

outside_end::outside_end(std::function<bool()> may_end, std::function<void()> end)
    : end_(std::move(end)) {
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [this, may_end = std::move(may_end)](QSessionManager& session) {
                if (session.allowsInteraction() && !may_end()) return session.cancel();
                end_();
            });
    if (pipe2(alarm_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;
    auto* alarm = new QSocketNotifier(alarm_pipe[0], QSocketNotifier::Read, this);
    connect(alarm, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        [[maybe_unused]] const auto taken = read(alarm_pipe[0], &byte, 1);
        end_();
    });
    for (const int one : end_signals) std::signal(one, raise_alarm);
}

outside_end::~outside_end() {
    if (alarm_pipe[0] < 0) return;
    for (const int one : end_signals) std::signal(one, SIG_DFL);
    for (int& end : alarm_pipe) {
        close(end);
        end = -1;
    }
}

}  // namespace vantora::ui::desktop
