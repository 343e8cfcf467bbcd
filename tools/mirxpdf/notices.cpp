#include "mirxpdf/notices.h"

#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <iostream>

#include "desktop/look/box_look.h"

namespace vantora::mirxpdf {

namespace {

void write(const QString& what) {
    std::cerr << "mirxpdf: " << what.toStdString() << '\n';
}

constexpr const char* title = "Documento PDF";

}  // namespace

void notices::show_with_open(const QString& text, const QString& pdf, bool is_warning) const {
    QMessageBox box(QMessageBox::NoIcon, title, text + "\n\n" + QDir::toNativeSeparators(pdf));
    box.setTextFormat(Qt::PlainText);
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* open = box.addButton("Apri", QMessageBox::AcceptRole);
    auto* close = box.addButton("Chiudi", QMessageBox::RejectRole);
    box.setDefaultButton(open);
    box.setEscapeButton(close);
    ui::dress_box(box, is_warning ? ui::icon::warning : ui::icon::information);
    box.exec();
    if (box.clickedButton() == open) open_(pdf);
}

void notices::failure(const QString& what) const {
    write(what);
    if (!open_) return;
    QMessageBox box(QMessageBox::NoIcon, title, what, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    ui::dress_box(box, ui::icon::stop);
    box.exec();
}

void notices::not_sent(const QString& what, const QString& pdf) const {
    write(what);
    write("il PDF resta in " + pdf);
    if (open_) show_with_open(what, pdf, true);
}

void notices::done(const QString& what, const QString& odd, const QString& pdf) const {
    if (!odd.isEmpty()) write(what + odd);
    if (open_) show_with_open(what + odd, pdf, !odd.isEmpty());
}

}  // namespace vantora::mirxpdf
