#include <span>
#include <string_view>

#include "demo/shop_words.h"
#include "demo/tables.h"

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
        const carrier& one = i < carriers.size() ? carriers[i] : none;
        into.push_back(at(causes, i));
        into.push_back(at(aspects, i));
        for (const std::string_view line : one.lines) into.emplace_back(line);
        add(into, 1);
    }
}

}  // namespace

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

}  // namespace vantora::demo
