#include "documents/printed_document.h"

#include <algorithm>

#include "documents/background.h"
#include "documents/document_composer.h"
#include "documents/pdf_handoff.h"
#include "documents/print_file.h"
#include "documents/unprinted_paper.h"
#include "text/code_page.h"

namespace vantora {

namespace {

void tell_of_pictures(program& app, const std::string& what,
                      const std::vector<std::string>& files) {
    if (files.empty()) return;
    app.desk.message(what + nomi_di_figure(files), ui::attention, ui::icon::stop);
}

/// A document lacks what stands in files that can't be read: whether to print it all the same.
bool may_lack_files(program& app, const documento_da_stampare& document) {
    std::vector<std::string> files = document.tabelle.illeggibili;
    if (document.sfondo.illeggibile) {
        files.push_back("vantora." + std::string(nomi_di(document.tipo).disegno));
    }
    return files.empty() ||
           app.desk.ask("Il documento non è completo: impossibile leggere "_cp +
                            nomi_di_figure(files) + ". Stamparlo ugualmente?",
                        nomi_di(document.tipo).titolo_stampa, ui::icon::warning, ui::answer::no);
}

}  // namespace

esito_stampa componi_documento(program& app, const documento_da_stampare& document,
                               ui::printer& paper) {
    app.desk.set_pointer(ui::pointer::busy);
    const paginazione pages = impagina(forma_di(document.tipo), document.tabelle, document.righe);
    document_output out(paper, app.files);
    figure_documento pictures(app.files, app.pictures, document.figura.shown());
    std::vector<std::string> shortened;
    componi_pagine(document, pages, out,
                   [&] { disegna_sfondo(app, out, document, pictures, shortened); });
    const bool whole = out.end();
    app.desk.set_pointer(ui::pointer::normal);
    tell_of_pictures(app, "Il documento è stampato senza figure troppo grandi: "_cp,
                     pictures.left_out());
    tell_of_pictures(
        app, "Si leggono solo figure BMP, PNG, JPEG e GIF, non queste: ", pictures.other_kinds());
    tell_of_pictures(app,
                     "Il documento è stampato senza tutti i testi troppo lunghi dello sfondo: "_cp,
                     shortened);
    if (paper.last_job_unwanted()) return esito_stampa::non_voluta;
    return whole ? esito_stampa::completa : esito_stampa::senza_file;
}

std::optional<std::string> scrivi_file_di_stampa(program& app,
                                                 const documento_da_stampare& document) {
    unprinted_paper paper(app.desk.printer());
    if (componi_documento(app, document, paper) != esito_stampa::completa) return {};
    return app.files.read_whole(file_di_stampa);
}

esito_stampa stampa_documento(program& app, const documento_da_stampare& document) {
    if (!app.desk.ask("Iniziare la stampa?", nomi_di(document.tipo).titolo_stampa)) {
        return esito_stampa::rifiutata;
    }
    if (!may_lack_files(app, document)) return esito_stampa::rifiutata;
    return componi_documento(app, document, app.desk.printer());
}

void offri_copie(program& app, const documento_da_stampare& document, bool invia) {
    bool printed = false;
    std::optional<std::string> file;
    do {
        const esito_stampa now = stampa_documento(app, document);
        if (now == esito_stampa::rifiutata) continue;
        if (now == esito_stampa::non_voluta) break;
        printed = true;
        file.reset();
        if (now == esito_stampa::completa) file = app.files.read_whole(file_di_stampa);
    } while (app.desk.ask("Stampa altra copia?", nomi_di(document.tipo).titolo_stampa));
    if (!printed) return;
    offri_pdf(app, {document.tipo, document.testata.text3[campo_ordine::numero], invia,
                    document.cliente.email.full(), document.tabelle, std::move(file),
                    [&] { return scrivi_file_di_stampa(app, document); }});
}

}  // namespace vantora
