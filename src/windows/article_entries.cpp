#include "windows/article_entries.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>

#include "text/code_page.h"

namespace vantora::ui::desktop {

namespace {

constexpr int code_width = 15;  // characters
constexpr int between = 3;      // " - "
constexpr int margin = 6;       // dots
constexpr const char* wide_code = "WAG00000";

QString description_of(QString entry) {
    while (!entry.isEmpty() && entry.back().isDigit()) entry.chop(1);
    return entry.mid(code_width + between).trimmed();
}

}  // namespace

article_parts parts_of_article(std::string_view entry) {
    const std::size_t end = entry.find_last_not_of("0123456789");
    const std::string_view whole = entry.substr(0, end == std::string_view::npos ? 0 : end + 1);
    const auto cut = [&](std::size_t from) {
        return trimmed(whole.substr(std::min<std::size_t>(from, whole.size())));
    };
    return {trimmed(whole.substr(0, code_width)), cut(code_width + between)};
}

void article_entries::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
    QStyleOptionViewItem row = option;
    initStyleOption(&row, index);
    const QString entry = row.text;
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
    const QString code = entry.left(code_width).trimmed();
    const int column =
        std::max(metrics.horizontalAdvance(wide_code), metrics.horizontalAdvance(code)) + margin;
    painter->drawText(room, Qt::AlignVCenter | Qt::TextSingleLine, code);
    const QRect rest = room.adjusted(column, 0, 0, 0);
    // Sizes and makers, which tell articles of a kind apart, stand at the end.
    painter->drawText(rest, Qt::AlignVCenter | Qt::TextSingleLine,
                      metrics.elidedText(description_of(entry), Qt::ElideMiddle, rest.width()));
}

QSize article_entries::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {100, option.fontMetrics.height() + 4};
}

bool article_entries::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                const QStyleOptionViewItem&, const QModelIndex& index) {
    if (event->type() != QEvent::ToolTip || !index.isValid()) return false;
    QToolTip::showText(event->globalPos(), description_of(index.data().toString()), view);
    return true;
}

}  // namespace vantora::ui::desktop
