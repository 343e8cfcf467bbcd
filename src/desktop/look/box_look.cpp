#include "desktop/look/box_look.h"

#include <QAbstractButton>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>

#include "desktop/look/style.h"

namespace vantora::ui {

namespace {

constexpr int narrowest = 330;
constexpr QSize picture_size(40, 40);

// In the order of the enumeration.
constexpr const char* pictures[] = {"fermo", "avviso", "domanda", "informazione"};

/// The style's least width would let longer captions be cut.
class whole_captions final : public QObject {
 public:
    explicit whole_captions(QMessageBox& box) : QObject(&box), box_(box) {
        box.installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Show) return false;
        for (QAbstractButton* one : box_.buttons()) one->setMinimumWidth(one->sizeHint().width());
        return false;
    }

 private:
    QMessageBox& box_;
};

}  // namespace

void dress_box(QMessageBox& box, icon sign) {
    box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowCloseButtonHint);
    const QIcon picture = picture_named(pictures[static_cast<std::size_t>(sign)]);
    box.setIconPixmap(picture.pixmap(picture_size, box.devicePixelRatio()));
    auto* rows = static_cast<QGridLayout*>(box.layout());
    // Icon and text stand on one line.
    for (const char* name : {"qt_msgbox_label", "qt_msgboxex_icon_label"}) {
        auto* part = box.findChild<QLabel*>(name);
        if (!part) continue;
        part->setAlignment(Qt::AlignVCenter | Qt::AlignLeft);
        rows->setAlignment(part, Qt::AlignVCenter);
        rows->setRowMinimumHeight(0,
                                  std::max(rows->rowMinimumHeight(0), part->sizeHint().height()));
    }
    // The text takes the room, not the icon.
    rows->setColumnStretch(rows->columnCount() - 1, 1);
    new whole_captions(box);
    rows->addItem(new QSpacerItem(narrowest, 0), rows->rowCount(), 0, 1, rows->columnCount());
}

}  // namespace vantora::ui
