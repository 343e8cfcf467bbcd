#include "enquiry/enquiry_screen.h"

#include <QToolButton>

#include "enquiry/quadro.h"
#include "enquiry/ricerca.h"
#include "windows/bar_charts.h"
#include "windows/layout_pieces.h"
#include "windows/layouts.h"

namespace vantora::ui::desktop {

namespace {

/// The command that leaves looks alike everywhere; the others are called by their captions alone.
QToolButton* command(form_window& window, const button& one, bool leaves) {
    if (leaves) {
        return plain_command(window, one, {"indietro", "&Indietro", "Torna dov'era prima", "Esc"});
    }
    QToolButton* shown = window.widget(one);
    shown->setToolButtonStyle(Qt::ToolButtonTextOnly);
    set_look(shown, "look", "words");
    return shown;
}

}  // namespace

/// What is looked for, if anything is, and the commands stand above the list; what the list holds
/// is told below it.
void lay_out(form_window& window, enquiry_screen& screen) {
    auto* all = arranged<QVBoxLayout>(&window, {12, 10, 12, 12}, 8);
    auto* line = arranged<QHBoxLayout>(10);
    std::vector<QWidget*> stops;
    if (auto* search = dynamic_cast<ricerca*>(&screen)) {
        QWidget* field = window.widget(search->testo);
        line->addWidget(caption_of(field, "&Testo", &window));
        line->addWidget(field, 1);
        stops.push_back(field);
    } else {
        line->addStretch(1);
    }
    stops.push_back(window.widget(screen.elenco));
    for (int i = screen.commands() - 1; i >= 0; --i) {
        QToolButton* one = command(window, screen.bottone[i], i == 0);
        line->addWidget(one);
        stops.push_back(one);
    }
    line->addWidget(help_button(window));
    all->addLayout(line);
    all->addWidget(window.widget(screen.elenco), 1);
    all->addWidget(window.widget(screen.esito));
    window.set_tab_order(stops);
    if (auto* figures = dynamic_cast<quadro*>(&screen)) {
        new bar_charts(window, *figures);
        window.set_sizes({960, 580}, {1280, 680});
        return;
    }
    window.set_sizes({760, 420}, {1040, 600});
}

}  // namespace vantora::ui::desktop
