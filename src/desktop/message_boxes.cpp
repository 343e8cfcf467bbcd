#include "desktop/message_boxes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>

#include "desktop/look/box_look.h"
#include "ui/paper/toolkit_values.h"

namespace vantora::ui::desktop {

namespace {

constexpr char answer_property[] = "answer";

struct box_button {
    QString caption;
    QMessageBox::ButtonRole role;
    answer gives;
};

/// A caption whose first letter that no other has chooses it; `taken` gets that letter.
QString with_letter(QString caption, QString& taken) {
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (!caption[i].isLetter() || taken.contains(caption[i], Qt::CaseInsensitive)) continue;
        taken += caption[i];
        return caption.insert(i, '&');
    }
    return caption;
}

/// In the order shown; the last one is what Escape gives.
std::vector<box_button> buttons_of(const message_box& box) {
    switch (box.buttons) {
        case buttons::ok:
            return {{"OK", QMessageBox::AcceptRole, answer::ok}};
        case buttons::yes_no:
            return {{"&Sì", QMessageBox::YesRole, answer::yes},
                    {"&No", QMessageBox::NoRole, answer::no}};
        case buttons::choice:
            break;
    }
    std::vector<box_button> all;
    QString letters;
    for (const std::string& caption : box.choices) {
        all.push_back({with_letter(to_qt(caption), letters), QMessageBox::ActionRole,
                       static_cast<answer>(all.size() + 1)});
    }
    return all;
}

/// A bar code that is read while a box is open doesn't answer it by its Enter: the box shows it.
/// Nor does a letter choose that was typed before the choices could be seen.
class read_meanwhile final : public QObject {
 public:
    read_meanwhile(QMessageBox& box, bool choices) : QObject(&box), box_(box), choices_(choices) {
        since_.start();
        box.installEventFilter(this);
        for (QAbstractButton* one : box.buttons()) one->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) return false;
        const auto& key = static_cast<QKeyEvent&>(*event);
        if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) {
            if (!open_) return false;
            open_ = false;
            const int width = box_.width();
            box_.setInformativeText(
                QString("Letto intanto, e non inserito: %1").arg(read_.trimmed()));
            box_.setFixedWidth(std::max(box_.width(), width));
            read_ += ' ';
            return true;
        }
        const QString typed = key.text();
        if (choices_ && !typed.isEmpty() && typed[0].isLetter() &&
            since_.elapsed() < QApplication::doubleClickInterval()) {
            return true;
        }
        if (typed.size() != 1 || !typed[0].isDigit()) return false;
        read_ += typed;
        open_ = true;
        return true;
    }

 private:
    QMessageBox& box_;
    bool choices_;
    QElapsedTimer since_;
    QString read_;
    bool open_ = false;  ///< digits came, and no Enter behind them yet
};

}  // namespace

void message_boxes::open(const message_box& box, QWidget* above, std::function<void(answer)> give) {
    auto* shown = new QMessageBox(above);
    shown->setWindowTitle(to_qt(box.title));
    shown->setTextFormat(Qt::PlainText);
    shown->setText(to_qt_lines(box.text));
    for (const box_button& one : buttons_of(box)) {
        QPushButton* button = shown->addButton(one.caption, one.role);
        button->setProperty(answer_property, static_cast<int>(one.gives));
        if (one.gives == box.proposed || box.buttons == buttons::ok) {
            shown->setDefaultButton(button);
        }
        shown->setEscapeButton(button);  // the last one stays
    }
    new read_meanwhile(*shown, box.buttons == buttons::choice);
    dress_box(*shown, box.icon);
    shown->setWindowModality(Qt::ApplicationModal);
    QObject::connect(shown, &QMessageBox::finished, shown, [shown, give = std::move(give)] {
        const QAbstractButton* clicked = shown->clickedButton();
        if (!clicked) clicked = shown->escapeButton();
        give(static_cast<answer>(clicked->property(answer_property).toInt()));
    });
    open_.push_back(shown);
    shown->show();
}

void message_boxes::close_front() {
    QMessageBox* box = open_.back();
    open_.pop_back();
    QObject::disconnect(box, &QMessageBox::finished, nullptr, nullptr);
    box->hide();
    box->deleteLater();
}

QWidget* message_boxes::front() const {
    return open_.back();
}

}  // namespace vantora::ui::desktop
