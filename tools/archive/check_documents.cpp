#include <algorithm>
#include <map>
#include <set>

#include "archive/check.h"
#include "archive/document_text.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

std::string document_of(const rec_bol& one, const masters& known) {
    return "documento di trasporto " + std::to_string(one.numero) + " del " +
           without_controls(date_text_of_stored(one.data.full())) + ", " +
           known.customer_named(one.cliente);
}

/// The numbers given, by year.
class given_numbers {
 public:
    void add(const rec_bol& one, const masters& known, findings& into) {
        const std::string year(one.data.full().substr(0, 4));
        if (!given_[{year, one.numero}]++) {
            highest_[year] = std::max<int>(highest_[year], one.numero);
        } else if (one.numero > 0) {
            into.push_back({gravity::warning, "document-number-twice", document_of(one, known),
                            "questo numero è stato dato già nello stesso anno",
                            "Vedere sulle carte quale dei due lo ha davvero."});
        }
        if (is_stored_date(one.data.full())) latest_ = year;
    }

    void tell_last(int last, findings& into) const {
        const auto highest = highest_.find(latest_);
        if (highest == highest_.end() || last >= highest->second) return;
        into.push_back({gravity::warning, "last-document-low",
                        "contatore dei documenti di trasporto (vantora.tot, 12)",
                        "l'ultimo numero è " + std::to_string(last) + ", ma nel " + latest_ +
                            " si è arrivati a " + std::to_string(highest->second),
                        "Nel prossimo documento scrivere il numero giusto: quello proposto c'è "
                        "già."});
    }

 private:
    std::map<std::pair<std::string, int>, int> given_;
    std::map<std::string, int> highest_;
    std::string latest_;
};

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

/// The documents behind the first whose text file is there, but without one themselves. Nothing but
/// the window of the documents given out needs those files, and old ones are set aside.
class missing_texts {
 public:
    explicit missing_texts(const std::set<std::int64_t>& there) : there_(there) {}

    void look_for(const rec_bol& one, const masters& known, findings& into) {
        const float number = one.progressivo;
        if (!(number >= 1 && number <= 1e9F)) return;
        if (there_.contains(static_cast<std::int64_t>(number))) {
            any_ = true;
        } else if (any_) {
            into.push_back({gravity::note, "document-text-missing", document_of(one, known),
                            "non c'è il suo file b" + std::to_string(static_cast<int>(number)),
                            "Non si può più rivedere né ristampare: cercarlo in una copia."});
        }
    }

 private:
    const std::set<std::int64_t>& there_;
    bool any_ = false;
};

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
    const auto texts = text_files_in(found.names);
    missing_texts missing(texts);
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
        numbers.add(one, known, into);
        missing.look_for(one, known, into);
        if (number > counted - newest) check_lines(text, one, found, into);
    });
    if (tell_unread(from, unread, into) || !found.doubt.documents.empty()) return;
    numbers.tell_last(company.counter(contatori::documenti_trasporto).ultimo_numero, into);
    check_running_number(company, texts, into);
}

}  // namespace vantora::archive
