#include "store/parameters.h"

#include "store/channel.h"
#include "store/suite_paths.h"
#include "store/text_reader.h"
#include "store/vat_codes.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// Reads a parameter file value by value. What can't be read stays as it was and leaves an error
/// pending, until the step at hand clears it.
class parameter_file {
 public:
    parameter_file(file_port& files, const std::string& path)
        : reader_(files.read_whole(path).value_or("")) {}

    [[nodiscard]] bool pending() const { return pending_; }
    void clear_pending() { pending_ = false; }

    void line(std::string& into) { note(reader_.line(into)); }
    void item(std::string& into) { note(reader_.item(into)); }

    void line(std::int16_t& into) {
        std::string text;
        if (note(reader_.line(text))) number(text, into);
    }
    void item(std::int16_t& into) {
        std::string text;
        if (note(reader_.item(text))) number(text, into);
    }
    void line(double& into) {
        std::string text;
        if (note(reader_.line(text))) into = number_at_head(text);
    }

 private:
    bool note(bool done) {
        pending_ = pending_ || !done;
        return done;
    }
    void number(const std::string& text, std::int16_t& into) {
        const auto value = to_int16(number_at_head(text));
        if (note(value.has_value())) into = *value;
    }

    text_reader reader_;
    bool pending_ = false;
};

void load_heading(parametri& into, file_port& files) {
    into.intestazione_ditta = {};
    parameter_file file(files, company_path(into.numero_azienda, "int"));
    for (std::size_t slot = 1; slot <= 3; ++slot) file.line(into.intestazione_ditta[slot]);
}

void load_currency(parametri& into, file_port& files) {
    auto& slots = into.parametri_valuta;
    parameter_file file(files, general_path("eur"));
    for (std::size_t slot = 1; slot <= 5; ++slot) file.item(slots[slot]);
    if (file.pending()) {
        // Whole texts: GCC 12 warns of literals that are assigned here.
        slots[valuta_slot::modo_decimali] = std::string("1");
        slots[valuta_slot::cambio] = std::string("1936.27");
        slots[valuta_slot::valuta_alternativa] = std::string("ITL");
        slots[valuta_slot::valuta_principale] = std::string("EUR");
        slots[valuta_slot::decimali_prezzo] = std::string("2");
    }
    std::string sixth;
    file.line(sixth);
    file.line(slots[valuta_slot::settima_riga]);
    if (file.pending()) slots[valuta_slot::settima_riga] = std::string("9");
    auto& mode = slots[valuta_slot::modo_decimali];
    mode = std::string(number_at_head(mode) != 0 ? "1" : "0");
}

void load_report_margins(voce_stampa& report, parameter_file& file) {
    file.item(report.margine_sinistro);
    file.item(report.margine_destro);
    file.item(report.margine_alto);
    file.item(report.margine_basso);
    file.item(report.stile);
    if (!file.pending()) return;
    report.margine_sinistro = 30;
    report.margine_destro = 950;
    report.margine_alto = 30;
    report.margine_basso = 950;
    report.stile = 2;
}

void load_report_fonts(std::array<voce_stampa, 31>& table, std::int16_t& header_size,
                       parameter_file& file) {
    for (std::size_t group = 0; group <= 5; ++group) {
        if (group == 0) {
            file.line(header_size);
        } else {
            std::string ignored;
            file.line(ignored);
        }
        voce_stampa& entry = table[group];
        file.line(entry.nome_carattere);
        file.line(entry.corpo_carattere);
        file.line(entry.grassetto);
        file.line(entry.corsivo);
        file.line(entry.colore);
        entry.nome_carattere.resize(std::min<std::size_t>(entry.nome_carattere.size(), 30));
    }
    if (!file.pending()) return;
    for (std::size_t i = 1; i <= 5; ++i) {
        table[i].nome_carattere = "Arial";
        table[i].corpo_carattere = 9;
        table[i].grassetto = table[i].corsivo = 0;
        table[i].colore = 0;
    }
    header_size = 4;
    table[1].corpo_carattere = 14;
}

