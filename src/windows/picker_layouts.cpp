#include <QLineEdit>

#include "customer/mirdata.h"
#include "customer/mirsel.h"
#include "entry/import_picker.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

void lay_out(form_window& window, mirsel& screen) {
    auto* all = arranged<QVBoxLayout>(&window, {12, 10, 12, 12}, 8);
    auto* line = new QHBoxLayout;
    QLineEdit* part = window.widget(screen.selnome);
    line->addWidget(caption_of(part, "Parte del nome", &window));
    part->setMaximumWidth(360);
    part->setEnabled(true);
    line->addWidget(part, 1);
    line->addStretch(1);
    line->addWidget(plain_command(window, screen.indice,
                                  {"indietro", "&Indietro", "Torna senza scegliere", "Esc"}));
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addLayout(grid_with_sort_buttons(window, screen.elenco, screen.srx), 1);
    window.set_sizes({760, 420}, {1120, 620});
}

/// The pickers of quotes and orders are one window.
void lay_out(form_window& window, import_picker& screen) {
    auto* all = arranged<QVBoxLayout>(&window, {12, 10, 12, 12}, 8);
    auto* line = arranged<QHBoxLayout>(16);
    QLabel* hint = window.widget(screen.Label1);
    hint->setWordWrap(true);
    line->addWidget(hint, 1);
    line->addWidget(plain_command(window, screen.bottone,
                                  {"indietro", "&Indietro", "Torna senza importare", "Esc"}));
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addWidget(window.widget(screen.elenco), 1);
    window.set_sizes({760, 420}, {1040, 600});
}

void lay_out(form_window& window, mirdata& screen) {
    auto* line = arranged<QHBoxLayout>(&window, {24, 24, 24, 24});
    QWidget* day = window.widget(screen.nuovadata);
    line->addWidget(caption_of(day, "Data", &window));
    line->addWidget(day);
    window.set_sizes({0, 0}, {300, 90});
}

}  // namespace vantora::ui::desktop
