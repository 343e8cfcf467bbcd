#pragma once

class QApplication;

namespace vantora::ui::desktop {

/// The look of the whole program: calm, light, one accent colour, a focus that can be seen.
void dress_application(QApplication& application);

}  // namespace vantora::ui::desktop
