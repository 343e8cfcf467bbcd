#include "ui/desktop/box_look.h"

#include <QGridLayout>
#include <QMessageBox>

#include "ui/desktop/form_window.h"

namespace vantora::ui::desktop {

namespace {

constexpr int narrowest = 330;
constexpr QSize picture_size(40, 40);

const char* picture_of(icon sign) {
    switch (sign) {
        case icon::stop:
            return "fermo";
        case icon::warning:
            return "avviso";
        case icon::question:
            return "domanda";
        case icon::information:
            break;
    }
    return "informazione";
}

}  // namespace

void dress_box(QMessageBox& box, icon sign) {
    box.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                       Qt::WindowCloseButtonHint);
    box.setIconPixmap(picture_named(picture_of(sign)).pixmap(picture_size, box.devicePixelRatio()));
    auto* rows = static_cast<QGridLayout*>(box.layout());
    rows->addItem(new QSpacerItem(narrowest, 0), rows->rowCount(), 0, 1, rows->columnCount());
}

}  // namespace vantora::ui::desktop
