#include "desktop/form_window.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QCloseEvent>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

#include "desktop/controls/grid_view.h"
#include "desktop/keys/manual.h"
#include "desktop/lists/list_tools.h"
#include "desktop/look/style.h"
#include "text/code_page.h"
#include "ui/desk.h"

namespace vantora::ui::desktop {

namespace {

// What the window system's frame takes, about.
constexpr int title_room = 30;
constexpr QSize frame_room(8, title_room + 6);

QString caption_of(const further_window& one) {
    return QString::fromStdString(to_utf8(one.caption));
}

void fill_menu(form_window& window, QMenu& menu) {
    const auto& all = window.screen().further_windows();
    for (std::size_t i = 0; i < all.size(); ++i) {
        const QString key =
            QKeySequence(QString::fromStdString(all[i].key)).toString(QKeySequence::NativeText);
        const int waiting = all[i].count ? all[i].count() : 0;
        const QString behind = waiting > 0 ? QString(" (%1)").arg(waiting) : QString();
        QAction* entry = menu.addAction(caption_of(all[i]) + behind + "\t" + key, &window,
                                        [&window, i] { window.open_further(i); });
        entry->setEnabled(all[i].can_open());
    }
}

/// The caption with a letter for Alt that no other command of the window has.
QString with_free_letter(QString caption, const QWidget& window) {
    const auto taken = [&window](QChar letter) {
        const QKeySequence keys(QString("Alt+") + letter);
        return std::ranges::any_of(window.findChildren<QAbstractButton*>(), [&](const auto* one) {
            return QKeySequence::mnemonic(one->text()) == keys;
        });
    };
    for (qsizetype i = 0; i < caption.size() && caption[i].isLetter(); ++i) {
        if (!taken(caption[i])) return caption.insert(i, '&');
    }
    return caption;
}

/// The windows that a screen opens beyond the system's own: by their keys, and by a menu in its bar
/// of commands. Nothing for a screen that opens none.
void add_further_windows(form_window& window) {
    const auto& all = window.screen().further_windows();
    if (all.empty()) return;
    for (std::size_t i = 0; i < all.size(); ++i) {
        add_key(window, QString::fromStdString(all[i].key), caption_of(all[i]).remove('&'),
                [&window, i] { window.open_further(i); });
    }
    QHBoxLayout* row = command_bar_of(window);
    if (!row) return;
    row->addWidget(menu_button(window, "altro", with_free_letter("Altro ▾", window),
                               "Altre finestre che si aprono da qui",
                               [&window](QMenu& menu) { fill_menu(window, menu); }),
                   0, Qt::AlignTop);
}

}  // namespace

form_window::form_window(form& screen, const screen_layouts& layouts, user by, window_events events)
    : screen_(&screen), by_(std::move(by)), events_(std::move(events)) {
    setObjectName(to_qt(screen.name()));
    setWindowTitle(to_qt(screen.title()));
    for (control* one : screen.controls()) binders_[one] = make_binder(*one, this, by_);
    follow_controls_by_tab();
    if (!layouts || !layouts(*this)) stack_controls();
    for (const control* one : screen.controls()) {
        if (one->kind() != control_kind::grid && one->kind() != control_kind::list_box) continue;
        add_list_tools(*this, *one, static_cast<QAbstractItemView&>(widget_of(*one)));
    }
    add_further_windows(*this);
    add_help(*this);
    make_scrollable();
    name_the_rest();
    if (by_person()) recall();
}

form_window::~form_window() {
    forget_screen();
}

void form_window::forget_screen() {
    if (!screen_) return;
    for (control* one : screen_->controls()) one->attach(nullptr);
    screen_ = nullptr;
    for (auto& [model, one] : binders_) one->retire();
}

QToolButton* form_window::dress(const button& command, const command_look& look,
                                Qt::ToolButtonStyle style) {
    QToolButton* shown = widget(command);
    shown->setIcon(picture_named(look.icon));
    shown->setText(look.caption);
    shown->setToolButtonStyle(style);
    shown->setToolTip(look.tooltip);
    if (*look.shortcut != '\0') add_shortcut(*shown, look.shortcut);
    shown->setAccessibleName(QString(look.caption).remove('&'));
    shown->setAccessibleDescription(look.tooltip);
    return shown;
}

/// One below the other, for a screen without a layout.
void form_window::stack_controls() {
    auto* rows = new QFormLayout(this);
    for (const control* one : screen_->controls()) {
        if (one->kind() == control_kind::picture) continue;  // lies in front of all others
        auto* column = new QVBoxLayout;                      // what goes with a list joins it there
        column->addWidget(&widget_of(*one));
        rows->addRow(to_qt(one->address()), column);
    }
}

void form_window::open_further(std::size_t place) const {
    if (!screen_ || !screen_->further_windows()[place].can_open()) return;
    for (control* one : screen_->controls()) {
        if (screen_->desk().obstacle(*one)) continue;
        return by_.act(*one, [this, place] { screen_->further_windows()[place].open(); });
    }
}

void form_window::make_scrollable() {
    area_ = new QScrollArea(this);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setWidgetResizable(true);
    area_->setFocusPolicy(Qt::NoFocus);
    auto* body = new QWidget(area_);
    body->setLayout(layout());
    // What lies over the layout goes with it.
    for (auto* one : findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (one == area_) continue;
        const bool seen = !one->isHidden();
        one->setParent(body);
        one->setVisible(seen);
    }
    body->setMinimumSize(minimumSize().expandedTo(body->minimumSizeHint()));
    setMinimumSize(0, 0);
    area_->setWidget(body);
    auto* whole = new QVBoxLayout(this);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(area_);
}

void form_window::show_title(const QString& end) {
    QStringList parts{to_qt(screen_->title())};
    for (const QString& one : {to_qt(screen_->subject()), end}) {
        if (!one.isEmpty()) parts << one;
    }
    // The toolkit has a use of its own for this sign.
    setWindowTitle(parts.join(" - ").replace("[*]", "[*][*]"));
}

void form_window::follow_controls_by_tab() {
    std::vector<QWidget*> stops;
    for (control* one : screen_->controls()) {
        if (one->focusable()) stops.push_back(&binders_.at(one)->widget());
    }
    set_tab_order(stops);
}

void form_window::name_the_rest() {
    for (const auto& [model, one] : binders_) {
        if (model->kind() == control_kind::label || model->kind() == control_kind::picture)
            continue;
        QWidget& control = one->widget();
        if (auto* box = qobject_cast<QComboBox*>(&control)) {
            box->view()->setAccessibleName(box->accessibleName());
        }
        const QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(&control);
        if (!heard || !heard->text(QAccessible::Name).isEmpty()) continue;
        QString name = windowTitle();
        for (const QWidget* around = control.parentWidget(); around != this;
             around = around->parentWidget()) {
            const auto* frame = qobject_cast<const QGroupBox*>(around);
            if (frame) name = frame->title().remove('&');
        }
        control.setAccessibleName(name);
    }
}

void form_window::set_tab_order(const std::vector<QWidget*>& stops) {
    for (std::size_t i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

void form_window::begin_in(control& one, std::function<void()> more) {
    auto* look = new QTimer(this);
    connect(look, &QTimer::timeout, this, [this, look, &one, more = std::move(more)] {
        if (screen_ && (!screen_->visible() || !one.visible() || screen_->desk().open_box())) {
            return;
        }
        look->deleteLater();
        act_on(one, [&one, &more] {
            one.set_focus();
            if (more) more();
        });
    });
    look->start(10);
}

/// How the user left what can be dragged in the window.
void form_window::recall() {
    // Calendars have tables of their own.
    for (auto* table : findChildren<QTableView*>()) {
        if (auto* list = dynamic_cast<grid_view*>(table)) {
            list->remember_widths("windows/" + objectName() + "/" + list->objectName());
        }
    }
    for (auto* splitter : findChildren<QSplitter*>()) {
        const QString name = "windows/" + objectName() + "/" + splitter->objectName();
        splitter->restoreState(QSettings().value(name).toByteArray());
        connect(splitter, &QSplitter::splitterMoved, this,
                [splitter, name] { QSettings().setValue(name, splitter->saveState()); });
    }
}

QSize form_window::size_on(const QRect& room) const {
    QSize size = first_size_;
    if (by_person()) {
        size = QSettings().value("windows/" + objectName() + "/size", size).toSize();
    }
    return size.boundedTo(room.size() - frame_room);
}

void form_window::appear(const window_place& place) {
    const bool modal = screen_->desk().modal() == screen_;
    const QScreen* around = place.known ? QGuiApplication::screenAt(place.middle) : nullptr;
    const QRect room = (around ? around : QGuiApplication::primaryScreen())->availableGeometry();
    if (!placed_) resize(size_on(room));
    placed_ = true;
    setWindowModality(modal ? Qt::ApplicationModal : Qt::NonModal);
    const bool full_screen = place.known
                                 ? place.full_screen
                                 : by_person() && QSettings().value("windows/maximised").toBool();
    setWindowState(full_screen && !modal ? windowState() | Qt::WindowMaximized
                                         : windowState() & ~Qt::WindowMaximized);
    QRect inside(QPoint(), normal_size());
    inside.moveCenter(place.known ? place.middle : room.center() + QPoint(0, title_room / 2));
    inside.moveRight(std::min(inside.right(), room.right()));
    inside.moveBottom(std::min(inside.bottom(), room.bottom()));
    inside.moveTopLeft(QPoint(std::max(inside.left(), room.left()),
                              std::max(inside.top(), room.top() + title_room)));
    // A geometry set now would be that of the maximised window.
    if (!isMaximized()) setGeometry(inside);
    show();
}

QSize form_window::normal_size() const {
    return isMaximized() && normalGeometry().isValid() ? normalGeometry().size() : size();
}

window_place form_window::place() const {
    return {true, geometry().center(), isMaximized()};
}

void form_window::focus_on(control& one) {
    QWidget& target = widget_of(one);
    // As if the user had come by Tab: what stands in a field is there to be typed over. A window
    // that only comes to the front keeps quiet about a field that had its focus before.
    if (!target.hasFocus()) {
        target.setFocus(Qt::TabFocusReason);
        select_text(one);
    }
    const QSize room = area_->viewport()->size();
    const bool fits = target.width() <= room.width() && target.height() <= room.height();
    if (fits && area_->widget()->isAncestorOf(&target)) area_->ensureWidgetVisible(&target);
}

void form_window::select_text(control& one) {
    if (one.kind() == control_kind::text_box) {
        static_cast<QLineEdit&>(widget_of(one)).selectAll();
    }
}

void form_window::closeEvent(QCloseEvent* event) {
    // The screen decides what closing means.
    event->ignore();
    if (screen_) events_.close(*screen_);
}

bool form_window::event(QEvent* event) {
    if (event->type() == QEvent::KeyPress &&
        asks_for_manual(static_cast<QKeyEvent&>(*event), focusWidget())) {
        open_manual(this);
        return true;
    }
    if (event->type() == QEvent::Hide && placed_ && by_person()) {
        if (!isMaximized()) QSettings().setValue("windows/" + objectName() + "/size", size());
        if (!isModal()) QSettings().setValue("windows/maximised", isMaximized());
    }
    if (event->type() == QEvent::WindowActivate && screen_) events_.come_forward(*screen_);
    return QWidget::event(event);
}

}  // namespace vantora::ui::desktop
