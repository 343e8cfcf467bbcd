#pragma once

#include <QWidget>
#include <set>
#include <string>

#include "desktop/lists/shown_list.h"

namespace vantora::ui::desktop {

/// Lies over the rows of a list and takes no mouse: frames the cells in which a text was found and
/// tints the rows that the user marked. The list beneath knows nothing of either.
class list_overlay final : public QWidget {
 public:
    explicit list_overlay(const shown_list& list);

    /// Frames the cells that hold this text, searchable(); an empty one frames none. `at`: the row
    /// that the search stands on, -1 for none.
    void show_found(std::string wanted, int at);
    /// Marks last until the list changes.
    void show_marked(std::set<int> rows);
    [[nodiscard]] std::set<int> marked() const;

 protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void cover();
    void paint_row(QPainter& painter, int row);

    shown_list list_;
    std::string wanted_;
    int found_ = -1;
    std::set<int> marked_;
    std::uint64_t marked_at_ = 0;  ///< the list's revision then
};

}  // namespace vantora::ui::desktop
