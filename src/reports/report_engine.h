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

/// A column of a report; what has a second line holds it at index 1.
struct colonna_pagina {
    std::string titolo_colonna[2];
    std::int16_t larghezza = 0;
    std::int16_t formato_cella = 0;
    bool grassetto_cella[2] = {false, false};  ///< in the grey look only
    bool corsivo_cella[2] = {false, false};    ///< in the grey look only
};

/// What the engine has to know of a report.
struct foglio_report {
    std::string titolo;
    std::vector<colonna_pagina> colonne;  ///< at most 30
    int righe_voce = 1;                   ///< lines of text a row takes, 1 or 2
    int righe_stampate = 0;               ///< where the count of rows starts on the first page
};

/// Makes the pages of a report: takes one row of texts at a time, formats its numbers, fits its
/// texts to their columns, draws it, and ends a page when it is full. The heading of a page is
/// drawn last, since its frame can follow the rows.
class report_engine {
 public:
    /// REQUIRES: `parameters`, `time` and `out` outlive the engine.
    report_engine(const parametri& parameters, const ui::clock& time, report_output& out,
                  uscita_report uscita, foglio_report sheet);

    /// Prints one row: a text for each column, then one for each column's second line.
    void print_row(std::span<const std::string_view> cells);
    /// Ends a page on which rows stand. To be called once, at the end of the report.
    void end_report();

 private:
    /// How a text looks.
    struct look {
        std::string_view carattere;
        double corpo = 0;
        double grassetto = 0;
        double corsivo = 0;
        double colore = 0;
    };

    [[nodiscard]] const voce_stampa& entry(std::size_t number) const;
    [[nodiscard]] static look look_of(const voce_stampa& entry);
    [[nodiscard]] static ui::font font_of(const look& as);
    [[nodiscard]] look row_look(std::size_t column, std::size_t line) const;
    [[nodiscard]] static testo_report text_in(const look& as);
    /// In the print file a grey row is measured as the report table has it, and looks otherwise.
    [[nodiscard]] look measured_look(std::size_t column, std::size_t line) const;

    void set_limits();
    void set_columns();
    [[nodiscard]] bool has_second_line() const { return aspect_.grigio && aspect_.due_linee; }
    [[nodiscard]] bool is_last(std::size_t column) const { return column + 1 == columns(); }
    [[nodiscard]] std::size_t columns() const { return sheet_.colonne.size(); }
    [[nodiscard]] double box_right(std::size_t column) const;
    [[nodiscard]] double row_y(int number) const;

    void draw_stripe(double y);
    void draw_boxes_of(std::size_t column, double y);
    void draw_cell(std::size_t column, std::size_t line, std::string_view cell, double y);
    [[nodiscard]] bool is_full(double position) const;

    void end_page();
    void draw_plain_heading();
    void draw_plain_frame(double bottom);
    void draw_plain_notes(double bottom);
    void draw_grey_heading();
    void draw_grey_titles();
    [[nodiscard]] double frame_bottom() const;
    /// The heading of a column, fitted to it for good.
    const std::string& fitted_title(std::size_t column, std::size_t line, const look& measured);
    /// The note of the page that is being ended, which gets its number by this.
    std::string page_note();

    void put(double x, double y, std::string_view text, const look& as);
    /// A text by its right end.
    void put_right(double right, double y, std::string_view text, const look& as);
    /// Whether the place of a column's text depends on its width.
    [[nodiscard]] bool placed_by_width(std::size_t column) const;
    /// Gives a text of a width the place where the cells of a column stand.
    void place_in_column(testo_report& one, std::size_t column, double width) const;
    [[nodiscard]] double x_in_column(std::size_t column, double width) const;
    void put_in_column(std::size_t column, double y, std::string_view text, const look& measured,
                       const look& as);
    [[nodiscard]] double width_of(std::string_view text, const look& as) const;

    /// One of the lines of text that a row has in a column.
    struct linea_celle {
        preparazione_celle prepara;
        testo_report come;   ///< how they all look and, without `per_larghezza`, where
        bool per_larghezza;  ///< each stands where its width says
    };

    const parametri& parameters_;
    const ui::clock& time_;
    report_output& out_;
    uscita_report uscita_;
    foglio_report sheet_;

    aspetto_report aspect_;
    misure_righe rows_{};
    const misure_colonne& insets_;
    limiti_pagina limits_;
    std::vector<double> left_;        ///< edges of the columns
    std::vector<double> width_;       ///< whole parts of the columns' widths
    std::vector<double> fit_;         ///< widths that the columns' texts may have
    std::vector<linea_celle> cells_;  ///< first lines, then second ones
    int on_page_ = 0;                 ///< rows that stand on the page
    int numero_pagina_ = -1;
};

}  // namespace vantora
