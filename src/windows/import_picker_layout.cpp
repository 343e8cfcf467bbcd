#include "entry/import_picker.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

/// The pickers of quotes and orders are one window.
void lay_out(form_window& window, import_picker& screen) {
    auto* all = new QVBoxLayout(&window);
    all->setContentsMargins(12, 10, 12, 12);
    all->setSpacing(8);
    auto* line = new QHBoxLayout;
    line->setSpacing(16);
    QLabel* hint = window.widget(screen.Label1);
    hint->setWordWrap(true);
    line->addWidget(hint, 1);
    line->addWidget(plain_command(window, screen.bottone,
                                  {"indietro", "&Indietro", "Torna senza importare", "Esc"}));
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addWidget(window.widget(screen.elenco), 1);
    window.setMinimumSize(760, 420);
    window.set_first_size(QSize(1040, 600));
}

}  // namespace vantora::ui::desktop
