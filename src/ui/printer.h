#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "ui/bitmap.h"
#include "ui/grid.h"

namespace vantora::ui {

struct font {
    std::string name = "Arial";
    double size = 9;  ///< points
    bool bold = false;
    bool italic = false;

    bool operator==(const font&) const = default;
};

/// The page surface of documents and reports. Positions are millimetres from the upper left corner
/// of the page; a text's position is its upper left corner. The first mark begins a job, new_page
/// ends a page, end_job the job; a page with nothing on it behind the last new_page isn't printed.
/// A printer that fails drops what it is given: composing goes on.
class printer {
 public:
    static constexpr int upright = 1;
    static constexpr int landscape = 2;

    virtual ~printer() = default;

    [[nodiscard]] virtual int orientation() const = 0;
    virtual void set_orientation(int orientation) = 0;
    [[nodiscard]] virtual double page_width() const = 0;   ///< millimetres
    [[nodiscard]] virtual double page_height() const = 0;  ///< millimetres

    /// Width in millimetres that the text takes in the font.
    [[nodiscard]] virtual double text_width(std::string_view text, const font& in) const = 0;

    virtual void text(double x, double y, std::string_view text, const font& in, colour ink) = 0;
    virtual void line(double x1, double y1, double x2, double y2, colour ink) = 0;
    virtual void box(double x1, double y1, double x2, double y2, colour ink, bool filled) = 0;
    /// A picture from its upper left corner (x, y), each point a filled square of `side`
    /// millimetres, the light grey ones left out.
    virtual void picture(double x, double y, double side,
                         const std::shared_ptr<const bitmap>& image) = 0;
    virtual void new_page() = 0;
    virtual void end_job() = 0;

    /// What the next job is called, as "Ordine 401"; a job printed into a file proposes it.
    virtual void set_job_name(std::string_view /*name*/) {}

    /// What the reader of the next jobs must know, be it said nowhere on their pages: the window's
    /// printer writes it under the last one. Empty for nothing.
    virtual void set_note(std::string_view /*note*/) {}

    /// The pages of the next job are shown before they are printed, where the front end can.
    virtual void preview_next_job() {}

    /// Of something long, be it drawn here or only measured, so much is composed; 1 at its end.
    /// False: the user stops it.
    virtual bool goes_on(double /*done*/) { return true; }
    /// Nothing of the job at hand is printed.
    virtual void drop_job() {}

    /// Whether the user saw the pages of the last job, or part of them, and didn't want them
    /// printed.
    [[nodiscard]] virtual bool last_job_unwanted() const { return false; }

    /// Shows the system's printer dialog in set-up mode and takes its choice over. False if the
    /// user left it without a choice.
    virtual bool choose_settings() = 0;
};

}  // namespace vantora::ui
