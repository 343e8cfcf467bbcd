#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "reports/cells.h"
#include "reports/page_figures.h"
#include "reports/report_output.h"
#include "ui/clock.h"

namespace vantora {

/// Makes the pages of a report: takes one row of texts at a time, formats its numbers, fits its
/// texts to their columns, draws it, and ends a page when it is full. The heading of a page is
/// drawn last, since its frame can follow the rows.
class report_engine {
 public:
    /// REQUIRES: all of it but `uscita` outlives the engine.
    report_engine(const parametri& parameters, const ui::clock& time, report_output& out,
                  uscita_report uscita, std::string_view title,
                  std::span<const colonna_report> columns);

    /// Prints one row: a text for each column.
    void print_row(std::span<const std::string_view> cells);
    /// Ends a page on which rows stand. To be called once, at the end of the report.
    void end_report();

 private:
    struct colonna {
        std::string_view titolo;
        int formato;
        double sinistra;
        double destra;
        double fine;    ///< right edge of its boxes
        double spazio;  ///< that its texts may take
    };

    [[nodiscard]] const voce_stampa& entry(std::size_t number) const;
    [[nodiscard]] static stile_testo look_of(const voce_stampa& entry);
    [[nodiscard]] bool in_file() const { return uscita_ == uscita_report::pdf; }
    [[nodiscard]] stile_testo row_look() const;
    [[nodiscard]] text_ruler ruler_of(const stile_testo& look) const;
    void set_limits();
    void set_columns(std::span<const colonna_report> columns);
    [[nodiscard]] double row_y(int number) const;

    void draw_stripe(double y);
    void draw_box_of(const colonna& in, double y);
    [[nodiscard]] bool is_full(double position) const;

    void end_page();
    void draw_plain_heading();
    void draw_plain_frame(double bottom);
    void draw_plain_notes(double bottom);
    void draw_grey_heading();
    /// The heading of a column, which is fitted to it for good.
    void draw_title(colonna& of, double y, const text_ruler& measured, const stile_testo& look);
    [[nodiscard]] double frame_bottom() const;
    /// The note of the page that is being ended, which gets its number by this.
    std::string page_note();

    void put(double x, double y, std::string_view text, const stile_testo& look,
             ui::alignment as = ui::alignment::left);
    /// A text by its right end.
    void put_right(double right, double y, std::string_view text, const stile_testo& look);
    /// A text that fits, where the cells of a column stand.
    void put_in_column(const colonna& in, double y, std::string_view text,
                       const text_ruler& measured, const stile_testo& look, forma_stile form);

    const parametri& parameters_;
    const ui::clock& time_;
    report_output& out_;
    uscita_report uscita_;
    std::string_view title_;
    aspetto_report aspect_;
    misure_righe rows_;
    const misure_colonne& insets_;
    limiti_pagina limits_;
    std::vector<colonna> columns_;
    valuta currency_;
    stile_testo row_look_;
    text_ruler row_ruler_;
    /// Rows on the page; the count starts at 1, so that the first page has one row less.
    int righe_stampate_ = 1;
    int on_page_ = 0;  ///< rows that stand on the page
    int numero_pagina_ = 0;
};

}  // namespace vantora
