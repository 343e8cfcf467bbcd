#pragma once

#include <QPrinter>
#include <functional>
#include <memory>
#include <string>

#include "ui/paper/recorded_pages.h"
#include "ui/printer.h"

namespace vantora::ui::desktop {

/// Where a document goes that has no printer: the name of a PDF file, empty for nowhere.
/// `proposed`: what it might be called.
using ask_for_file = std::function<QString(const QString& proposed)>;
/// Tells the user why a job isn't printed.
using tell_failure = std::function<void(const QString& why)>;

/// The system's printer. Where there is none, each job asks for a PDF file and goes there; a user
/// who names none drops the job.
class system_printer final : public printer {
 public:
    /// Asks by the system's dialog.
    system_printer();
    /// Every job goes into a file, whatever printers there are.
    system_printer(ask_for_file ask, tell_failure tell);
    ~system_printer() override;

    /// Shows each job's pages before they are printed; the user's choice in the dialog, kept from
    /// run to run.
    void set_preview(bool on) { preview_ = on; }

    [[nodiscard]] int orientation() const override;
    void set_orientation(int orientation) override;
    [[nodiscard]] double page_width() const override;
    [[nodiscard]] double page_height() const override;
    [[nodiscard]] double text_width(std::string_view text, const font& in) const override;

    void text(double x, double y, std::string_view text, const font& in, colour ink) override;
    void line(double x1, double y1, double x2, double y2, colour ink) override;
    void box(double x1, double y1, double x2, double y2, colour ink, bool filled) override;
    void picture(double x, double y, double side,
                 const std::shared_ptr<const bitmap>& image) override;
    void new_page() override;
    void end_job() override;
    void set_job_name(std::string_view name) override;
    void set_note(std::string_view note) override { note_ = note; }
    void preview_next_job() override { preview_next_ = true; }
    bool choose_settings() override;

 private:
    struct job;

    [[nodiscard]] bool shows_first() const { return (preview_ || preview_next_) && !job_; }
    /// Keeps or draws a mark.
    void put(recorded_pages::mark mark);
    /// The page to draw on; begins the job or the page if none is open. Null if the job is
    /// dropped.
    page_painter* page();
    void begin_job();
    /// The note as a mark under everything else.
    [[nodiscard]] recorded_pages::mark note_mark() const;
    void print_recorded();
    /// False, with the user told, if the file can't be written.
    bool open_file(const QString& file);

    mutable QPrinter printer_;
    ask_for_file ask_;
    tell_failure tell_;
    QString job_name_;
    std::string note_;
    std::unique_ptr<job> job_;
    bool page_ended_ = false;  ///< the next mark begins a new page
    bool preview_ = false;
    bool preview_next_ = false;  ///< of one job
    recorded_pages recorded_;    ///< of the job at hand, if it is to be seen first
    int recorded_orientation_ = upright;
};

}  // namespace vantora::ui::desktop
