#pragma once

#include <QStyledItemDelegate>
#include <string_view>

namespace vantora::ui::desktop {

/// What shows of an entry of the article list.
struct article_parts {
    std::string_view code;
    std::string_view description;
};
article_parts parts_of_article(std::string_view entry);

/// Shows the entries of the article list, of which each is a code and a description in fixed
/// widths and a record number far to the right: code and description in two columns, the number
/// not at all.
class article_entries final : public QStyledItemDelegate {
 public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    /// The description may be wider than the list: its tooltip has it all.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

}  // namespace vantora::ui::desktop
