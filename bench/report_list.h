#pragma once

#include <string>

#include "reports/report.h"
#include "store/money.h"
#include "text/number_text.h"

namespace vantora::bench {

inline constexpr colonna_report schede_articoli[] = {
    {"Articolo", 32, 0}, {"Ordine", 11, 0},   {"Data", 13, 0}, {"Descrizione", 27, 0},
    {"Cliente", 27, 0},  {"Ordinato", 13, 2}, {"Evaso", 13, 5}};
inline constexpr descrizione_report schede{"Stampa schede articoli", "Schede articoli",
                                           "schedearticoli.pdf", schede_articoli};

/// Fills a list as the article sheets of a large archive fill it: texts that differ from row to row
/// and mostly are too wide for their columns.
inline void fill(ui::grid& list, int rows) {
    list.set_columns({{"Articolo"},
                      {"Ordine"},
                      {"Data"},
                      {"Descrizione"},
                      {"Cliente"},
                      {"Ordinato"},
                      {"Evaso"}});
    list.set_rows(rows + 1);
    const char* customers[] = {"Ferramenta Rossi & Figli S.n.c. di Rossi G.", "Edilnord S.p.A.",
                               "Officine Meccaniche Adriatiche S.r.l.", "Bianchi Maria"};
    for (int row = 1; row <= rows; ++row) {
        const std::string number = std::to_string(row);
        const auto part = static_cast<unsigned>(row) * 2654435761U;
        if (row % 5 == 1) list.set_text(row, 0, "TUBO-" + number + " Tubo zincato saldato 1/2\"");
        list.set_text(row, 1, number + "/A");
        list.set_text(row, 2, "0" + std::to_string(1 + part % 9) + "/05/2024");
        list.set_text(row, 3, "Ordine n. " + number + " del reparto manutenzione e impianti");
        list.set_text(row, 4, customers[part % 4] + number);
        list.set_text(row, 5, masked(part % 50000 / 100.0, maschera::quantita));
        if (row % 3 == 0) list.set_text(row, 6, masked(part % 400, maschera::quantita));
    }
}

}  // namespace vantora::bench
