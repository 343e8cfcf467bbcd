#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

namespace vantora::ui::desktop {

/// How far a long print is, with a button that stops it. It comes up when it takes its time.
class print_progress {
 public:
    explicit print_progress(const QString& called);

    /// So much is done, of 0 to 1. False: the user stops it.
    bool shows(double done);

 private:
    QProgressDialog dialog_;
    QElapsedTimer since_shown_;
};

}  // namespace vantora::ui::desktop
