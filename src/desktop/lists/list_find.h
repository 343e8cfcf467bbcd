#pragma once

#include <QPointer>
#include <QWidget>
#include <cstdint>
#include <vector>

#include "desktop/lists/list_overlay.h"

class QLabel;
class QLineEdit;

namespace vantora::ui::desktop {

/// The line under a list in which the user types what to find. It walks the rows that hold the
/// text; nothing is hidden or reordered. In a grid the row found is the one highlighted, as if the
/// arrows had led there; in a list box, whose highlighted entry is the one picked, it is only
/// framed.
class list_find final : public QWidget {
 public:
    list_find(const shown_list& list, list_overlay& overlay, QWidget* parent);

    void open();

 protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

 private:
    void leave();
    /// Leaves and takes the row that was found.
    void take();
    void typed();
    /// To the next match, or by -1 to the one before.
    void walk(int step);
    /// Looks anew if the text or the list has changed meanwhile.
    void search();
    void stand_on(std::size_t match);
    void show_count();

    shown_list list_;
    list_overlay& overlay_;
    QLineEdit* text_;
    QLabel* count_;
    std::vector<std::string> texts_;              ///< of the rows, searchable()
    std::uint64_t searched_ = ~std::uint64_t{0};  ///< the list's revision in `texts_`
    std::vector<int> found_;
    std::string wanted_;
    int at_ = -1;     ///< row of the match stood on; -1: none
    int origin_ = 0;  ///< row from which the typing searches on
    QPointer<QWidget> before_;
};

}  // namespace vantora::ui::desktop
