#pragma once

#include <array>
#include <string>
#include <vector>

#include "store/file_port.h"

namespace vantora {

/// VAT codes: 1 to 12 are rates, 13 to 24 exemptions worded at code - 12.
struct tabella_iva {
    std::array<std::string, 17> aliquota_iva;     ///< percent as text, 1 to 16
    std::array<std::string, 17> descrizione_iva;  ///< wording of exemptions, 0 to 16
};

/// A carrier as three lines; a line of "*" means: leave what stands there.
using vettore = std::array<std::string, 3>;

/// What this module takes from the suite's table file "vantora.tab".
struct tabella_suite {
    tabella_iva iva;
    std::vector<std::string> pagamenti;  ///< payment terms, 60 in a whole file
    std::vector<std::string> causali;    ///< transport causes, 40 in a whole file
    std::vector<std::string> aspetti;    ///< aspects of the goods, 40 in a whole file
    std::vector<vettore> vettori;        ///< carriers, 40 in a whole file
};

/// Reads the table file of a company. What a missing or short file doesn't hold is left out of the
/// lists and empty in the VAT table.
tabella_suite read_suite_table(file_port& files, int numero_azienda);

/// A code in two digits; what a damaged file holds beyond them shows in full.
std::string two_digits(int number);

/// The 24 entries of a list of VAT codes: "04 Iva 22%", "14 Non imponibile".
std::vector<std::string> vat_entries(const tabella_iva& iva);

}  // namespace vantora
