#include "desktop/look/style.h"

#include <QApplication>
#include <QFont>
#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QProxyStyle>
#include <QTranslator>
#include <string_view>
#include <utility>

// The pictures lie in a static library, which would leave them out; Qt wants this outside of any
// namespace.
static void make_pictures_known() {
    Q_INIT_RESOURCE(icons);
}

namespace vantora::ui {

namespace {

/// Fusion without the pictures on the buttons of dialogs and with room beside the texts of cells.
class calm_style final : public QProxyStyle {
 public:
    calm_style() : QProxyStyle("Fusion") {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* result) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        if (hint == SH_ComboBox_Popup) return 0;  // a dozen entries, not the whole screen
        return QProxyStyle::styleHint(hint, option, widget, result);
    }
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        if (metric == PM_FocusFrameHMargin) return 5;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/// What the toolkit's translation lacks, or calls by another name than the keyboards here.
constexpr std::pair<std::string_view, const char*> missing[] = {
    {"Folder", "Cartella"}, {"Pages", "Pagine"}, {"Advanced", "Avanzate"}, {"Shift", "Maiusc"}};

class missing_texts final : public QTranslator {
 public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char*, const char* source, const char*, int) const override {
        for (const auto& [english, italian] : missing) {
            if (std::string_view(source) == english) return italian;
        }
        return {};
    }
};

/// The toolkit's own texts, as in its printer dialog, in the language of the program.
void speak_italian(QApplication& application) {
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* texts = new QTranslator(&application);
    if (texts->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QApplication::installTranslator(texts);
    }
    QApplication::installTranslator(new missing_texts(&application));
}

constexpr const char* sheet = R"(
QToolButton { border: 1px solid transparent; border-radius: 5px; padding: 4px 8px; }
QToolButton:hover { background: #e3edf6; border-color: #c3d6e6; }
QToolButton:pressed { background: #cfe0ee; padding: 5px 8px 3px 8px; }
QToolButton:focus { border-color: #2f6ea5; }
QToolButton:disabled { color: #5a6671; }
QToolButton[look="plain"] { background: #f6f8fa; border-color: #808d99;
                            padding: 3px 2px 3px 9px; }
QToolButton[look="plain"]:pressed { padding: 4px 2px 2px 9px; }
QToolButton[look="words"] { background: #f6f8fa; border-color: #808d99; padding: 3px 9px; }
QToolButton[look="words"]:pressed { padding: 4px 9px 2px 9px; }
QToolButton[look="plain"]:hover, QToolButton[look="words"]:hover { background: #e3edf6; }
QToolButton[look="plain"]:focus, QToolButton[look="words"]:focus { border-color: #2f6ea5; }
QToolButton[look="leave"] { background: #f6f8fa; border-color: #808d99; padding: 6px 14px; }
QToolButton[look="leave"]:hover { background: #e3edf6; }
QToolButton[look="leave"]:focus { border: 2px solid #2f6ea5; padding: 5px 13px; }
QToolButton[look="sort"] { background: #eef2f6; border-color: #808d99; padding: 1px 4px;
                           color: #41576a; }
QToolButton[look="sort"]:hover { background: #e3edf6; }
QToolButton[look="sort"]:focus { border-color: #2f6ea5; }
QToolButton[look="main"] { background: #24527a; color: white; border-color: #24527a;
                           padding: 6px 14px; font-weight: 600; }
QToolButton[look="main"]:hover { background: #2f6ea5; }
QToolButton[look="main"]:focus { border: 2px solid #a5cdef; background: #24527a; }
QToolButton[look="small"] { padding: 3px 4px; }
QToolButton[look="help"] { padding: 2px 7px; font-weight: 600; color: #24527a; }
QFileDialog QToolButton { padding: 3px; }
QPrintDialog QToolButton { background: #f6f8fa; border-color: #808d99; padding: 2px 6px; }
QToolButton[look="blank"] { background: transparent; border: none; }
QLineEdit, QComboBox, QDateEdit { min-height: 18px; border: 1px solid #84919d; border-radius: 4px; padding: 3px 5px;
                       background: white; selection-background-color: #2f6ea5; }
QLineEdit:focus, QComboBox:focus, QDateEdit:focus { border: 1px solid #2f6ea5;
                       background: #f4f9ff; }
QComboBox { padding: 3px 5px 3px 7px; }
QComboBox::drop-down, QDateEdit::drop-down { border: none; width: 22px; }
QComboBox::down-arrow, QDateEdit::down-arrow { image: url(:/icons/giu.svg); width: 12px;
                       height: 12px; }
QDateEdit[look="calendar"] { padding: 0; background: #f6f8fa; }
QDateEdit[look="calendar"]::drop-down { width: 30px; subcontrol-position: center; }
QDateEdit[look="calendar"]::down-arrow { image: url(:/icons/scadenziario.svg); width: 17px;
                       height: 17px; }
QDateEdit[look="calendar"]:focus { border: 1px solid #2f6ea5; background: #d8e9f8; }
QLineEdit:disabled, QComboBox:disabled, QListView:disabled { background: #e8ecf0;
                       color: #5a6671; }
QLineEdit[cell="true"] { min-height: 0; border-radius: 0; padding: 2px 4px; border-color: #84919d; }
QLineEdit[cell="current"] { min-height: 0; border-radius: 0; padding: 2px 4px; border-color: #5f8fb8;
                       background: #eaf3fb; }
QLineEdit[cell]:focus { border: 1px solid #2f6ea5; background: #fff8dc; }
QLineEdit[look="over"] { min-height: 0; border: 1px solid #2f6ea5; border-radius: 0; padding: 0 3px;
                       background: #fff8dc; }
QComboBox[look="over"] { min-height: 0; border: 1px solid #2f6ea5; background: #fff8dc; border-radius: 2px; }
QCheckBox, QRadioButton { border: 1px solid transparent; border-radius: 3px; }
QCheckBox:focus, QRadioButton:focus { background: #dcebf8; border-color: #2f6ea5; }
QPushButton { border: 1px solid #808d99; border-radius: 5px; background: #f6f8fa;
              padding: 5px 16px; min-width: 62px; outline: none; }
QPushButton:hover { background: #e3edf6; }
QPushButton:pressed { background: #cfe0ee; }
QPushButton:disabled { color: #5a6671; }
QPushButton:default { border-color: #2f6ea5; }
QPushButton:focus { border: 2px solid #2f6ea5; padding: 4px 15px; }
QMessageBox QLabel#qt_msgbox_label { padding: 8px 8px 8px 2px; }
QMessageBox QLabel#qt_msgbox_informativelabel { padding: 0 8px 8px 2px; }
QMessageBox QLabel#qt_msgboxex_icon_label { padding: 4px 6px 4px 8px; }
QCalendarWidget QWidget#qt_calendar_navigationbar { background: #e9eef3; }
QCalendarWidget QToolButton { color: #24527a; font-weight: 600; }
QCalendarWidget QToolButton#qt_calendar_prevmonth { qproperty-icon: url(:/icons/indietro.svg); }
QCalendarWidget QToolButton#qt_calendar_nextmonth { qproperty-icon: url(:/icons/avanti.svg); }
QLabel#number_hint { border: 1px solid #b58a00; border-radius: 4px; background: #fff8dc;
                     color: #4a3b00; padding: 3px 7px; }
QLineEdit[wrong="true"], QLineEdit[wrong="true"]:focus { border: 1px solid #a3271c;
                     background: #fdf0ee; }
QLabel#station_note { border: 1px solid #2f6ea5; border-radius: 6px; background: #f4f9ff;
                      color: #24527a; padding: 12px 24px; font-weight: 600; }
QToolTip { border: 1px solid #c5ced6; background: #ffffff; color: #1e2b36; padding: 3px 5px; }
QGroupBox { border: 1px solid #d3dbe2; border-radius: 6px; margin-top: 9px; padding: 8px 8px 6px 8px;
            background: #fbfcfd; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; color: #24527a;
                   font-weight: 600; }
QTableView { border: 1px solid #808d99; background: white; gridline-color: #e6ebef;
             selection-background-color: #2f6ea5; selection-color: white; }
QTableView:focus, QListView:focus { border: 1px solid #2f6ea5; }
QListView { border: 1px solid #808d99; background: white; selection-background-color: #2f6ea5;
            selection-color: white; }
QHeaderView::section { background: #e9eef3; color: #24527a; border: none;
                       border-right: 1px solid #788591; border-bottom: 1px solid #c5ced6;
                       padding: 3px 6px; font-weight: 600; }
QScrollBar { background: #eef1f4; }
QScrollBar:vertical { width: 18px; margin: 17px 0; }
QScrollBar:horizontal { height: 18px; margin: 0 17px; }
QScrollBar::handle { background: #71818f; border-radius: 4px; margin: 2px 3px; }
QScrollBar::handle:vertical { min-height: 30px; margin: 2px 3px; }
QScrollBar::handle:horizontal { min-width: 30px; margin: 3px 2px; }
QScrollBar::handle:hover { background: #55656f; }
QScrollBar::handle:disabled { background: #c5ced6; }
QScrollBar::handle:focus { background: #2f6ea5; }
QScrollBar:focus { border: 1px solid #2f6ea5; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QScrollBar::add-line, QScrollBar::sub-line { background: #e3e8ec; border: none; }
QScrollBar::add-line:vertical { height: 17px; subcontrol-position: bottom; subcontrol-origin: margin; }
QScrollBar::sub-line:vertical { height: 17px; subcontrol-position: top; subcontrol-origin: margin; }
QScrollBar::add-line:horizontal { width: 17px; subcontrol-position: right; subcontrol-origin: margin; }
QScrollBar::sub-line:horizontal { width: 17px; subcontrol-position: left; subcontrol-origin: margin; }
QScrollBar::down-arrow { image: url(:/icons/giu.svg); width: 11px; height: 11px; }
QScrollBar::up-arrow { image: url(:/icons/su.svg); width: 11px; height: 11px; }
QScrollBar::right-arrow { image: url(:/icons/avanti.svg); width: 11px; height: 11px; }
QScrollBar::left-arrow { image: url(:/icons/indietro.svg); width: 11px; height: 11px; }
QSplitter::handle { margin: 120px 0; background: qlineargradient(x1:0, x2:1,
                    stop:0.39 transparent, stop:0.4 #808d99, stop:0.6 #808d99,
                    stop:0.61 transparent); }
QSplitter::handle:hover { background: qlineargradient(x1:0, x2:1,
                    stop:0.29 transparent, stop:0.3 #2f6ea5, stop:0.7 #2f6ea5,
                    stop:0.71 transparent); }
QProgressBar { border: 1px solid #808d99; border-radius: 4px; text-align: center;
               background: white; }
QProgressBar::chunk { background: #5e97c5; border-radius: 3px; }
QLabel[role="key"] { background: #f1f5f8; border: 1px solid #84919d; border-radius: 4px;
                     padding: 1px 6px; }
QLabel[role="number"] { color: #586673; }
QFrame[role="stock"] { background: #eef3f7; border: 1px solid #d3dbe2; border-radius: 4px; }
QLabel[role="link"] { color: #1d66a6; text-decoration: underline; }
QLabel[role="faint"] { color: #586673; }
QLabel[role="warning"] { color: #a3271c; font-weight: 600; }
QLabel[role="total"] { background: white; border: 1px solid #d3dbe2; border-radius: 4px;
                       padding: 4px 8px; font-weight: 600; }
QFrame[role="head"] { background: #fbfcfd; border: none; border-bottom: 1px solid #d3dbe2; }
QFrame[role="head"] QLabel { font-weight: 600; color: #24527a; }
QLineEdit[role="told"] { color: #5a6a78; background: #f4f7f9; }
QFrame[role="bar"] { background: #f1f5f8; border: none; border-bottom: 1px solid #d3dbe2; }
)";

}  // namespace

QIcon picture_named(const char* name) {
    return QIcon(QString(":/icons/%1.svg").arg(name));
}

void dress_application(QApplication& application) {
    make_pictures_known();
    speak_italian(application);
    QApplication::setStyle(new calm_style);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor("#f7f9fb"));
    palette.setColor(QPalette::WindowText, QColor("#1e2b36"));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor("#f3f6f9"));
    palette.setColor(QPalette::Text, QColor("#1e2b36"));
    palette.setColor(QPalette::PlaceholderText, QColor("#5a6671"));
    palette.setColor(QPalette::Button, QColor("#eef2f6"));
    palette.setColor(QPalette::ButtonText, QColor("#1e2b36"));
    palette.setColor(QPalette::Highlight, QColor("#2f6ea5"));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor("#5a6671"));
    }
    QApplication::setPalette(palette);
    // The frames of boxes and options are drawn in a shade of the window's colour.
    palette.setColor(QPalette::Window, QColor("#a6b3be"));
    for (const char* kind : {"QCheckBox", "QRadioButton"}) QApplication::setPalette(palette, kind);
    QFont font = QApplication::font();
    font.setFamilies({"Liberation Sans", "DejaVu Sans", font.family()});
    font.setPointSizeF(10);
    QApplication::setFont(font);
    application.setStyleSheet(sheet);
    QApplication::setWindowIcon(picture_named("programma"));
}

}  // namespace vantora::ui
