#pragma once

#include <string>
#include <string_view>

namespace vantora {

/// The folder that all companies share, with its closing backslash.
inline constexpr std::string_view cartella_generale = "\\mirwin\\mirwin\\";

/// The company number in the argument of the suite's menu program: its characters 7 to 9, read as
/// a number, of which only the last three digits count ("1e3" is 0); 0 if they aren't there.
int company_number_in(std::string_view argument);

/// A company's folder, without a closing backslash: "\mirwin\mirwin\miraz0.007" for company 7.
std::string folder_of_company(int numero_azienda);

/// A company's file by its extension: "\mirwin\mirwin\miraz0.007\vantora.orc" for "orc".
std::string company_path(int numero_azienda, std::string_view extension);

/// A general file by its extension: "\mirwin\mirwin\vantora.eur" for "eur".
std::string general_path(std::string_view extension);

}  // namespace vantora
