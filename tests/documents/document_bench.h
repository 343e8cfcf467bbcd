#pragma once

#include <fstream>
#include <string>
#include <vector>

#include "documents/order_document.h"
#include "store/drive.h"
#include "support/scratch_folder.h"
#include "ui/bench_desk.h"
#include "ui/pictures/pixbuf_decoder.h"

namespace vantora::test {

/// An order on the bench, with the printer and the print file that it goes to.
struct document_bench {
    scratch_folder folder;
    drive files{folder.path()};
    ui::test::bench_desk bench;
    ui::pixbuf_decoder pictures;
    program app{files, bench.desk, pictures};

    testata_ordine head;
    righe_ordine lines;
    riepilogo_iva vat;
    rec_cli customer;
    valuta currency;
    tabelle_documento tables;
    disegno background;
    ui::picture figure;

    document_bench() {
        for (auto& row : tables.tabella_layout) row = {"000000", "9", "Arial", "0", "0", "0"};
    }

    /// Limits of the lines, in millimetres from the top.
    void body(const std::string& top, const std::string& bottom) {
        tables.tabella_layout[68].posizione = top + "000";
        tables.tabella_layout[69].posizione = bottom + "000";
    }
    /// Lines 1 to `count` of free text.
    void fill_lines(int count) {
        for (int number = 1; number <= count; ++number) {
            lines[number].descrizione = "riga " + std::to_string(number);
        }
    }

    /// Prints the order, and gives the pages that came out.
    std::vector<std::vector<ui::script::print_operation>> print() {
        bench.desk.queue_answer(ui::answer::yes);
        const bool out =
            stampa_ordine(app, {head, lines, vat, customer, currency, tables, background, figure});
        if (!out) return {};
        auto jobs = bench.paper.take_jobs();
        return jobs.empty() ? decltype(jobs.front().pages){} : std::move(jobs.front().pages);
    }

    /// The texts of a page, in the order of printing.
    static std::vector<ui::script::printed_text> texts(
        const std::vector<ui::script::print_operation>& page) {
        std::vector<ui::script::printed_text> found;
        for (const auto& one : page) {
            if (const auto* text = std::get_if<ui::script::printed_text>(&one)) {
                found.push_back(*text);
            }
        }
        return found;
    }

    /// The lines of the print file.
    [[nodiscard]] std::vector<std::string> print_file() const {
        std::ifstream in(folder.path() / "mirdoc.rto", std::ios::binary);
        std::vector<std::string> all;
        for (std::string line; std::getline(in, line);) all.push_back(line);
        return all;
    }
};

}  // namespace vantora::test
