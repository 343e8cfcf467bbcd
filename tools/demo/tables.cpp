#include "demo/tables.h"

#include <span>
#include <string_view>

#include "demo/blank_record.h"
#include "demo/catalogue.h"
#include "demo/codes.h"
#include "demo/shop_words.h"

namespace vantora::demo {

namespace {

constexpr std::string_view rates[] = {"22", "10", "4", "5", "21", "20"};

/// The first is what an order prints where it has no exemption: nothing.
constexpr std::string_view exemptions[] = {
    "",
    "Esente art. 10 DPR 633/72",
    "Non imp. art. 8 DPR 633/72",
    "Non imp. art. 41 DL 331/93",
    "Non imp. art. 8, lett. c",
    "Reverse charge art. 17",
    "Escluso art. 15 DPR 633/72",
    "Fuori campo IVA",
    "IVA assolta art. 74",
};

constexpr std::string_view payments[] = {
    "Rimessa diretta",
    "Bonifico bancario anticipato",
    "Bonifico bancario 30 gg d.f.f.m.",
    "Bonifico bancario 60 gg d.f.f.m.",
    "Ri.Ba. 30 gg d.f.f.m.",
    "Ri.Ba. 60 gg d.f.f.m.",
    "Ri.Ba. 30/60 gg d.f.f.m.",
    "Ri.Ba. 60/90 gg d.f.f.m.",
    "Contrassegno",
    "Contanti alla consegna",
    "Ri.Ba. 30/60/90 gg d.f.f.m.",
    "Ri.Ba. 90 gg d.f.f.m.",
    "Ri.Ba. 120 gg d.f.f.m.",
    "Ri.Ba. 30 gg data fattura",
    "Ri.Ba. 60 gg data fattura",
    "Ri.Ba. 90 gg data fattura",
    "Bonifico bancario a vista",
    "Bonifico bancario 90 gg d.f.f.m.",
    "Bonifico bancario 120 gg d.f.f.m.",
    "Bonifico bancario 30 gg data fattura",
    "Bonifico bancario 60 gg data fattura",
    "Bonifico 30/60 gg d.f.f.m.",
    "Bonifico 50% all'ordine, saldo 30 gg",
    "Bonifico 30% all'ordine, saldo consegna",
    "Assegno bancario alla consegna",
    "Assegno circolare alla consegna",
    "Carta di credito",
    "Bancomat",
    "SDD 30 gg d.f.f.m.",
    "SDD 60 gg d.f.f.m.",
    "Ri.Ba. 30 gg d.f.f.m. + 10",
    "Ri.Ba. 60 gg d.f.f.m. + 10",
    "Ri.Ba. 90 gg d.f.f.m. + 10",
    "Bonifico 30 gg d.f.f.m. + 10",
    "Bonifico 60 gg d.f.f.m. + 10",
    "Compensazione",
    "Leasing",
    "Come da contratto",
};
static_assert(std::size(payments) == termini_di_pagamento);

constexpr std::string_view causes[] = {
    "Vendita",          "Conto vendita",       "Conto lavorazione", "Conto visione",
    "Reso a fornitore", "Reso lavorato",       "Riparazione",       "Sostituzione in garanzia",
    "Omaggio",          "Trasferimento merce", "Tentata vendita",   "Noleggio",
};

constexpr std::string_view aspects[] = {
    "Scatole", "Colli",          "A vista", "Pallet", "Sacchi",
    "Cartoni", "Fascio di tubi", "Bobine",  "Sfuso",  "Busta",
};

std::string at(std::span<const std::string_view> table, std::size_t place) {
    return std::string(place < table.size() ? table[place] : "");
}

using lines = std::vector<std::string>;

void add(lines& into, std::size_t count) {
    into.resize(into.size() + count);
}

void add_rates(lines& into, std::size_t first) {
    for (std::size_t i = 0; i < 8; ++i) {
        into.push_back(at(rates, first + i));
        add(into, 3);
    }
}

/// Each wording ends its line; one more line belongs to it.
void add_exemptions(lines& into, std::size_t first, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        into.push_back("\"" + at(exemptions, first + i) + "\"");
        add(into, 1);
    }
}

void add_payments(lines& into, std::size_t first) {
    for (std::size_t i = 0; i < 30; ++i) {
        into.push_back(at(payments, first + i));
        add(into, 1);
    }
}

void add_transport(lines& into) {
    for (std::size_t i = 0; i < 40; ++i) {
        const carrier none{};
        const carrier& one = i < std::size(carriers) ? carriers[i] : none;
        into.push_back(at(causes, i));
        into.push_back(at(aspects, i));
        for (const std::string_view line : one.lines) into.emplace_back(line);
        add(into, 1);
    }
}

}  // namespace

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

std::vector<std::string> suite_table_lines() {
    lines all;
    add_rates(all, 0);
    add(all, 8 * 3);
    add_exemptions(all, 0, 9);
    add(all, 9 * 2);
    add_payments(all, 0);
    for (int i = 0; i < 9; ++i) all.emplace_back("\"\",\"\"");
    add(all, 40);
    add(all, 40);
    add(all, 30 * 5);
    add_transport(all);
    add_rates(all, 8);
    add(all, 8 * 3);
    add_exemptions(all, 9, 8);
    add_exemptions(all, 17, 8);
    add_payments(all, 30);
    return all;
}

std::vector<std::string> category_lines() {
    return {std::begin(categories), std::end(categories)};
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
    auto gnr = blank_record<rec_gnr>();
    gnr.vista_registro = std::int16_t{11};
    gnr.formato_gnr = "9";
    gnr.aggiorna_elenco = "1";
    gnr.colore_riga_pari = 16579315;
    gnr.colore_riga_dispari = 16777215;
    gnr.righe_alternate = "1";
    gnr.riservato_be = "1";
    gnr.codice_iva_base = "01";
    gnr.peso_automatico = std::int16_t{1};
    return gnr;
}

}  // namespace vantora::demo
