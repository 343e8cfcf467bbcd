#include "demo/tables.h"

#include <cstring>

#include "demo/catalogue.h"
#include "demo/codes.h"

namespace vantora::demo {

std::vector<std::string> heading_lines() {
    std::vector<std::string> lines = {
        "Ferramenta & Idraulica Bassani S.r.l.",
        "Via dell'Artigianato, 24 - 25030 Castelvero (BS)",
        "Partita IVA e C.F. " + partita_iva("0312457017") + " - R.E.A. BS 418230",
        "Tel. 030 5550142 - Fax 030 5550143",
        "info@bassani.example - www.bassani.example",
        "Capitale sociale € 95.000,00 i.v. - Registro imprese di Brescia",
        "Ferramenta, idraulica e materiale elettrico all'ingrosso",
        "Banca della Bassa Bresciana - IBAN IT60 X054 2811 1010 0000 0123 456",
    };
    lines.resize(20);
    return lines;
}

std::vector<std::string> category_lines() {
    return {categories.begin(), categories.end()};
}

std::vector<std::string> pdf_lines() {
    std::vector<std::string> lines;
    for (int kind = 1; kind <= 20; ++kind) {
        const bool in_use = kind == 5 || kind == 6;
        lines.insert(lines.end(), {"0", in_use ? "1" : "0", in_use ? "\\MIRWIN\\PDF" : "", ""});
    }
    return lines;
}

std::vector<std::string> currency_lines() {
    return {"1", "1936.27", "ITL", "EUR", "2", "", "9"};
}

std::vector<std::string> report_table_lines() {
    const std::string white = "16777215";
    const std::string pale_blue = "16579315";
    std::vector<std::string> lines = {"40", "960", "30", "950", "2"};
    const auto add_font = [&](const char* first, const char* name, const char* points,
                              const char* bold, const char* colour) {
        lines.insert(lines.end(), {first, name, points, bold, "0", colour});
    };
    add_font("4", "Arial", "9", "0", "0");
    add_font("0", "Arial", "14", "1", "6567967");
    add_font("0", "Arial", "8", "0", "5921370");
    add_font("0", "Arial", "8", "1", "0");
    add_font("0", "Arial", "9", "0", "0");
    add_font("0", "Arial", "8", "0", "0");
    lines.insert(lines.end(), {"0", "0", "0", "0", "0", pale_blue});
    lines.insert(lines.end(), {"1", "0", "1", pale_blue, white, "0"});
    return lines;
}

rec_gnr general_parameters() {
    rec_gnr gnr;
    gnr.riservato_bc = "";
    gnr.riservato_bd = "";
    gnr.riservato_bf = "";
    gnr.riservato_bg = "";
    gnr.riservato_bj = "";
    gnr.riservato_bk = "";
    gnr.riservato_bl = "";
    for (auto& one : gnr.interi_iniziali) one = std::int16_t{0};
    gnr.vista_registro = std::int16_t{11};
    gnr.intero_sesto = std::int16_t{0};
    gnr.formato_gnr = "9";
    gnr.aggiorna_elenco = "1";
    gnr.colore_riga_pari = 16579315;
    gnr.colore_riga_dispari = 16777215;
    gnr.righe_alternate = "1";
    gnr.riservato_be = "1";
    gnr.riservato_bh = std::int16_t{0};
    gnr.usa_barcode = std::int16_t{0};
    gnr.riservato_bi = std::int16_t{0};
    gnr.codice_iva_base = "01";
    gnr.peso_automatico = std::int16_t{1};
    return gnr;
}

}  // namespace vantora::demo
