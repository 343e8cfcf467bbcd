#include "documents/document_tables.h"

#include "store/suite_paths.h"
#include "store/text_reader.h"

namespace vantora {

namespace {

/// A file of the company; one that is missing is empty.
struct company_file {
    company_file(file_port& files, int numero_azienda, std::string_view extension) {
        const std::string path = company_path(numero_azienda, extension);
        auto read = files.read_whole(path);
        unreadable = !read && files.exists(path);
        content = std::move(read).value_or("");
    }

    std::string content;
    bool unreadable = false;
};

/// One line of a file, as much of it as a document may use.
bool read_text(text_reader& reader, std::string& into, std::size_t longest = testo_piu_lungo) {
    if (!reader.line(into)) return false;
    if (into.size() > longest) into.resize(longest);
    return true;
}

bool read_layout(std::array<voce_layout, 101>& layout, text_reader reader) {
    for (std::size_t row = 1; row < layout.size(); ++row) {
        voce_layout& one = layout[row];
        for (std::string* column : {&one.posizione, &one.corpo, &one.carattere, &one.grassetto,
                                    &one.corsivo, &one.colore}) {
            if (!read_text(reader, *column)) return false;
        }
    }
    return true;
}

/// A layout that places nothing.
void empty_layout(std::array<voce_layout, 101>& layout) {
    for (std::size_t row = 1; row < layout.size(); ++row) {
        layout[row] = {"000000", "9", "Arial", "0", "0", " 0"};
    }
    layout[98].posizione.clear();
    layout[98].corpo.clear();
    layout[98].carattere.clear();
}

}  // namespace

void load_pdf_settings(tabella_pdf& into, tipo_documento kind, parametri& parameters,
                       file_port& files) {
    const std::string path = company_path(parameters.numero_azienda, "pdf");
    text_reader lines(files.read_whole(path).value_or(""));
    for (std::size_t row = 1; row < into.size(); ++row) {
        for (auto& column : into[row]) lines.line(column);
    }
    const voce_pdf& settings = into[static_cast<std::size_t>(kind)];
    auto& slots = parameters.parametri_valuta;
    slots[valuta_slot::riservato_pdf] = trimmed(settings[0]);
    slots[valuta_slot::invio_email] = trimmed(settings[1]);
    slots[valuta_slot::cartella_pdf] = trimmed(settings[2]);
    if (slots[valuta_slot::cartella_pdf].empty()) slots[valuta_slot::cartella_pdf] = "C:";
}

void carica_documento(tabelle_documento& into, tipo_documento kind, parametri& parameters,
                      file_port& files) {
    const int company = parameters.numero_azienda;
    into.illeggibili.clear();
    const auto content_of = [&](std::string_view extension) {
        company_file read(files, company, extension);
        if (read.unreadable) into.illeggibili.push_back("vantora." + std::string(extension));
        return std::move(read.content);
    };
    text_reader heading(content_of("int"));
    for (std::size_t i = 1; i < into.testi_intestazione.size(); ++i) {
        read_text(heading, into.testi_intestazione[i]);
    }
    content_of("tab");
    into.iva = read_suite_table(files, company).iva;
    if (!read_layout(into.tabella_layout, text_reader(content_of(names_of_kind(kind).layout)))) {
        empty_layout(into.tabella_layout);
    }
    content_of("pdf");
    load_pdf_settings(into.pdf, kind, parameters, files);
}

void carica_disegno(disegno& into, tipo_documento kind, int numero_azienda, file_port& files) {
    company_file file(files, numero_azienda, names_of_kind(kind).disegno);
    into.illeggibile = file.unreadable;
    text_reader reader(std::move(file.content));
    if (!reader.item(into.elementi)) return;
    for (std::size_t i = 1; i < into.elenco.size(); ++i) {
        for (auto& text : into.elenco[i].testi) read_text(reader, text, testo_piu_lungo + 1);
        for (auto& value : into.elenco[i].valori) reader.item(value);
    }
}

}  // namespace vantora
