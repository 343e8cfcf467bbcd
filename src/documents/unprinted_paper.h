#pragma once

#include "ui/printer.h"

namespace vantora {

/// Measures as the printer does and prints nothing: for what goes into the print file alone.
class unprinted_paper final : public ui::printer {
 public:
    /// REQUIRES: `like` outlives it.
    explicit unprinted_paper(ui::printer& like) : like_(like) {}

    [[nodiscard]] int orientation() const override { return like_.orientation(); }
    void set_orientation(int orientation) override { like_.set_orientation(orientation); }
    [[nodiscard]] double page_width() const override { return like_.page_width(); }
    [[nodiscard]] double page_height() const override { return like_.page_height(); }
    [[nodiscard]] double text_width(std::string_view text, const ui::font& in) const override {
        return like_.text_width(text, in);
    }

    void text(double, double, std::string_view, const ui::font&, ui::colour) override {}
    void line(double, double, double, double, ui::colour) override {}
    void box(double, double, double, double, ui::colour, bool) override {}
    void picture(double, double, double, const std::shared_ptr<const ui::bitmap>&) override {}
    void new_page() override {}
    void end_job() override {}
    bool choose_settings() override { return false; }

 private:
    ui::printer& like_;
};

}  // namespace vantora
