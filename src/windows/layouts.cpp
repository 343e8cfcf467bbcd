#include "windows/layouts.h"

#include <QFormLayout>

#include "desktop/form_window.h"

namespace vantora::ui::desktop {

namespace {

struct screen_layout {
    std::string_view screen;
    void (*lay_out)(form_window&);
};

constexpr screen_layout known_layouts[] = {
    {"mirorc", lay_out_mirorc},   {"mirorcx", lay_out_mirorcx}, {"mirorcm", lay_out_mirorcm},
    {"mirsel", lay_out_mirsel},   {"mirdata", lay_out_mirdata}, {"mirorcs", lay_out_mirorcs},
    {"mirorcz", lay_out_mirorcz}, {"mirstoe", lay_out_mirstoe}, {"mirstos", lay_out_mirstos},
    {"mirstov", lay_out_mirstov}, {"mirston", lay_out_mirston}, {"mirstoa", lay_out_mirstoa},
    {"mirorcb", lay_out_import},  {"mirpref", lay_out_import},  {"mirorcc", lay_out_mirorcc},
    {"mirorcr", lay_out_mirorcr}, {"mirorca", lay_out_mirorca},
};

}  // namespace

void lay_out(form_window& window) {
    for (const screen_layout& known : known_layouts) {
        if (known.screen == window.screen().name()) return known.lay_out(window);
    }
    auto* rows = new QFormLayout(&window);
    for (const control* one : window.screen().controls()) {
        if (one->kind() == control_kind::picture) continue;  // lies in front of all others
        auto* column = new QVBoxLayout;                      // what goes with a list joins it there
        column->addWidget(window.widget(one->name().c_str(), one->index().value_or(-1)));
        rows->addRow(shown(one->address()), column);
    }
}

}  // namespace vantora::ui::desktop
