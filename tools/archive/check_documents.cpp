#include <algorithm>
#include <map>
#include <set>

#include "archive/check.h"
#include "archive/document_text.h"
#include "archive/given_numbers.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

std::string document_of(const rec_bol& one, const masters& known) {
    return "documento di trasporto " + std::to_string(one.numero) + " del " +
           without_controls(date_text_of_stored(one.data.full())) + ", " +
           known.customer_named(one.cliente);
}

/// The numbers of the text files that documents leave in the company's folder.
std::set<std::int64_t> text_files_in(const std::vector<std::string>& folder) {
    constexpr std::size_t digits_most = 10;
    std::set<std::int64_t> numbers;
    for (const std::string& name : folder) {
        if (name.size() < 2 || name.size() > digits_most + 1 ||
            (name[0] != 'b' && name[0] != 'B') ||
            name.find_first_not_of("0123456789", 1) != std::string::npos) {
            continue;
        }
        numbers.insert(std::stoll(name.substr(1)));
    }
    return numbers;
}

/// The number of its text file; 0 for what is none.
std::int64_t text_file_of(const rec_bol& one) {
    const float number = one.progressivo;
    return number >= 1 && number <= 1e9F ? static_cast<std::int64_t>(number) : 0;
}

/// The articles in the lines of a document; those of the newest alone, as tens of thousands of text
/// files take longer than all else.
void check_lines(document_text& text, const rec_bol& one, const survey& found, findings& into) {
    gaps told_otherwise;
    if (!found.doubt.articles.empty() || !text.read(one, told_otherwise)) return;
    for (std::size_t row = 1; row <= righe_blocco; ++row) {
        const double article = text.number(document_text::line_of(row));
        if (article <= found.known.articles()) continue;
        into.push_back({gravity::warning, "document-no-article", document_of(one, found.known),
                        "riga " + std::to_string(row) +
                            " del suo file b: non c'è l'articolo numero " + plain_text(article),
                        "Confrontare con la sua carta; il registro dei documenti lo mostra così."});
        return;
    }
}

void check_running_number(company_files& company, const std::set<std::int64_t>& texts,
                          findings& into) {
    constexpr float restarts_at = 1e9F;
    const float running = company.counter(contatori::documenti_trasporto).progressivo;
    const std::int64_t highest = texts.empty() ? 0 : *texts.rbegin();
    if (!(running >= 0) || static_cast<double>(highest) <= running ||
        static_cast<float>(highest) >= restarts_at) {
        return;
    }
    into.push_back({gravity::warning, "text-files-beyond", "file b" + std::to_string(highest),
                    "il progressivo dei documenti (" + plain_text(running) +
                        ") è più basso di un file b che c'è",
                    "I prossimi documenti scrivono sopra ai file b: metterli da parte prima."});
}

}  // namespace

void check_documents(company_files& company, const survey& found, findings& into) {
    constexpr int newest = 500;
    const auto& from = company.records().bol;
    const int counted = company.count(contatori::documenti_trasporto);
    const masters& known = found.known;
    document_text text(company);
    given_numbers numbers;
    std::map<std::pair<std::string, int>, int> met;  ///< year and number
    const auto texts = text_files_in(found.names);
    bool any_text = false;
    const int unread = scan(from, counted, [&](std::int64_t number, const rec_bol& one) {
        const auto tell = [&](gravity how_bad, const char* kind, std::string what) {
            into.push_back({how_bad, kind, document_of(one, known), std::move(what),
                            "Confrontare con la sua carta; il registro dei documenti lo mostra "
                            "così."});
        };
        if (found.doubt.customers.empty() && (one.cliente < 1 || one.cliente > known.customers())) {
            tell(gravity::error, "document-no-customer",
                 "non c'è il cliente numero " + std::to_string(one.cliente));
        }
        if (!is_stored_date(one.data.full())) {
            tell(gravity::error, "document-date", "la data non è una data");
        }
        if (one.numero < 1) {
            tell(gravity::warning, "document-number", "il numero non è un numero di documento");
        }
        const std::string year(one.data.full().substr(0, 4));
        if (met[{year, one.numero}]++ == 0) {
            numbers.add(year, one.numero);
        } else if (one.numero > 0) {
            into.push_back({gravity::warning, "document-number-twice", document_of(one, known),
                            "questo numero è stato dato già nello stesso anno",
                            "Vedere sulle carte quale dei due lo ha davvero."});
        }
        if (is_stored_date(one.data.full())) numbers.last_was_in(year);
        const std::int64_t text_file = text_file_of(one);
        // Only the window of the documents given out needs them, and old ones are set aside.
        if (text_file > 0 && texts.contains(text_file)) {
            any_text = true;
        } else if (text_file > 0 && any_text) {
            into.push_back({gravity::note, "document-text-missing", document_of(one, known),
                            "non c'è il suo file b" + std::to_string(text_file),
                            "Non si può più rivedere né ristampare: cercarlo in una copia."});
        }
        if (number > counted - newest) check_lines(text, one, found, into);
    });
    if (tell_unread(from, unread, into) || !found.doubt.documents.empty()) return;
    numbers.tell_last(company.counter(contatori::documenti_trasporto).ultimo_numero,
                      "last-document-low", "contatore dei documenti di trasporto (vantora.tot, 12)",
                      "documento", into);
    check_running_number(company, texts, into);
}

}  // namespace vantora::archive
