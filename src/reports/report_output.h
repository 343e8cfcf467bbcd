#pragma once

#include <string_view>

#include "documents/print_file_writer.h"
#include "ui/printer.h"

namespace vantora {

/// How a text of a report looks, as the report table has it.
struct stile_testo {
    std::string_view carattere;
    double corpo = 0;  ///< points
    double grassetto = 0;
    double corsivo = 0;
    double colore = 0;
};

/// A text of a report at its place, in the unit of its output.
struct testo_report {
    double x = 0;
    double y = 0;  ///< its top
    std::string_view testo;
    stile_testo stile;
    /// right: `x` is its right end, which the print file alone can say
    ui::alignment allineamento = ui::alignment::left;
    forma_stile forma = forma_stile::numeri;
};

/// A straight line or a box, in the unit of its output.
struct forma_report {
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    double colore = 0;
};

/// Which lines a print file tells apart.
enum class linea_report { cornice, riga };

/// Where a report goes: the printer, in twips, or the print file, in millimetres. Both measure
/// texts on the printer.
class report_output {
 public:
    explicit report_output(ui::printer& paper) : paper_(paper) {}
    report_output(const report_output&) = delete;
    report_output& operator=(const report_output&) = delete;
    virtual ~report_output() = default;

    [[nodiscard]] ui::printer& paper() const { return paper_; }
    /// Units of this output in a millimetre.
    [[nodiscard]] virtual double units_per_millimetre() const = 0;

    virtual void text(const testo_report& one) = 0;
    virtual void line(const forma_report& one, linea_report kind) = 0;
    virtual void box(const forma_report& one, bool filled) = 0;
    virtual void end_page() = 0;

 private:
    ui::printer& paper_;
};

/// A font of the report table as a printer takes it: a name or size that no font has is replaced.
ui::font usable_font(const stile_testo& look);

/// Positions in twips.
class report_on_printer final : public report_output {
 public:
    using report_output::report_output;

    [[nodiscard]] double units_per_millimetre() const override { return twips_per_millimetre; }
    void text(const testo_report& one) override;
    void line(const forma_report& one, linea_report kind) override;
    void box(const forma_report& one, bool filled) override;
    void end_page() override;

    static constexpr double twips_per_millimetre = 56.6929;
};

/// Positions in millimetres.
class report_in_print_file final : public report_output {
 public:
    report_in_print_file(ui::printer& paper, print_file_writer& file)
        : report_output(paper), file_(file) {}

    [[nodiscard]] double units_per_millimetre() const override { return 1; }
    /// A line end inside a text becomes a line feed alone, which no reader takes for the end of its
    /// line in the file.
    void text(const testo_report& one) override;
    void line(const forma_report& one, linea_report kind) override;
    void box(const forma_report& one, bool filled) override;
    void end_page() override;

 private:
    print_file_writer& file_;
};

}  // namespace vantora
