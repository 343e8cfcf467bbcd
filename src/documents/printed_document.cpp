#include "documents/printed_document.h"

#include <algorithm>

#include "documents/background.h"
#include "documents/document_composer.h"
#include "documents/pdf_handoff.h"
#include "documents/print_file.h"
#include "text/code_page.h"

namespace vantora {

namespace {

/// Measures as the printer does and prints nothing: for what goes into the print file alone.
class unprinted_paper final : public ui::printer {
 public:
    /// REQUIRES: `like` outlives it.
    explicit unprinted_paper(ui::printer& like) : like_(like) {}

    [[nodiscard]] int orientation() const override { return like_.orientation(); }
    void set_orientation(int orientation) override { like_.set_orientation(orientation); }
    [[nodiscard]] double page_width() const override { return like_.page_width(); }
    [[nodiscard]] double page_height() const override { return like_.page_height(); }
    [[nodiscard]] double text_width(std::string_view text, const ui::font& in) const override {
        return like_.text_width(text, in);
    }

    void text(double, double, std::string_view, const ui::font&, ui::colour) override {}
    void line(double, double, double, double, ui::colour) override {}
    void box(double, double, double, double, ui::colour, bool) override {}
    void picture(double, double, double, const std::shared_ptr<const ui::bitmap>&) override {}
    void new_page() override {}
    void end_job() override {}
    bool choose_settings() override { return false; }

 private:
    ui::printer& like_;
};

void tell_of_pictures(program& app, const std::string& what,
                      const std::vector<std::string>& files) {
    if (files.empty()) return;
    app.desk.message(what + picture_names(files), ui::attention, ui::icon::stop);
}

/// A document lacks what stands in files that can't be read: whether to print it all the same.
bool may_lack_files(program& app, const documento_da_stampare& document) {
    std::vector<std::string> files = document.tabelle.illeggibili;
    if (document.sfondo.illeggibile) {
        files.push_back("vantora." + std::string(names_of_kind(document.tipo).disegno));
    }
    return files.empty() || app.desk.ask("Il documento non è completo: impossibile leggere "_cp +
                                             picture_names(files) + ". Stamparlo ugualmente?",
                                         names_of_kind(document.tipo).titolo_stampa,
                                         ui::icon::warning, ui::answer::no);
}

}  // namespace

esito_stampa compose_document(program& app, const documento_da_stampare& document,
                              ui::printer& paper) {
    app.desk.set_pointer(ui::pointer::busy);
    const paginazione pages =
        paginate(document_form(document.tipo), document.tabelle, document.righe);
    document_output out(paper, app.files);
    figure_documento pictures(app.files, app.pictures, document.figura.shown());
    std::vector<std::string> shortened;
    compose_pages(document, pages, out,
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

std::optional<std::string> put_print_file(program& app, const documento_da_stampare& document) {
    unprinted_paper paper(app.desk.printer());
    if (compose_document(app, document, paper) != esito_stampa::completa) return {};
    return app.files.read_whole(file_di_stampa);
}

esito_stampa stampa_documento(program& app, const documento_da_stampare& document) {
    if (!app.desk.ask("Iniziare la stampa?", names_of_kind(document.tipo).titolo_stampa)) {
        return esito_stampa::rifiutata;
    }
    if (!may_lack_files(app, document)) return esito_stampa::rifiutata;
    return compose_document(app, document, app.desk.printer());
}

void offer_copies(program& app, const documento_da_stampare& document, bool invia) {
    bool printed = false;
    std::optional<std::string> file;
    do {
        const esito_stampa now = stampa_documento(app, document);
        if (now == esito_stampa::rifiutata) continue;
        if (now == esito_stampa::non_voluta) break;
        printed = true;
        file.reset();
        if (now == esito_stampa::completa) file = app.files.read_whole(file_di_stampa);
    } while (app.desk.ask("Stampa altra copia?", names_of_kind(document.tipo).titolo_stampa));
    if (!printed) return;
    offri_pdf(app, {document.tipo, document.testata.text3[campo_ordine::numero], invia,
                    document.cliente.email.full(), document.tabelle, std::move(file),
                    [&] { return put_print_file(app, document); }});
}

}  // namespace vantora
