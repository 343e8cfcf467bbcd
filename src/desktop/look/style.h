#pragma once

#include <QIcon>

class QApplication;

namespace vantora::ui {

/// The look of the whole program: calm, light, one accent colour, a focus that can be seen.
void dress_application(QApplication& application);

/// A picture of the program, by its name in icons/. REQUIRES: the application is dressed.
QIcon picture_named(const char* name);

}  // namespace vantora::ui
