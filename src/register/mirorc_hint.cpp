#include <algorithm>

#include "register/mirorc.h"
#include "store/records/order_block.h"
#include "store/values.h"
#include "text/code_page.h"
#include "text/dates.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

// What stands behind a row of the register, for who rests on it: one read of the order's block.

namespace {

constexpr std::size_t righe_raccontate = 6;

std::string line_text(const rec_orc& row) {
    const std::string description =
        filtra_stampa(std::string(row.descrizione.full()) + std::string(row.descrizione2.full()));
    std::string text;
    if (row.quantita != 0) {
        text = testo_quantita(row.quantita) + " " + std::string(row.um.trimmed()) + "  ";
    }
    return text.append(trimmed(description));
}

/// An order's figures over its rows.
struct somme_ordine {
    std::size_t righe = 0;
    double da_evadere = 0;
    double valore_da_evadere = 0;
    double valore = 0;

    void add(const rec_orc& row, const valuta& in) {
        ++righe;
        valore += valore_netto(row.prezzo, row.quantita, row.sc1, row.sc2, in);
        if (!(row.quantita > row.evaso)) return;
        da_evadere += row.quantita - row.evaso;
        valore_da_evadere +=
            valore_netto(row.prezzo, row.quantita - row.evaso, row.sc1, row.sc2, in);
    }
};

std::string amount_text(double value, const valuta& in) {
    return value == 0 ? "0,00" : formato_importo(value, in);
}

}  // namespace

std::string mirorc::hint(int row) const {
    if (compacting_) return {};
    const auto registrazione = to_int16(number_at_head(elenco.text(row, registr)));
    if (!registrazione || *registrazione < 1) return {};
    std::vector<rec_orc> block(righe_blocco);
    if (!app_.archives.orc.read_block(block_record(*registrazione, 1), block)) return {};
    if (block.front().annullato == 1) return {};
    const valuta in(app_.parameters);
    somme_ordine sums;
    std::string text;
    for (const rec_orc& one : block) {
        const std::string line = line_text(one);
        if (line.empty() && one.prezzo == 0) continue;
        sums.add(one, in);
        if (sums.righe <= righe_raccontate) text += line + "\n";
    }
    if (sums.righe > righe_raccontate) {
        text += "... in tutto " + std::to_string(sums.righe) + " righe\n";
    }
    if (block.front().evaso_flag == 1) {
        text += "Evaso";
    } else {
        text += "Da evadere: " + (sums.da_evadere == 0 ? "0" : testo_quantita(sums.da_evadere)) +
                " pezzi, " + amount_text(sums.valore_da_evadere, in);
    }
    return text + "\nValore dell'ordine: " + amount_text(sums.valore, in);
}

std::string mirorc::notice(int row) const {
    const std::string_view day = elenco.text(row, evasione);
    if (day.size() != 10) return {};  // "EVASO", or no date
    const auto planned = read_date(day);
    if (!planned) return {};
    const double late = date_number({app_.desk.clock().now().day}) - date_number({*planned});
    if (late < 1) return {};
    return late == 1 ? std::string("In ritardo di un giorno")
                     : "In ritardo di " + plain_text(late) + " giorni";
}

}  // namespace vantora
