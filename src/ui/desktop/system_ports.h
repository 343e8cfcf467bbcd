#pragma once

#include <QPrinter>
#include <functional>
#include <memory>
#include <string>

#include "ui/launcher.h"
#include "ui/printer.h"

class QPainter;

namespace vantora::ui::desktop {

/// The system's printer. On a machine that has none, the dialog offers to print into a PDF file.
class system_printer final : public printer {
 public:
    system_printer();
    ~system_printer() override;

    [[nodiscard]] int orientation() const override;
    void set_orientation(int orientation) override;
    [[nodiscard]] int copies() const override { return printer_.copyCount(); }
    void set_copies(int copies) override { printer_.setCopyCount(copies); }
    [[nodiscard]] double page_width() const override;
    [[nodiscard]] double page_height() const override;
    [[nodiscard]] double text_width(std::string_view text, const font& in) const override;

    void text(double x, double y, std::string_view text, const font& in, colour ink) override;
    void line(double x1, double y1, double x2, double y2, colour ink) override;
    void box(double x1, double y1, double x2, double y2, colour ink, bool filled) override;
    void new_page() override;
    void end_job() override;
    bool choose_settings() override;

 private:
    /// Begins the job or the page if none is open. False if the printer refuses.
    bool ready();
    [[nodiscard]] double dots(double millimetres) const;

    mutable QPrinter printer_;
    std::unique_ptr<QPainter> painter_;
    bool page_ended_ = false;  ///< the next mark begins a new page
};

/// Starts programs of the suite, without a shell.
class system_launcher final : public launcher {
 public:
    /// `locate`: where a path of the suite lies in this system.
    explicit system_launcher(std::function<std::string(std::string_view)> locate)
        : locate_(std::move(locate)) {}

    bool start(const std::string& command) override;

 private:
    std::function<std::string(std::string_view)> locate_;
};

}  // namespace vantora::ui::desktop
