#pragma once

#include <string>
#include <string_view>

#include "documents/document_content.h"
#include "documents/print_file_writer.h"
#include "ui/printer.h"

namespace vantora {

/// How a text looks, as numbers and names of a company's files.
struct aspetto_testo {
    double corpo = 0;  ///< points
    std::string_view carattere;
    bool grassetto = false;
    bool corsivo = false;
    double colore = 0;
};

/// The two outputs of a document, which get every item in the same pass: the printer, and the print
/// file from which a PDF can be made afterwards.
class document_output {
 public:
    /// Empties the print file.
    document_output(ui::printer& paper, file_port& files);

    [[nodiscard]] ui::printer& paper() { return paper_; }
    [[nodiscard]] print_file_writer& file() { return file_; }

    /// Every page begins in an upright Arial.
    void begin_page();
    void end_page();
    /// Ends the print job and the print file; nothing may follow. False if the file doesn't hold
    /// all of the document.
    [[nodiscard]] bool end();

    /// Prints a text in its look. A size, name or colour that no printer takes leaves the one
    /// before in force.
    void print(double x, double y, std::string_view text, const aspetto_testo& look);

    /// A colour of the files; what is none counts as the one in force.
    [[nodiscard]] ui::colour ink(double colour) const {
        return ui::colour_of(colour).value_or(ink_);
    }

    /// Puts an item of the layout at its place, in both outputs. An item whose right end stands at
    /// `x` begins as far to the left as the printer says it is wide.
    void place(double x, double y, const testo_posto& item, const voce_layout& look);

 private:
    void set_look(const aspetto_testo& look);

    ui::printer& paper_;
    print_file_writer file_;
    ui::font font_;
    ui::colour ink_ = 0;
};

}  // namespace vantora
