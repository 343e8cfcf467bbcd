#include <algorithm>
#include <cmath>
#include <map>

#include "archive/check.h"
#include "archive/line_check.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

/// What the movements say was unloaded of each article.
struct unloaded {
    double sum = 0;
    double moved = 0;
    bool all_ours = true;  ///< no movement of another kind, which count otherwise
};

std::string movement_named(std::int64_t number, const rec_mag& one, const masters& known) {
    return "movimento " + std::to_string(number) + " del " +
           without_controls(date_text_of_stored(one.data.full())) + ", " +
           known.article_named(one.articolo);
}

void check_movement(std::int64_t number, const rec_mag& one, const survey& found, findings& into) {
    const masters& known = found.known;
    const auto tell = [&](const char* kind, std::string what) {
        into.push_back({gravity::error, kind, movement_named(number, one, known), std::move(what),
                        "Cercare il suo documento («" + words_of(one.movimento.full()) +
                            "») e correggere il movimento dove si tiene il magazzino."});
    };
    if (found.doubt.articles.empty() && (one.articolo < 1 || one.articolo > known.articles())) {
        tell("movement-no-article", "non c'è l'articolo numero " + std::to_string(one.articolo));
    }
    if (found.doubt.customers.empty() && one.tipo == 1 &&
        (one.cliente < 1 || one.cliente > known.customers())) {
        tell("movement-no-customer", "non c'è il cliente numero " + std::to_string(one.cliente));
    }
    if (!is_stored_date(one.data.full())) tell("movement-date", "la data non è una data");
    if (beyond_reason(one.quantita) || beyond_reason(one.prezzo)) {
        tell("movement-no-number", "la quantità o il prezzo non è un numero sensato");
    }
}

void tell_difference(int number, const rec_art& article, const unloaded& its, const survey& found,
                     findings& into) {
    const double scaricato = article.scaricato;
    const bool more = scaricato > its.sum;
    into.push_back(
        {gravity::warning, more ? "movement-missing" : "movement-too-many",
         found.known.article_named(number),
         "lo scaricato è " + plain_text(scaricato) + ", i movimenti fanno " + plain_text(its.sum),
         more ? "Merce è uscita senza movimento: confrontare con i documenti di "
                "trasporto."
              : "Un movimento c'è senza che la merce sia uscita: confrontare con i "
                "documenti di trasporto."});
}

/// Where the movements of past years were closed off, many articles have unloaded more than their
/// movements say: then that tells nothing.
void compare_unloaded(const std::vector<unloaded>& by_article, const survey& found,
                      findings& into) {
    constexpr std::size_t few = 10;
    std::vector<int> more;
    std::size_t moved = 0;
    for (int number = 1; number <= found.known.articles(); ++number) {
        const rec_art* article = found.known.article(number);
        const unloaded& its = by_article[static_cast<std::size_t>(number)];
        if (!article || !its.all_ours || beyond_reason(article->scaricato)) continue;
        const double scaricato = article->scaricato;
        moved += scaricato != 0 || its.moved != 0 ? 1 : 0;
        const double allowed = 1e-9 * std::max({1.0, its.moved, std::abs(scaricato)});
        if (std::abs(scaricato - its.sum) <= allowed) continue;
        if (scaricato > its.sum) {
            more.push_back(number);
        } else {
            tell_difference(number, *article, its, found, into);
        }
    }
    if (more.size() > few && more.size() * 5 > moved) {
        into.push_back(
            {gravity::note, "movements-closed-off", "vantora.mag",
             "di " + std::to_string(more.size()) + " articoli lo scaricato è più dei movimenti",
             "Se i movimenti vecchi sono stati chiusi è giusto così; se no ne mancano."});
        return;
    }
    for (const int number : more) {
        tell_difference(number, *found.known.article(number),
                        by_article[static_cast<std::size_t>(number)], found, into);
    }
}

}  // namespace

void check_movements(company_files& company, const survey& found, findings& into) {
    const auto& from = company.records().mag;
    const bool behind = !found.doubt.movements.empty();
    std::vector<unloaded> by_article(static_cast<std::size_t>(found.known.articles()) + 1);
    const int unread = scan(
        from, company.count(contatori::magazzino), [&](std::int64_t number, const rec_mag& one) {
            check_movement(number, one, found, into);
            if (one.articolo < 1 || one.articolo > found.known.articles()) return;
            unloaded& its = by_article[static_cast<std::size_t>(one.articolo)];
            its.sum += one.quantita;
            its.moved += std::abs(one.quantita);
            its.all_ours = its.all_ours && one.tipo == 1 && one.segno == 1 && one.zero == 0;
        });
    if (tell_unread(from, unread, into) || behind || !found.doubt.articles.empty()) return;
    if (into.has("movement-no-article") || into.has("movement-no-number")) return;
    compare_unloaded(by_article, found, into);
}

}  // namespace vantora::archive
