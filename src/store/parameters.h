#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "store/file_port.h"
#include "store/records/rec_gnr.h"

namespace vantora {

/// One entry of the report table: how a part of a report looks. Entry 0 is the report, 1 its
/// title, 2 the company's lines, 3 the column heads, 4 the plain rows, 5 the rows of style 1.
struct voce_stampa {
    std::int16_t margine_sinistro = 0;  ///< thousandths of the page width, entry 0 only
    std::int16_t margine_destro = 0;    ///< thousandths of the page width, entry 0 only
    std::int16_t margine_alto = 0;      ///< thousandths of the page height, entry 0 only
    std::int16_t margine_basso = 0;     ///< thousandths of the page height, entry 0 only
    std::int16_t stile = 0;
    std::string nome_carattere;
    std::int16_t corpo_carattere = 0;  ///< points
    std::int16_t grassetto = 0;        ///< not 0: bold
    std::int16_t corsivo = 0;          ///< not 0: italic
    double colore = 0;                 ///< 24 bits, red in the low byte
    std::int16_t altezza = 0;
    double sfondo = 0;
};

/// Slots of `parametri_valuta`.
namespace valuta_slot {
inline constexpr std::size_t modo_decimali = 1;       ///< "0" whole lire, "1" two decimals
inline constexpr std::size_t cambio = 2;              ///< kept for the suite
inline constexpr std::size_t valuta_alternativa = 3;  ///< kept for the suite
inline constexpr std::size_t valuta_principale = 4;   ///< kept for the suite
inline constexpr std::size_t decimali_prezzo = 5;     ///< decimals of unit prices
inline constexpr std::size_t cartella_pdf = 7;
inline constexpr std::size_t riservato_pdf = 8;
inline constexpr std::size_t invio_email = 9;
inline constexpr std::size_t settima_riga = 11;  ///< kept for the suite
}  // namespace valuta_slot

/// The parameters of the suite and of one company.
struct parametri {
    int numero_azienda = 0;
    std::array<std::string, 21> intestazione_ditta;  ///< 1 to 3: heading of printed reports
    std::array<std::string, 41> parametri_valuta;
    std::array<voce_stampa, 31> tabella_stampa;
    rec_gnr gnr;

    /// The file of `gnr` is there but couldn't be read: `gnr` has usable values, and they are never
    /// written over it.
    bool gnr_illeggibile = false;
};

/// Loads the parameter files of the suite and of company `numero_azienda`, repairs the general
/// parameters, or creates them on a company's first start. What is missing or short takes its
/// fallback values; nothing is reported. Safe to repeat.
void carica_parametri(parametri& into, file_port& files);

/// Writes `gnr` to the company folder, unless it is there and couldn't be read. Failures are passed
/// over.
void salva_parametri(const parametri& values, file_port& files);

}  // namespace vantora
