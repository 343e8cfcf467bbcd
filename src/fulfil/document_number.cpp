#include "fulfil/document_number.h"

#include <algorithm>
#include <optional>
#include <set>

#include "orders/customer_names.h"
#include "store/record_runs.h"
#include "text/dates.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr int documents_at_once = 512;

/// Hands all documents of the year of a stored date over.
template <class Visit>
void documents_of_year(const archivi& files, std::string_view date, Visit visit) {
    rec_tot counter;
    if (!files.tot.read(contatori::documenti_trasporto, counter)) return;
    const std::int64_t held = files.bol.records_held().value_or(counter.quanti);
    const int count = static_cast<int>(std::min<std::int64_t>(counter.quanti, held));
    auto documents = all_records_ahead(files.bol, count, documents_at_once);
    rec_bol one;
    for (int i = 0; i < count; ++i) {
        if (documents.next(one) && one.data.full().substr(0, 4) == date.substr(0, 4)) visit(one);
    }
}

/// The latest document with a number in the year of a stored date.
std::optional<rec_bol> given_to(const archivi& files, std::int16_t number, std::string_view date) {
    std::optional<rec_bol> found;
    documents_of_year(files, date, [&](const rec_bol& one) {
        if (one.numero == number) found = one;
    });
    return found;
}

/// Whether a number, as typed, can be stored as it is.
bool is_document_number(std::string_view typed) {
    const std::string_view digits = trimmed(typed);
    return !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos &&
           to_int16(number_at_head(digits)).value_or(0) > 0;
}

}  // namespace

dubbio_documento doubt_about(const archivi& files, std::string_view number, std::string_view date) {
    dubbio_documento doubt;
    if (!read_date(trimmed(date))) {
        doubt.data = true;
        doubt.racconto = "La data del documento di trasporto non è corretta. "_cp;
    }
    if (!is_document_number(number)) {
        doubt.numero = true;
        doubt.racconto +=
            "\"" + std::string(trimmed(number)) + "\" non è un numero di documento. "_cp;
        return doubt;
    }
    if (doubt.data) return doubt;
    const auto wanted = to_int16(number_at_head(trimmed(number))).value_or(0);
    const auto given = given_to(files, wanted, stored_of_date_text(date));
    if (!given) return doubt;
    customer_names names(files.cli, INT16_MAX);
    doubt.numero = true;
    doubt.racconto = "Il numero " + std::to_string(wanted) + " è già stato dato a "_cp +
                     std::string(names.of(given->cliente)) + " con il documento del " +
                     date_text_of_stored(given->data.full()) + ". ";
    return doubt;
}

std::int16_t free_number(const archivi& files, std::string_view date) {
    rec_tot counter;
    files.tot.read(contatori::documenti_trasporto, counter);
    std::set<std::int16_t> given;
    documents_of_year(files, stored_of_date_text(date),
                      [&](const rec_bol& one) { given.insert(one.numero); });
    std::int16_t free = std::max<std::int16_t>(counter.ultimo_numero, 0);
    while (free < INT16_MAX && (++free, given.contains(free))) continue;
    return free;
}

}  // namespace vantora
