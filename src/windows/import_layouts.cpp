#include "windows/layouts.h"
#include "windows/parts.h"

namespace vantora::ui::desktop {

/// The pickers of quotes and orders are one window.
void lay_out_import(form_window& window) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(12, 10, 12, 12);
    all->setSpacing(8);
    auto* line = new QHBoxLayout;
    line->setSpacing(16);
    auto* hint = window.as<QLabel>("Label1");
    hint->setWordWrap(true);
    line->addWidget(hint, 1);
    window.dress("bottone", -1, {"indietro", "&Indietro", "Torna senza importare", "Esc"},
                 Qt::ToolButtonTextBesideIcon);
    set_look(window.widget("bottone"), "look", "plain");
    line->addWidget(window.widget("bottone"));
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addWidget(window.widget("elenco"), 1);
    window.setMinimumSize(760, 420);
    window.set_first_size(QSize(1040, 600));
}

}  // namespace vantora::ui::desktop
