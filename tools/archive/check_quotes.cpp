#include <algorithm>
#include <cstring>
#include <map>

#include "archive/check.h"
#include "archive/line_check.h"

namespace vantora::archive {

namespace {

using quote_rows = std::span<const rec_prv>;

bool is_live(const rec_prv& head) {
    return head.annullato == 0 && head.cliente >= 1 && is_stored_date(head.data.full());
}

/// What a quote is known by, also where it was moved to.
std::string name_of(const rec_prv& head) {
    return std::string(head.numero.full()) + std::string(head.data.full());
}

bool are_twins(const channel<rec_prv>& from, int first, quote_rows later) {
    std::vector<rec_prv> rows(later.size());
    return from.read_block(block_record(first, 1), std::span(rows)) &&
           std::memcmp(rows.data(), later.data(), later.size_bytes()) == 0;
}

/// Two that have the same number and date.
void tell_same_number(int registrazione, quote_rows whole, int first, const survey& found,
                      const channel<rec_prv>& from, findings& into) {
    const bool twins = are_twins(from, first, whole);
    into.push_back({twins ? gravity::error : gravity::note,
                    twins ? "quote-doubled" : "quote-number-twice",
                    document_named("preventivo", whole.front(), registrazione, found.known),
                    (twins ? "è lo stesso preventivo della registrazione "
                           : "numero e data sono quelli della registrazione ") +
                        std::to_string(first),
                    twins ? "Eliminarne uno dove si fanno i preventivi."
                          : "Se non è voluto, cambiare il numero di uno dei due."});
}

void check_quote(int registrazione, quote_rows rows, const survey& found, findings& into) {
    const rec_prv& head = rows.front();
    const auto tell = [&](gravity how_bad, const char* kind, std::string what, std::string advice) {
        into.push_back({how_bad, std::string("quote-") + kind,
                        document_named("preventivo", head, registrazione, found.known),
                        std::move(what), std::move(advice)});
    };
    if (head.annullato != 0) return;
    const bool nothing = head.cliente == 0 && words_of(head.numero.full()).empty();
    if (nothing && rows.size() == 1) {
        into.push_back({gravity::error, "quote-lost",
                        "preventivo alla registrazione " + std::to_string(registrazione),
                        "il suo posto è vuoto: un preventivo è andato perduto",
                        "Cercarlo in una copia di vantora.prv o nelle carte."});
        return;
    }
    for (std::size_t row = 1; row < rows.size(); ++row) {
        const rec_prv& other = rows[row];
        if (other.numero == head.numero && other.data == head.data &&
            other.cliente == head.cliente) {
            continue;
        }
        tell(gravity::error, "mixed",
             "dalla riga " + std::to_string(row + 1) +
                 " in poi le righe sono di un altro preventivo",
             "Aprirlo dove si fanno i preventivi, confrontarlo con la carta, salvarlo.");
        break;
    }
    if (found.doubt.customers.empty() &&
        (head.cliente < 1 || head.cliente > found.known.customers())) {
        tell(gravity::error, "no-customer",
             "non c'è il cliente numero " + std::to_string(head.cliente),
             "Scegliere il cliente dove si fanno i preventivi.");
    }
    if (!is_stored_date(head.data.full())) {
        tell(gravity::error, "date", "la data non è una data",
             "Riscriverla dove si fanno i preventivi.");
    }
    const char* last = "";
    for (std::size_t row = 0; row < rows.size(); ++row) {
        check_line(rows[row], found.known.articles(), found.doubt.articles.empty(),
                   has_controls_in_texts(rows[row]),
                   [&](gravity how_bad, const char* kind, const std::string& what, const char*) {
                       if (std::strcmp(last, kind) == 0) return;
                       last = kind;
                       tell(how_bad, kind, "riga " + std::to_string(row + 1) + ": " + what,
                            "Correggere la riga dove si fanno i preventivi.");
                   });
    }
}

}  // namespace

void check_quotes(company_files& company, const survey& found, findings& into) {
    if (!found.doubt.quotes.empty()) return;
    const auto& from = company.records().prv;
    const int counted = company.count(contatori::preventivi);
    const auto held = std::min<std::int64_t>(from.records_held().value_or(0) / righe_blocco, 65534);
    std::map<std::string, int> numbers;
    int further = 0;
    const int all = std::max(counted, static_cast<int>(held));
    const int unread = scan_blocks(from, all, [&](int registrazione, quote_rows quote) {
        const quote_rows rows = without_empty_end(quote);
        const std::string number = name_of(rows.front());
        if (registrazione <= counted) {
            check_quote(registrazione, rows, found, into);
            if (!is_live(rows.front())) return;
            const auto [first, is_new] = numbers.emplace(number, registrazione);
            if (!is_new) tell_same_number(registrazione, quote, first->second, found, from, into);
        } else if (is_live(rows.front()) && !numbers.contains(number)) {
            ++further;
        }
    });
    if (tell_unread(from, unread * righe_blocco, into) || further == 0) return;
    into.push_back({further == 1 ? gravity::note : gravity::error, "quotes-behind",
                    "contatore dei preventivi (vantora.tot, 17)",
                    "dice " + std::to_string(counted) + ", ma dietro ce ne sono altri " +
                        std::to_string(further),
                    "Prima di farne di nuovi confrontarli con le carte, o rimettere vantora.tot "
                    "da una copia."});
}

}  // namespace vantora::archive
