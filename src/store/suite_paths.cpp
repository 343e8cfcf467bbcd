#include "store/suite_paths.h"

#include <cmath>

#include "text/number_text.h"

namespace vantora {

int company_number_in(std::string_view argument) {
    if (argument.size() < 9) return 0;
    return static_cast<int>(std::fmod(number_at_head(argument.substr(6, 3)), 1000));
}

std::string folder_of_company(int numero_azienda) {
    const std::string padded = "000" + std::to_string(numero_azienda);
    return std::string(cartella_generale) + "miraz0." + padded.substr(padded.size() - 3);
}

std::string company_path(int numero_azienda, std::string_view extension) {
    return folder_of_company(numero_azienda).append("\\vantora.").append(extension);
}

std::string general_path(std::string_view extension) {
    return std::string(cartella_generale).append("vantora.").append(extension);
}

}  // namespace vantora
