#include "mirxpdf/notices.h"

#include <QDesktopServices>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>
#include <iostream>

namespace vantora::mirxpdf {

namespace {

void write(const QString& what) {
    std::cerr << "mirxpdf: " << what.toStdString() << '\n';
}

void show_with_open(QMessageBox::Icon icon, const QString& text, const QString& pdf) {
    QMessageBox box(icon, "Documento PDF", text);
    box.setTextFormat(Qt::PlainText);
    box.setInformativeText(QDir::toNativeSeparators(pdf));
    box.setTextInteractionFlags(Qt::TextSelectableByMouse);
    const auto* open = box.addButton("Apri", QMessageBox::AcceptRole);
    auto* close = box.addButton("Chiudi", QMessageBox::RejectRole);
    box.setEscapeButton(close);
    box.exec();
    if (box.clickedButton() == open) QDesktopServices::openUrl(QUrl::fromLocalFile(pdf));
}

}  // namespace

void notices::failure(const QString& what) const {
    write(what);
    if (!in_windows_) return;
    QMessageBox box(QMessageBox::Critical, "Documento PDF", what, QMessageBox::Ok);
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

void notices::not_sent(const QString& what, const QString& pdf) const {
    write(what);
    write("il PDF resta in " + pdf);
    if (in_windows_) show_with_open(QMessageBox::Warning, what, pdf);
}

void notices::done(const QString& what, const QString& pdf) const {
    if (in_windows_) show_with_open(QMessageBox::Information, what, pdf);
}

}  // namespace vantora::mirxpdf
