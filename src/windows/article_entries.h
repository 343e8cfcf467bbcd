#pragma once

#include <QStyledItemDelegate>

#include "ui/list_controls.h"

namespace vantora::ui::desktop {

/// Shows the entries of the article list, of which each is a code and a description in fixed
/// widths and a record number far to the right: code and description in two columns, the number
/// not at all.
class article_entries final : public QStyledItemDelegate {
 public:
    article_entries(const list_control& articles, QObject* parent)
        : QStyledItemDelegate(parent), articles_(articles) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    /// The description may be wider than the list: its tooltip has it all.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

 private:
    const list_control& articles_;
};

}  // namespace vantora::ui::desktop
