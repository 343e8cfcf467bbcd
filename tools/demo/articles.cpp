#include "demo/articles.h"

#include "demo/blank_record.h"
#include "demo/catalogue.h"
#include "demo/codes.h"
#include "demo/draws.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

std::vector<std::string_view> split(std::string_view sizes) {
    std::vector<std::string_view> all;
    while (true) {
        const std::size_t bar = sizes.find('|');
        all.push_back(sizes.substr(0, bar));
        if (bar == std::string_view::npos) return all;
        sizes.remove_prefix(bar + 1);
    }
}

void set_stock(article& one, draws& chance) {
    if (chance.percent(8)) return;
    one.record.giacenza = 10.0 * chance.between(1, chance.percent(30) ? 900 : 120);
}

void set_prices(article& one, draws& chance, const product& kind, int size, int sizes) {
    const int span = kind.highest_cents - kind.lowest_cents;
    const int base = kind.lowest_cents + (sizes > 1 ? span * size / (sizes - 1) : span / 2);
    one.prezzo1_cents = base * chance.between(92, 108) / 100;
    one.prezzo2_cents = one.prezzo1_cents * chance.between(82, 90) / 100;
    one.record.prezzo1 = static_cast<double>(one.prezzo1_cents) / 100;
    one.record.prezzo2 = static_cast<double>(one.prezzo2_cents) / 100;
}

void set_bar_code(rec_art& record, draws& chance, int number, int maker) {
    const std::string code = "80" + zero_padded(12345 + 1111 * maker, 5) + zero_padded(number, 5);
    record.codice_barre = chance.percent(95) ? ean_code(code) : "";
}

void set_suppliers(rec_art& record, draws& chance) {
    record.classe1 = "F" + zero_padded(chance.between(1, 40), 3);
    record.classe2 = chance.percent(30) ? "F" + zero_padded(chance.between(41, 60), 3) : "";
}

void set_long_text(article& one, draws& chance) {
    if (!chance.percent(6)) return;
    for (const std::string_view line : chance.one_of(long_texts).lines) {
        if (!line.empty()) one.long_text.push_back(from_utf8(line));
    }
}

/// The maker's name is left out where it doesn't fit.
std::string with_maker(const std::string& name, int maker) {
    const std::string full = name + " " + std::string(makers[static_cast<std::size_t>(maker)]);
    return full.size() <= decltype(rec_art::descrizione)::width ? full : name;
}

article make_article(draws& chance, int number) {
    article one;
    one.record = blank_record<rec_art>();
    const product& kind = chance.one_of(products);
    const auto sizes = split(kind.sizes);
    const int size = chance.below(static_cast<int>(sizes.size()));
    const int maker = chance.below(static_cast<int>(std::size(makers)));
    const std::string name =
        std::string(kind.name) + " " + std::string(sizes[static_cast<std::size_t>(size)]);

    one.record.codice = std::string(kind.prefix) + zero_padded(number, 5);
    one.record.descrizione = with_maker(from_utf8(name), maker);
    one.record.um = kind.um;
    one.record.categoria = std::to_string(kind.categoria);
    one.record.iva = static_cast<std::int16_t>(kind.iva);
    one.record.peso = static_cast<double>(kind.grams * (2 + size) / 2) / 1000;
    set_prices(one, chance, kind, size, static_cast<int>(sizes.size()));
    set_bar_code(one.record, chance, number, maker);
    set_suppliers(one.record, chance);
    set_long_text(one, chance);
    set_stock(one, chance);
    if (number > 1 && chance.percent(4)) one.record.eliminato = std::int16_t{1};
    return one;
}

}  // namespace

std::vector<article> make_articles(int count, std::uint64_t seed) {
    draws chance(seed, 2);
    std::vector<article> all;
    all.reserve(static_cast<std::size_t>(count));
    for (int number = 1; number <= count; ++number) all.push_back(make_article(chance, number));
    return all;
}

rec_art stored(const article& one) {
    rec_art record = one.record;
    for (f64le rec_art::*figure : {&rec_art::giacenza, &rec_art::impegnato,
                                   &rec_art::ordinato_clienti, &rec_art::scaricato}) {
        record.*figure = record.*figure / 10;
    }
    record.valore_scaricato = record.valore_scaricato / 1000;
    return record;
}

rec_prx stored_long_text(const article& one) {
    rec_prx record;
    for (auto& line : record.righe) line = "";
    for (std::size_t i = 0; i < one.long_text.size(); ++i) record.righe[i] = one.long_text[i];
    record.marca_testo = rec_prx::ha_testo;
    return record;
}

}  // namespace vantora::demo
