// What a key pressed in the find line of a list costs until the window shows its outcome, on a list
// filled to its limit; the yardstick is a frame of the screen, 16 ms. Each time the whole window is
// painted, which a key never makes necessary.

#include <QApplication>
#include <QLineEdit>
#include <QShortcut>
#include <cstring>
#include <random>

#include "bench/measure.h"
#include "desktop/form_window.h"
#include "desktop/look/style.h"
#include "support/program_stage.h"
#include "ui/controls.h"

namespace vantora::bench {
namespace {

constexpr double frame_ms = 16;

/// A register of so many orders.
class trial final : public ui::form {
 public:
    trial(ui::desk& on, int orders) : form(on, "prova", "Prova") {
        add("elenco", elenco);
        elenco.set_columns(
            {{"Registr.", 1}, {"Ordine", 1}, {"Data", 1}, {"Cliente", 4}, {"Descr.", 4}});
        elenco.set_rows(orders + 1);
        std::mt19937 random(1);
        for (int row = 1; row <= orders; ++row) {
            const std::string number = std::to_string(row);
            elenco.set_text(row, 0, number);
            elenco.set_text(row, 1, number);
            elenco.set_text(row, 2, "20/12/20" + std::to_string(10 + random() % 20));
            elenco.set_text(row, 3, "CLIENTE " + std::to_string(random() % 100000) + " S.R.L.");
            elenco.set_text(row, 4, "Ordine per cantiere n. " + std::to_string(random() % 1000));
        }
    }

    ui::grid elenco;
};

int run(int orders) {
    test::program_stage<> stage;
    trial screen(stage.desk, orders);
    ui::desktop::form_window window(
        screen, {}, {[](ui::control&, const std::function<void()>& action) { action(); }, false},
        {[](ui::form&) {}, [](ui::form&) {}});
    window.resize(1280, 690);
    window.show();
    QMetaObject::invokeMethod(window.findChild<QShortcut*>("elenco_trova"), "activated");
    window.grab();  // it stands on the screen before the first key
    auto* text = window.findChild<QLineEdit*>("elenco_testo_da_trovare");
    double worst = 0;
    std::printf("%d rows\n", orders);
    for (const char* typed :
         {"c", "ca", "can", "cantiere n. 5", "z", "zz", "99", "cliente 4", ""}) {
        double searched = 0;
        const double taken = milliseconds([&] {
            searched = milliseconds([&] { text->setText(typed); });
            window.grab();
        });
        worst = std::max(worst, taken);
        std::printf("  \"%s\"%*s %7.2f ms, of them %.2f ms to find\n", typed,
                    20 - static_cast<int>(std::strlen(typed)), "", taken, searched);
    }
    std::printf("%-34s %9.2f ms   %-44s %9.2f ms   ratio %.2f\n", "slowest key", worst, "a frame",
                frame_ms, worst / frame_ms);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(count, arguments);
    vantora::ui::dress_application(application);
    return vantora::bench::run(vantora::bench::is_quick(count, arguments) ? 300 : 32767);
}
