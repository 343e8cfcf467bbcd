#include "desktop/look/contrast.h"

#include <QGuiApplication>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace vantora::ui {

namespace {

double linear(double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double brightness(const QColor& of) {
    return 0.2126 * linear(of.redF()) + 0.7152 * linear(of.greenF()) + 0.0722 * linear(of.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({brightness(one), brightness(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor readable_on(const QColor& background) {
    const QColor usual = QGuiApplication::palette().color(QPalette::Text);
    if (contrast(usual, background) >= text_contrast_min) return usual;
    return contrast(Qt::black, background) >= contrast(Qt::white, background) ? Qt::black
                                                                              : Qt::white;
}

}  // namespace vantora::ui
