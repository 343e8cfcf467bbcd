#pragma once

#include <QObject>
#include <functional>

namespace vantora::ui::desktop {

/// Calls for the program's end when the desktop's session ends or the process is asked to end
/// (SIGTERM, SIGINT, SIGHUP). One a process.
class outside_end final : public QObject {
 public:
    /// `may_end`: asks whether the session may end with the program.
    outside_end(std::function<bool()> may_end, std::function<void()> end);
    ~outside_end() override;

 private:
    std::function<void()> end_;
};

}  // namespace vantora::ui::desktop
