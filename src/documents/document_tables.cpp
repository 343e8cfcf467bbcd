#include "documents/document_tables.h"

#include "store/company.h"
#include "store/text_reader.h"

namespace vantora {

namespace {

/// Which files belong to a kind of document.
struct file_del_tipo {
    std::string_view layout;
    std::string_view disegno;
};

file_del_tipo files_of(tipo_documento kind) {
    return kind == tipo_documento::ordine ? file_del_tipo{"lyo", "lko"}
                                          : file_del_tipo{"lyb", "lkb"};
}

text_reader open(file_port& files, int numero_azienda, std::string_view extension) {
    return text_reader(files.read_whole(file_azienda(numero_azienda, extension)).value_or(""));
}

bool read_layout(std::array<voce_layout, 101>& layout, text_reader reader) {
    for (std::size_t row = 1; row < layout.size(); ++row) {
        voce_layout& one = layout[row];
        for (std::string* column : {&one.posizione, &one.corpo, &one.carattere, &one.grassetto,
                                    &one.corsivo, &one.colore}) {
            if (!reader.line(*column)) return false;
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

void carica_documento(tabelle_documento& into, tipo_documento kind, parametri& parameters,
                      file_port& files) {
    const int company = parameters.numero_azienda;
    text_reader heading = open(files, company, "int");
    for (std::size_t i = 1; i < into.testi_intestazione.size(); ++i) {
        heading.line(into.testi_intestazione[i]);
    }
    into.iva = leggi_tabella_suite(files, company).iva;
    if (!read_layout(into.tabella_layout, open(files, company, files_of(kind).layout))) {
        empty_layout(into.tabella_layout);
    }
    text_reader pdf = open(files, company, "pdf");
    for (std::size_t row = 1; row < into.tabella_pdf.size(); ++row) {
        for (auto& column : into.tabella_pdf[row]) pdf.line(column);
    }

    const voce_pdf& settings = into.tabella_pdf[static_cast<std::size_t>(kind)];
    auto& slots = parameters.parametri_valuta;
    slots[valuta_slot::riservato_pdf] = trimmed(settings[0]);
    slots[valuta_slot::invio_email] = trimmed(settings[1]);
    slots[valuta_slot::cartella_pdf] = trimmed(settings[2]);
    if (slots[valuta_slot::cartella_pdf].empty()) slots[valuta_slot::cartella_pdf] = "C:";
}

void carica_disegno(disegno& into, tipo_documento kind, int numero_azienda, file_port& files) {
    text_reader reader = open(files, numero_azienda, files_of(kind).disegno);
    if (!reader.item(into.elementi)) return;
    for (std::size_t i = 1; i < into.elenco.size(); ++i) {
        for (auto& text : into.elenco[i].testi) reader.line(text);
        for (auto& value : into.elenco[i].valori) reader.item(value);
    }
}

std::string filtra_stampa(std::string_view text) {
    std::string kept;
    kept.reserve(text.size());
    for (const char character : text) {
        const auto code = static_cast<unsigned char>(character);
        if (code >= 32 && code < 255) kept.push_back(character);
    }
    return kept;
}

}  // namespace vantora
