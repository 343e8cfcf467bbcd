#pragma once

#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "ui/launcher.h"
#include "ui/printer.h"

namespace vantora::ui::script {

// The printer and the launcher in a scripted run: they keep what they are told.

struct printed_text {
    double x = 0, y = 0;
    std::string text;  ///< code page
    ui::font font;
    colour ink = 0;

    bool operator==(const printed_text&) const = default;
};
struct printed_line {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    colour ink = 0;

    bool operator==(const printed_line&) const = default;
};
struct printed_box {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    colour ink = 0;
    bool filled = false;

    bool operator==(const printed_box&) const = default;
};

/// All points of one picture.
struct printed_picture {
    double x = 0, y = 0, width = 0, height = 0;

    bool operator==(const printed_picture&) const = default;
};

using print_operation = std::variant<printed_text, printed_line, printed_box, printed_picture>;

struct print_job {
    int orientation = printer::upright;
    int copies = 1;
    std::vector<std::vector<print_operation>> pages;

    bool operator==(const print_job&) const = default;
};

/// Keeps the pages as they are composed. Texts are measured by the widths of a Helvetica-like face,
/// so a measure is the same on every machine.
class recording_printer final : public printer {
 public:
    /// What the printer has from now on, and what the next dialogs will choose. What is empty
    /// stays.
    void set_up(std::optional<int> orientation, std::optional<int> copies);

    /// The jobs since the last call; one that isn't ended yet stays.
    std::vector<print_job> take_jobs() { return std::exchange(jobs_, {}); }

    [[nodiscard]] int orientation() const override { return orientation_; }
    void set_orientation(int orientation) override { orientation_ = orientation; }
    [[nodiscard]] double page_width() const override { return orientation_ == upright ? 210 : 297; }
    [[nodiscard]] double page_height() const override {
        return orientation_ == upright ? 297 : 210;
    }
    [[nodiscard]] double text_width(std::string_view text, const font& in) const override;

    void text(double x, double y, std::string_view text, const font& in, colour ink) override {
        put(printed_text{x, y, std::string(text), in, ink});
    }
    void line(double x1, double y1, double x2, double y2, colour ink) override {
        put(printed_line{x1, y1, x2, y2, ink});
    }
    void box(double x1, double y1, double x2, double y2, colour ink, bool filled) override {
        put(printed_box{x1, y1, x2, y2, ink, filled});
    }
    void picture(double x, double y, double side,
                 const std::shared_ptr<const bitmap>& image) override {
        put(printed_picture{x, y, image->width * side, image->height * side});
    }
    void new_page() override;
    void end_job() override;
    bool choose_settings() override {
        orientation_ = chosen_orientation_;
        return true;
    }

 private:
    void begin_page();
    void put(print_operation operation);

    int orientation_ = upright;
    int copies_ = 1;
    int chosen_orientation_ = upright;
    print_job job_;
    bool page_open_ = false;
    std::vector<print_job> jobs_;
};

/// Starts nothing, keeps the command lines.
class recording_launcher final : public launcher {
 public:
    /// Whether programs can be started from now on.
    void allow(bool can_start) { can_start_ = can_start; }
    /// The command lines started since the last call, in the code page.
    std::vector<std::string> take_started() { return std::exchange(started_, {}); }

    bool start(const std::string& command) override {
        if (can_start_) started_.push_back(command);
        return can_start_;
    }

 private:
    bool can_start_ = true;
    std::vector<std::string> started_;
};

}  // namespace vantora::ui::script
