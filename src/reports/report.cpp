#include "reports/report.h"

#include <algorithm>

#include "documents/pdf_handoff.h"
#include "documents/print_file_writer.h"
#include "reports/report_engine.h"
#include "store/suite_paths.h"

namespace vantora {

namespace {

/// False: the user stopped it.
bool print_rows(program& app, const descrizione_report& report, const ui::grid& elenco, int righe,
                report_output& out, uscita_report uscita) {
    report_engine engine(app.parameters, app.desk.clock(), out, uscita, report.titolo,
                         report.colonne);
    std::vector<std::string_view> cells(report.colonne.size());
    for (int row = 1; row < righe; ++row) {
        for (std::size_t i = 0; i < cells.size(); ++i) {
            cells[i] = elenco.text(row, static_cast<int>(i));
        }
        engine.print_row(cells);
        if (!out.paper().goes_on(double(row) / righe)) return false;
    }
    engine.end_report();
    return out.paper().goes_on(1);
}

void print_on_paper(program& app, const descrizione_report& report, const ui::grid& elenco,
                    int righe) {
    ui::printer& paper = app.desk.printer();
    paper.set_job_name(report.titolo);
    report_on_printer out(paper);
    if (!print_rows(app, report, elenco, righe, out, uscita_report::stampante)) {
        return paper.drop_job();
    }
    paper.end_job();
}

enum class file_di_report { intero, incompleto, interrotto };

file_di_report print_into_file(program& app, const descrizione_report& report,
                               const ui::grid& elenco, int righe) {
    ui::printer& paper = app.desk.printer();
    const bool upright = paper.orientation() == ui::printer::upright;
    print_file_writer file(app.files, upright ? marca_verticale : marca_orizzontale);
    report_in_print_file out(paper, file);
    using enum file_di_report;
    if (!print_rows(app, report, elenco, righe, out, uscita_report::pdf)) return interrotto;
    return file.finish() ? intero : incompleto;
}

std::string_view pdf_folder(const program& app) {
    return trimmed(app.parameters.parametri_valuta[valuta_slot::cartella_pdf]);
}

std::string pdf_path(const program& app, const descrizione_report& report) {
    std::string path(pdf_folder(app));
    if (!path.ends_with('\\')) path.append("\\");
    return path.append(report.file_pdf);
}

std::string pdf_command(const program& app, const descrizione_report& report) {
    return mirxpdf_command("***", pdf_path(app, report), " ***");
}

/// The PDF is there: the user may look at it.
void show_pdf(program& app, const std::string& path, std::string told) {
    ui::message_box box{std::move(told), ui::attention, ui::icon::information, ui::buttons::choice};
    box.choices = {"Apri", "Chiudi"};
    box.proposed = ui::answer::choice_1;
    if (app.desk.show_box(std::move(box)) == ui::answer::choice_1) app.desk.launcher().open(path);
}

void tell_of_pdf(program& app, const descrizione_report& report, const ui::started_program& end) {
    using enum ui::started_program::how;
    const std::string file = "Il file " + upper(report.file_pdf);
    const std::string folder =
        "all'interno della cartella " + app.parameters.parametri_valuta[valuta_slot::cartella_pdf];
    const std::string made = file + " è stato creato "_cp + folder;
    switch (end.is) {
        case not_started:
            return app.desk.message(
                "Non è possibile eseguire il programma di generazione dei files PDF."_cp,
                ui::attention, ui::icon::stop);
        case unwatched:
            return app.desk.message(made, ui::attention, ui::icon::warning);
        case late:
            return app.desk.message(file + " è ancora in preparazione "_cp + folder, ui::attention,
                                    ui::icon::warning);
        case well:
            return show_pdf(app, pdf_path(app, report),
                            end.told.empty() ? made : made + "\n\n" + end.told);
        case failed:
            return app.desk.message(end.told.empty() ? file + " non è stato creato."_cp : end.told,
                                    ui::attention, ui::icon::stop);
    }
}

}  // namespace

void stampa_report(program& app, const descrizione_report& report, const ui::grid& elenco,
                   int righe, uscita_report uscita) {
    const bool on_paper = uscita == uscita_report::stampante;
    if (on_paper && !app.desk.ask("Iniziare la stampa?", std::string(report.titolo_domanda))) {
        return;
    }
    app.desk.set_pointer(ui::pointer::busy);
    if (on_paper) {
        print_on_paper(app, report, elenco, righe);
        app.desk.set_pointer(ui::pointer::normal);
        return;
    }
    // A file that isn't whole is never handed over: the PDF would lack pages without a word.
    ui::started_program end;
    const file_di_report file = print_into_file(app, report, elenco, righe);
    if (file == file_di_report::intero) end = app.desk.launcher().run(pdf_command(app, report));
    app.desk.set_pointer(ui::pointer::normal);
    if (file == file_di_report::interrotto) return;
    tell_of_pdf(app, report, end);
}

}  // namespace vantora
