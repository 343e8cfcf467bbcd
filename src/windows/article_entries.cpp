#include "windows/article_entries.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/look/tip.h"
#include "entry/article_list.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

constexpr int margin = 6;  // dots
constexpr const char* wide_code = "WAG00000";

}  // namespace

void article_entries::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    row.text.clear();
    const QStyle* style = row.widget ? row.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const bool chosen = (row.state & QStyle::State_Selected) != 0;
    const bool enabled = (row.state & QStyle::State_Enabled) != 0;
    painter->setPen(row.palette.color(enabled ? QPalette::Active : QPalette::Disabled,
                                      chosen ? QPalette::HighlightedText : QPalette::Text));
    painter->setFont(row.font);
    const QFontMetrics& metrics = row.fontMetrics;
    const QRect room = row.rect.adjusted(margin, 0, -margin, 0);
    const QString code = to_qt(entry_code(articles_.item(index.row())));
    const int column =
        std::max(metrics.horizontalAdvance(wide_code), metrics.horizontalAdvance(code)) + margin;
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine, code);
    const QRect rest = room.adjusted(column, 0, 0, 0);
    const QString description = to_qt(entry_description(articles_.item(index.row())));
    // Sizes and makers, which tell articles of a kind apart, stand at the end.
    painter->drawText(rest, Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(description, Qt::ElideMiddle, rest.width()));
}

QSize article_entries::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {100, option.fontMetrics.height() + 4};
}

bool article_entries::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                const QStyleOptionViewItem&, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
    show_tip(event->globalPos(), to_qt(entry_description(articles_.item(index.row()))), view);
    return true;
}

}  // namespace vantora::ui::desktop
