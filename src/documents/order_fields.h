#pragma once

#include <array>

namespace vantora {

/// From where a field of the order document takes its text.
enum class fonte {
    vuoto,
    ditta,  ///< a line of the company's texts, by its number
    text2,  ///< a field of the customer, by its index
    text3,  ///< a field of the order's head, by its index
    letterale_piccolo,
    letterale_grande,
    partita_iva,  ///< prefix and number in one
    pagina,
    pagamento,
    testo_documenti,
    imponibile,     ///< of a rate in use, by its place in the summary
    aliquota,       ///< of a rate in use
    imposta,        ///< of a rate in use
    esente,         ///< of an exemption in use
    motivo_esente,  ///< of an exemption in use
    totale_imponibile,
    totale_iva,
    totale
};

struct campo_ordine {
    fonte da = fonte::vuoto;
    std::size_t indice = 0;
};

/// The fields of the order document: row n of the layout places field n.
inline constexpr std::array<campo_ordine, 68> campi_ordine = [] {
    using enum fonte;
    std::array<campo_ordine, 68> all{};
    for (std::size_t n = 1; n <= 16; ++n) all[n] = {ditta, n};
    for (std::size_t n = 18; n <= 22; ++n) all[n] = {text2, n - 18};
    all[23] = {partita_iva};
    all[24] = {text2, 5};
    for (std::size_t n = 25; n <= 32; ++n) all[n] = {text2, n - 17};
    all[33] = {text3, 0};
    all[34] = {text3, 1};
    all[35] = {pagina};
    for (std::size_t n = 36; n <= 38; ++n) all[n] = {text3, n - 33};
    all[39] = {letterale_piccolo};
    all[40] = {text3, 2};
    for (std::size_t n = 41; n <= 43; ++n) all[n] = {text2, n - 24};
    all[44] = {pagamento};
    all[45] = {testo_documenti};
    for (std::size_t rate = 0; rate < 3; ++rate) {
        all[47 + 3 * rate] = {imponibile, rate};
        all[48 + 3 * rate] = {aliquota, rate};
        all[49 + 3 * rate] = {imposta, rate};
    }
    for (std::size_t exemption = 0; exemption < 3; ++exemption) {
        all[56 + 2 * exemption] = {esente, exemption};
        all[57 + 2 * exemption] = {motivo_esente, exemption};
    }
    all[62] = {totale_imponibile};
    all[63] = {totale_iva};
    all[64] = {totale};
    all[65] = {letterale_grande};
    all[66] = {text2, 20};
    all[67] = {text2, 21};
    return all;
}();

}  // namespace vantora
