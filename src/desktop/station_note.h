#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <string>

class QLabel;
class QWidget;

namespace vantora::ui::desktop {

/// A line in the middle of a window that tells for what the program waits: another station.
class station_note {
 public:
    /// The wait for a station, empty if it isn't known, goes on; the first call begins it. True if
    /// it is time to paint.
    bool show(QWidget* window, const std::string& station);
    void end();

    [[nodiscard]] bool waiting() const { return since_.isValid(); }

 private:
    QElapsedTimer since_;
    QPointer<QLabel> line_;  ///< may go with its window
};

}  // namespace vantora::ui::desktop
