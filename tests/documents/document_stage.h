#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "documents/document_shape.h"
#include "documents/printed_document.h"
#include "support/program_stage.h"
#include "text/code_page.h"

namespace vantora::test {

/// A document, with the printer and the print file that it goes to.
struct document_stage : program_stage<ui::test::prepared_user> {
    testata_documento head;
    righe_ordine lines;
    riepilogo_iva vat;
    rec_cli customer;
    valuta currency;
    tabelle_documento tables;
    disegno background;
    ui::picture figure;
    esito_stampa outcome = esito_stampa::rifiutata;

    document_stage() {
        for (auto& row : tables.tabella_layout) row = {"000000", "9", "Arial", "0", "0", "0"};
    }

    /// Limits of the lines, in millimetres from the top.
    void body(const std::string& top, const std::string& bottom,
              tipo_documento kind = tipo_documento::ordine) {
        const auto first = static_cast<std::size_t>(document_form(kind).riga_alto);
        tables.tabella_layout[first].posizione = top + "000";
        tables.tabella_layout[first + 1].posizione = bottom + "000";
    }
    /// Lines 1 to `count` of free text.
    void fill_lines(int count) {
        for (int number = 1; number <= count; ++number) {
            lines[number].descrizione = "riga " + std::to_string(number);
        }
    }

    documento_da_stampare document(tipo_documento kind = tipo_documento::ordine) {
        return {kind, head, lines, vat, customer, currency, tables, background, figure};
    }
    /// Prints the document, and gives the pages that came out.
    std::vector<std::vector<ui::script::print_operation>> print(
        tipo_documento kind = tipo_documento::ordine) {
        front.answers.keep(ui::answer::yes);
        outcome = stampa_documento(app, document(kind));
        auto jobs = paper.take_jobs();
        return jobs.empty() ? decltype(jobs.front().pages){} : std::move(jobs.front().pages);
    }

    /// The operations of a page, one behind the other: their figures, then what they draw.
    static std::string shown(const std::vector<ui::script::print_operation>& page) {
        std::ostringstream out;
        for (const auto& one : page) {
            if (const auto* text = std::get_if<ui::script::printed_text>(&one)) {
                out << "text " << text->x << ' ' << text->y << ' ' << text->text << ", "
                    << text->font.name << ' ' << text->font.size << (text->font.bold ? " bold" : "")
                    << (text->font.italic ? " italic" : "") << " ink " << text->ink << '\n';
            } else if (const auto* line = std::get_if<ui::script::printed_line>(&one)) {
                out << "line " << line->x1 << ' ' << line->y1 << ' ' << line->x2 << ' ' << line->y2
                    << " ink " << line->ink << '\n';
            } else if (const auto* box = std::get_if<ui::script::printed_box>(&one)) {
                out << (box->filled ? "filled " : "box ") << box->x1 << ' ' << box->y1 << ' '
                    << box->x2 << ' ' << box->y2 << " ink " << box->ink << '\n';
            }
        }
        return out.str();
    }
    /// Only the texts of a page, without the blanks around them.
    static std::vector<std::string> texts(const std::vector<ui::script::print_operation>& page) {
        std::vector<std::string> found;
        for (const auto& one : page) {
            if (const auto* text = std::get_if<ui::script::printed_text>(&one)) {
                found.emplace_back(trimmed(text->text));
            }
        }
        return found;
    }

    [[nodiscard]] std::string print_file() {
        return files.read_whole("c:\\mirdoc.rto").value_or("no file");
    }
};

}  // namespace vantora::test
