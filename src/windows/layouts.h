#pragma once

namespace vantora::ui::desktop {

class form_window;

/// Arranges the widgets of a screen: by the screen's own layout, or one below the other for a
/// screen that has none.
void lay_out(form_window& window);

// One file a screen, or a family of them.
void lay_out_mirorc(form_window& window);
void lay_out_mirorcx(form_window& window);
void lay_out_mirorcm(form_window& window);
void lay_out_mirsel(form_window& window);
void lay_out_mirdata(form_window& window);
void lay_out_mirorcs(form_window& window);
void lay_out_import(form_window& window);
void lay_out_mirorcz(form_window& window);
void lay_out_mirstoe(form_window& window);
void lay_out_mirstos(form_window& window);
void lay_out_mirstov(form_window& window);
void lay_out_mirston(form_window& window);
void lay_out_mirstoa(form_window& window);
void lay_out_mirorcc(form_window& window);
void lay_out_mirorcr(form_window& window);
void lay_out_mirorca(form_window& window);

}  // namespace vantora::ui::desktop
