#include "demo/lines.h"

#include <algorithm>

#include "demo/catalogue.h"
#include "store/records/order_block.h"
#include "store/vat_codes.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

constexpr long long piece_quantities[] = {10, 10, 20, 20, 30, 40, 50, 60, 100, 120, 200, 240, 500};
constexpr long long metre_quantities[] = {50, 100, 125, 250, 250, 500, 1000, 75};

/// A live article; 0 if a few tries found none.
int draw_article(draws& chance, const std::vector<article>& articles) {
    for (int tries = 0; tries < 8 && !articles.empty(); ++tries) {
        const int number = chance.between(1, static_cast<int>(articles.size()));
        if (!articles[static_cast<std::size_t>(number - 1)].deleted()) return number;
    }
    return 0;
}

document_line article_line(draws& chance, const article& one, int number, const rec_cli& customer) {
    document_line line;
    line.articolo = number;
    line.descrizione = one.record.descrizione.trimmed();
    line.um = one.record.um.trimmed();
    line.quantita =
        one.sold_by_measure() ? chance.one_of(metre_quantities) : chance.one_of(piece_quantities);
    line.prezzo = customer.listino.full() == "1" ? one.prezzo2_cents : one.prezzo1_cents;
    line.iva = own_vat_code(customer).value_or(one.record.iva);
    line.sc1 = customer.sconto1;
    line.sc2 = customer.sconto2;
    if (chance.percent(8)) line.sc2 = chance.between(2, 10);
    return line;
}

document_line text_line(std::string text) {
    document_line line;
    line.descrizione = std::move(text);
    return line;
}

document_line carriage_line(draws& chance, const rec_cli& customer) {
    document_line line = text_line("Contributo spese di trasporto");
    line.prezzo = 100LL * chance.between(8, 35);
    line.iva = own_vat_code(customer).value_or(1);
    return line;
}

long long less_percent(long long cents, int percent) {
    return cents - (cents * percent + 51) / 100;
}

}  // namespace

riga_ordine document_line::typed() const {
    riga_ordine line;
    line.articolo = static_cast<std::int16_t>(articolo);
    line.descrizione = descrizione;
    line.um = um;
    line.quantita = static_cast<double>(quantita) / 10;
    line.prezzo = static_cast<double>(prezzo) / 100;
    line.iva = static_cast<std::int16_t>(iva);
    line.sc1 = static_cast<std::int16_t>(sc1);
    line.sc2 = static_cast<std::int16_t>(sc2);
    return line;
}

std::vector<document_line> draw_lines(draws& chance, const std::vector<article>& articles,
                                      const rec_cli& customer) {
    std::vector<document_line> lines;
    const int wanted = chance.percent(3) ? chance.between(25, 60) : chance.between(1, 12);
    for (int i = 0; i < wanted; ++i) {
        const int number = draw_article(chance, articles);
        if (number == 0) continue;
        const article& one = articles[static_cast<std::size_t>(number - 1)];
        lines.push_back(article_line(chance, one, number, customer));
        for (const std::string& text : one.long_text) lines.push_back(text_line(text));
    }
    if (lines.empty() || chance.percent(20)) {
        lines.push_back(text_line(from_utf8(chance.one_of(remarks))));
    }
    if (chance.percent(15)) lines.push_back(carriage_line(chance, customer));
    if (lines.size() > righe_blocco) lines.resize(righe_blocco);
    return lines;
}

long long net_price(const document_line& line) {
    return less_percent(less_percent(line.prezzo, line.sc1), line.sc2);
}

}  // namespace vantora::demo
