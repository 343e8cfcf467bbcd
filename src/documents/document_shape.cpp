#include "documents/document_shape.h"

#include <array>

#include "orders/head_fields.h"

namespace vantora {

namespace {

/// What every document says of the company and the customer.
template <std::size_t N>
constexpr void set_common_fields(std::array<campo_documento, N>& all) {
    using enum fonte;
    for (std::size_t n = 1; n <= 16; ++n) all[n] = {ditta, n};
    for (std::size_t n = 18; n <= 22; ++n) all[n] = {text2, campo_cliente::intestazione1 + n - 18};
    all[23] = {partita_iva};
    all[24] = {text2, campo_cliente::codice_fiscale};
    for (std::size_t n = 25; n <= 32; ++n)
        all[n] = {text2, campo_cliente::amm_intestazione1 + n - 25};
    all[33] = {text3, campo_ordine::numero};
    all[34] = {text3, campo_ordine::data};
    all[35] = {pagina};
}

constexpr std::array<campo_documento, 68> campi_ordine = [] {
    using enum fonte;
    std::array<campo_documento, 68> all{};
    set_common_fields(all);
    for (std::size_t n = 36; n <= 38; ++n) all[n] = {text3, campo_ordine::riferimento1 + n - 36};
    all[39] = {letterale, 0, "Ordine cliente"};
    all[40] = {text3, campo_ordine::data_evasione};
    for (std::size_t n = 41; n <= 43; ++n) all[n] = {text2, campo_cliente::vettore1 + n - 41};
    all[44] = {combo1, 1};
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
    all[65] = {letterale, 0, "ORDINE CLIENTE"};
    all[66] = {text2, campo_cliente::note1};
    all[67] = {text2, campo_cliente::note2};
    return all;
}();

constexpr colonna_riga colonne_ordine[] = {
    colonna_riga::codice, colonna_riga::descrizione, colonna_riga::quantita,
    colonna_riga::um,     colonna_riga::prezzo,      colonna_riga::lordo,
    colonna_riga::netto,  colonna_riga::sconti,      colonna_riga::aliquota};

constexpr std::array<campo_documento, 51> campi_trasporto = [] {
    using enum fonte;
    std::array<campo_documento, 51> all{};
    set_common_fields(all);
    all[36] = {combo1, 1};
    all[37] = {text3, campo_ddt::colli};
    all[38] = {text3, campo_ddt::peso};
    all[39] = {combo2};
    all[40] = {combo1, 0};
    all[41] = {combo1, 2};
    for (std::size_t n = 43; n <= 45; ++n) all[n] = {text2, campo_cliente::vettore1 + n - 43};
    all[46] = {text3, campo_ddt::inizio};
    all[47] = {text3, campo_ddt::ora};
    all[48] = {letterale, 0, "DOCUMENTO DI TRASPORTO"};
    all[49] = {text2, campo_cliente::note1};
    all[50] = {text2, campo_cliente::note2};
    return all;
}();

/// Goods, and no amounts.
constexpr colonna_riga colonne_trasporto[] = {colonna_riga::codice,   colonna_riga::descrizione,
                                              colonna_riga::quantita, colonna_riga::um,
                                              colonna_riga::prezzo,   colonna_riga::sconti};

constexpr forma_documento forma_ordine{campi_ordine, 68, 69, 70, colonne_ordine, false};
constexpr forma_documento forma_trasporto{campi_trasporto, 51, 52, 53, colonne_trasporto, true};

}  // namespace

const forma_documento& document_form(tipo_documento kind) {
    return kind == tipo_documento::ordine ? forma_ordine : forma_trasporto;
}

}  // namespace vantora
