#pragma once

namespace vantora {
class enquiry_screen;
class import_picker;
class mirdata;
class mirorc;
class mirorca;
class mirorcc;
class mirorcm;
class mirorcr;
class mirorcs;
class mirorcx;
class mirorcz;
class mirsel;
class mirstoa;
class mirston;
class report_screen;
}  // namespace vantora

namespace vantora::ui::desktop {

class form_window;

/// Arranges the widgets of a screen of the program. False for any other screen.
bool lay_out_screen(form_window& window);

// One file a screen, or a family of them.
void lay_out(form_window& window, mirorc& screen);
void lay_out(form_window& window, mirorcx& screen);
void lay_out(form_window& window, mirorcm& screen);
void lay_out(form_window& window, mirorcc& screen);
void lay_out(form_window& window, mirsel& screen);
void lay_out(form_window& window, mirdata& screen);
void lay_out(form_window& window, mirorcs& screen);
void lay_out(form_window& window, mirorcz& screen);
void lay_out(form_window& window, mirorca& screen);
void lay_out(form_window& window, mirorcr& screen);
void lay_out(form_window& window, import_picker& screen);
void lay_out(form_window& window, enquiry_screen& screen);
void lay_out(form_window& window, mirstoa& screen);
void lay_out(form_window& window, mirston& screen);
void lay_out(form_window& window, report_screen& screen);

}  // namespace vantora::ui::desktop
