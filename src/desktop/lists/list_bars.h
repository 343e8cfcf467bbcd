#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <map>

class QProgressBar;
class QWidget;

namespace vantora::ui {
class control;
}

namespace vantora::ui::desktop {

/// The bars that tell how far lists are that take long to fill; each stands where its list will be.
class list_bars {
 public:
    /// So much of a list is there, of 0 to 1; the first call begins it. `place`: the list's widget,
    /// null if its window isn't there yet. True if it is time to paint.
    bool show(const control& list, QWidget* place, double done);
    /// Nothing, if the list wasn't begun.
    void end(const control& list);

    [[nodiscard]] bool none() const { return lists_.empty(); }

 private:
    struct filling {
        QElapsedTimer since;
        qint64 painted = 0;
        QPointer<QProgressBar> bar;  ///< may go with its window
    };

    std::map<const control*, filling> lists_;
};

}  // namespace vantora::ui::desktop
