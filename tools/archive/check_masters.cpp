#include "archive/check.h"
#include "archive/line_check.h"

namespace vantora::archive {

namespace {

void check_customer(int number, const rec_cli& one, const masters& known, findings& into) {
    const auto tell = [&](const char* kind, std::string what, const char* advice) {
        into.push_back({gravity::warning, kind,
                        "cliente " + std::to_string(number) + ", " + known.customer_named(number),
                        std::move(what), advice});
    };
    if (one.eliminato == 1) return;
    if (words_of(one.intestazione1.full()).empty()) {
        tell("customer-nameless", "non ha nome",
             "Scriverlo nell'anagrafica dei clienti; l'indice dei nomi può averlo ancora.");
    }
    if (any_has_controls({one.intestazione1.full(), one.intestazione2.full(), one.indirizzo.full(),
                          one.citta.full(), one.cap.full(), one.amm_intestazione1.full(),
                          one.amm_intestazione2.full(), one.amm_indirizzo.full(),
                          one.amm_citta.full(), one.partita_iva.full(), one.email.full()})) {
        tell("customer-text", "un suo dato contiene caratteri che non si scrivono",
             "Riscriverlo nell'anagrafica dei clienti.");
    }
    if (one.sconto1 > 100 || one.sconto2 > 100 || one.sconto1 < -100 || one.sconto2 < -100) {
        tell("customer-discount",
             "i suoi sconti sono " + std::to_string(one.sconto1) + "+" +
                 std::to_string(one.sconto2) + " per cento",
             "Correggerli nell'anagrafica dei clienti.");
    }
    if (one.iva_cliente < 0 || one.iva_cliente > ultimo_codice_iva) {
        tell("customer-vat-code",
             "il suo codice IVA " + std::to_string(one.iva_cliente) + " non esiste (da 1 a 24)",
             "Correggerlo nell'anagrafica dei clienti: così vale quello degli articoli.");
    }
}

struct stock_figure {
    const char* name;
    f64le rec_art::*field;
};

constexpr stock_figure figures[] = {
    {"la giacenza", &rec_art::giacenza},
    {"l'impegnato", &rec_art::impegnato},
    {"l'ordinato dai clienti", &rec_art::ordinato_clienti},
    {"lo scaricato", &rec_art::scaricato},
    {"il valore scaricato", &rec_art::valore_scaricato},
    {"il primo prezzo", &rec_art::prezzo1},
    {"il secondo prezzo", &rec_art::prezzo2},
    {"il peso", &rec_art::peso},
};

void check_article(int number, const rec_art& one, const masters& known, findings& into) {
    const auto tell = [&](gravity how_bad, const char* kind, std::string what, const char* advice) {
        into.push_back({how_bad, kind, known.article_named(number), std::move(what), advice});
    };
    for (const stock_figure& figure : figures) {
        const double value = one.*(figure.field);
        if (!std::isfinite(value)) {
            tell(gravity::error, "figure-no-number", std::string(figure.name) + " non è un numero",
                 "Contare la merce o cercare il dato in una copia, e scriverlo nell'anagrafica "
                 "degli articoli.");
        } else if (std::abs(value) >= 1e12 ||
                   (figure.field != &rec_art::valore_scaricato && beyond_reason(value))) {
            tell(gravity::error, "figure-absurd",
                 std::string(figure.name) + " è fuori da ogni misura",
                 "Contare la merce o cercare il dato in una copia, e scriverlo nell'anagrafica "
                 "degli articoli.");
        }
    }
    if (one.eliminato != 0) return;
    if (words_of(one.codice.full()).empty()) {
        tell(gravity::warning, "article-without-code", "non ha codice",
             "Scriverlo nell'anagrafica degli articoli: senza non si trova.");
    }
    if (any_has_controls(
            {one.codice.full(), one.descrizione.full(), one.codice_barre.full(), one.um.full()})) {
        tell(gravity::warning, "article-text", "un suo dato contiene caratteri che non si scrivono",
             "Riscriverlo nell'anagrafica degli articoli.");
    }
    if (one.iva < 0 || one.iva > ultimo_codice_iva) {
        tell(gravity::warning, "article-vat-code",
             "il suo codice IVA " + std::to_string(one.iva) + " non esiste (da 1 a 24)",
             "Correggerlo nell'anagrafica degli articoli.");
    }
}

}  // namespace

void check_masters(const survey& found, findings& into) {
    const masters& known = found.known;
    for (int number = 1; number <= known.customers(); ++number) {
        const rec_cli* one = known.customer(number);
        if (one) check_customer(number, *one, known, into);
    }
    for (int number = 1; number <= known.articles(); ++number) {
        const rec_art* one = known.article(number);
        if (one) check_article(number, *one, known, into);
    }
}

}  // namespace vantora::archive