void load_report_table(parametri& into, file_port& files) {
    auto& table = into.tabella_stampa;
    table = {};
    parameter_file file(files, general_path("tbl"));
    load_report_margins(table[0], file);

    file.clear_pending();
    std::int16_t header_size = 0;
    load_report_fonts(table, header_size, file);

    double background = 0;
    for (int i = 0; i < 6; ++i) file.line(background);
    table[0].sfondo = file.pending() ? 16777215 : background;
    if (const auto height = to_int16(header_size * 25.0 + 140)) table[0].altezza = *height;

    file.line(table[1].stile);
    file.line(table[1].altezza);
    file.line(table[2].altezza);
    file.line(table[1].sfondo);
    file.line(table[2].sfondo);
}

// General parameters ----------------------------------------------------------------------------

constexpr double pari_predefinito = 16579315;
constexpr double dispari_predefinito = 16777215;

void set_list_defaults(rec_gnr& gnr) {
    gnr.formato_gnr = "9";
    gnr.aggiorna_elenco = "1";
    gnr.colore_riga_pari = pari_predefinito;
    gnr.colore_riga_dispari = dispari_predefinito;
    gnr.righe_alternate = "1";
    gnr.riservato_be = "1";
}

bool repair_format(rec_gnr& gnr) {
    if (gnr.formato_gnr.full() == "9") return false;
    set_list_defaults(gnr);
    return true;
}

bool repair_vat_code(rec_gnr& gnr) {
    const double code = number_at_head(gnr.codice_iva_base.full());
    if (is_vat_code(code)) return false;
    gnr.codice_iva_base = "01";
    return true;
}

void set_first_start(rec_gnr& gnr) {
    for (auto& one : gnr.interi_iniziali) one = std::int16_t{0};
    gnr.vista_registro = std::int16_t{0};
    gnr.intero_sesto = std::int16_t{0};
    gnr.codice_iva_base = "01";
    set_list_defaults(gnr);
}

enum class lettura { letto, manca, illeggibile };

/// What isn't read leaves the record as it was.
lettura read_gnr(rec_gnr& into, file_port& files, const std::string& path) {
    const auto content = files.read_whole(path);
    if (!content) return files.exists(path) ? lettura::illeggibile : lettura::manca;
    rec_gnr fresh;
    std::memcpy(&fresh, content->data(), std::min(content->size(), sizeof fresh));
    into = fresh;
    return lettura::letto;
}

void load_general(parametri& into, file_port& files) {
    rec_gnr& gnr = into.gnr;
    const auto own = read_gnr(gnr, files, company_path(into.numero_azienda, "gnr"));
    const auto shared =
        own == lettura::manca ? read_gnr(gnr, files, general_path("gnr")) : lettura::manca;
    // What stands in a file that can't be read belongs to other modules too.
    into.gnr_illeggibile = own == lettura::illeggibile || shared == lettura::illeggibile;
    if (own == lettura::letto || into.gnr_illeggibile) {
        const bool code_changed = repair_vat_code(gnr);
        const bool format_changed = repair_format(gnr);
        if (code_changed || format_changed) salva_parametri(into, files);
        return;
    }
    if (shared == lettura::letto) {
        repair_format(gnr);
    } else {
        files.create_folder("\\MIRWIN\\PDF");
        set_first_start(gnr);
    }
    salva_parametri(into, files);
}

}  // namespace

void carica_parametri(parametri& into, file_port& files) {
    load_heading(into, files);
    load_currency(into, files);
    load_report_table(into, files);
    load_general(into, files);
}

void salva_parametri(const parametri& values, file_port& files) {
    if (values.gnr_illeggibile) return;
    const std::string own = company_path(values.numero_azienda, "gnr");
    // A company's first one comes whole or not at all: an empty one would hide the general file.
    if (!files.exists(own)) {
        put_whole(files, own, std::as_bytes(std::span(&values.gnr, 1)));
        return;
    }
    channel<rec_gnr> general(files.open_records(own));
    general.write(1, values.gnr);
}

}  // namespace vantora
