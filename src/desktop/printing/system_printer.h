#pragma once

#include <QPrinter>
#include <functional>
#include <memory>
#include <string>

#include "desktop/printing/print_preview.h"
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
    bool goes_on(double done) override;
    void drop_job() override;
    [[nodiscard]] bool last_job_unwanted() const override { return unwanted_; }
    bool choose_settings() override;

 private:
    struct job;
    class progress;

    [[nodiscard]] bool shows_first() const { return preview_ || preview_next_; }
    /// The job at hand, begun if there is none.
    job& drawn();
    void put(recorded_pages::mark mark);
    [[nodiscard]] bool prints_into_file() const;
    /// Where the job goes. False, with the user told why, if it goes nowhere.
    bool choose_target();
    /// The note as a mark under everything else.
    [[nodiscard]] recorded_pages::mark note_mark() const;
    /// Shows its pages first, where they are to be seen.
    void print(job& ended);
    void print_into_file(const recorded_pages& pages);
    void print_on_paper(const recorded_pages& pages);
    /// Shows how far the drawing is.
    draws_on shown_drawing();

    std::unique_ptr<QPrinter> printer_;
    ask_for_file ask_;
    tell_failure tell_;
    QString job_name_;
    std::string note_;
    std::unique_ptr<job> job_;
    QString target_;  ///< the file that the job goes into
    std::unique_ptr<progress> progress_;
    bool unwanted_ = false;  ///< the last job, by its user who saw it
    bool preview_ = false;
    bool preview_next_ = false;  ///< of one job
};

}  // namespace vantora::ui::desktop
