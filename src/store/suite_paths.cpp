#include "store/suite_paths.h"

#include <cmath>

#include "text/number_text.h"

namespace vantora {

int numero_azienda_in(std::string_view argument) {
    if (argument.size() < 9) return 0;
    return static_cast<int>(std::fmod(number_at_head(argument.substr(6, 3)), 1000));
}

std::string cartella_azienda(int numero_azienda) {
    const std::string padded = "000" + std::to_string(numero_azienda);
    return std::string(cartella_generale) + "miraz0." + padded.substr(padded.size() - 3);
}

std::string file_azienda(int numero_azienda, std::string_view extension) {
    return cartella_azienda(numero_azienda).append("\\vantora.").append(extension);
}

std::string file_generale(std::string_view extension) {
    return std::string(cartella_generale).append("vantora.").append(extension);
}

}  // namespace vantora
