#include "demo/customers.h"

#include <cctype>

#include "demo/blank_record.h"
#include "demo/codes.h"
#include "demo/draws.h"
#include "demo/shop_words.h"
#include "demo/tables.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

/// Stands in front of a deleted customer's name and sorts it behind the others.
constexpr std::string_view deleted_mark = "~";

/// Code of the exemption for goods that customers export themselves.
constexpr std::int16_t exporter_vat_code = 16;

/// Leaves room for the mark.
constexpr std::size_t longest_name = decltype(rec_cli::intestazione1)::width - 1;

struct person {
    std::string_view surname;
    std::string_view given_name;
};

std::string phone_number(draws& chance, const town& where) {
    return std::string(where.dialling_code) + " " + zero_padded(chance.below(9'000'000), 7);
}

std::string personal_tax_code(draws& chance, const person& owner) {
    static constexpr std::string_view months = "ABCDEHLMPRST";
    std::string code = three_letters(owner.surname) + three_letters(owner.given_name);
    code += zero_padded(chance.between(45, 99), 2);
    code += chance.one_of(months);
    code += zero_padded(chance.between(1, 28), 2);
    code += "B" + zero_padded(chance.between(100, 999), 3);
    return codice_fiscale(code);
}

void set_address(rec_cli& one, draws& chance, const town& where) {
    const std::string street(chance.one_of(streets));
    one.indirizzo = from_utf8(street + ", " + std::to_string(chance.between(1, 180)));
    one.cap = where.cap;
    one.citta = from_utf8(std::string(where.name) + " (" + std::string(where.province) + ")");
}

void set_goods_address(rec_cli& one, draws& chance) {
    if (chance.percent(70)) {
        one.amm_intestazione1 = one.intestazione1.full();
        one.amm_intestazione2 = one.intestazione2.full();
        one.amm_indirizzo = one.indirizzo.full();
        one.amm_cap = one.cap.full();
        one.amm_citta = one.citta.full();
        return;
    }
    rec_cli other;
    set_address(other, chance, chance.one_of(towns));
    one.amm_intestazione1 = one.intestazione1.full();
    one.amm_intestazione2 = chance.percent(50) ? "Magazzino" : "Cantiere";
    one.amm_indirizzo = other.indirizzo.full();
    one.amm_cap = other.cap.full();
    one.amm_citta = other.citta.full();
}

std::string mail_address(std::string_view surname) {
    std::string name;
    for (const char letter : surname) {
        const auto code = static_cast<unsigned char>(letter);
        if (code < 128 && std::isalpha(code)) name += static_cast<char>(std::tolower(code));
    }
    return "info@" + name + ".example";
}

void set_trade_terms(rec_cli& one, draws& chance) {
    static constexpr std::int16_t discounts[] = {0, 0, 0, 5, 10, 10, 15, 20};
    one.pagamento = static_cast<std::int16_t>(
        chance.percent(92) ? chance.between(1, 10) : chance.between(11, termini_di_pagamento));
    one.sconto1 = chance.one_of(discounts);
    one.sconto2 = static_cast<std::int16_t>(one.sconto1 > 0 && chance.percent(30) ? 5 : 0);
    one.listino = chance.percent(30) ? "1" : "0";
    one.invio_email = chance.percent(40) ? "1" : "0";
    one.iva_cliente = static_cast<std::int16_t>(chance.percent(3) ? exporter_vat_code : 0);

    const carrier& usual =
        carriers[static_cast<std::size_t>(chance.percent(60) ? 1 : chance.between(2, 6))];
    one.vettore1 = from_utf8(usual.lines[0]);
    one.vettore2 = from_utf8(usual.lines[1]);
    one.vettore3 = from_utf8(usual.lines[2]);

    one.note1 = chance.percent(15) ? from_utf8("Scarico merce solo al mattino") : "";
    one.note2 = chance.percent(8) ? from_utf8("Avvisare prima della consegna") : "";
    const bool quotes_job = chance.percent(12);
    one.testo_documenti = quotes_job ? "C.I.G. Z" + zero_padded(chance.below(999'999'999), 9) : "";
}

std::string firm_name(draws& chance, const person& owner) {
    const std::string surname(owner.surname);
    const std::string form(chance.one_of(company_forms));
    const std::string firm = chance.percent(25)
                                 ? "F.lli " + surname
                                 : std::string(chance.one_of(trades)) + " " + surname;
    const std::string whole = firm + " " + form;
    return from_utf8(whole).size() <= longest_name ? whole : firm;
}

void set_name_and_tax_codes(rec_cli& one, draws& chance, const person& owner) {
    one.prefisso_iva = "IT";
    const std::string number = zero_padded(chance.between(1, 3'999'999), 7);
    one.partita_iva = partita_iva(number + zero_padded(chance.between(1, 103), 3));
    if (chance.percent(15)) {
        one.intestazione1 =
            from_utf8(std::string(owner.surname) + " " + std::string(owner.given_name));
        one.codice_fiscale = personal_tax_code(chance, owner);
    } else {
        one.intestazione1 = from_utf8(firm_name(chance, owner));
        one.codice_fiscale = one.partita_iva.full();
    }
    one.intestazione2 =
        chance.percent(6) ? from_utf8("Filiale di " + std::string(chance.one_of(towns).name)) : "";
}

rec_cli make_customer(draws& chance) {
    auto one = blank_record<rec_cli>();
    const person owner{chance.one_of(surnames), chance.one_of(given_names)};
    const town& where = chance.one_of(towns);
    set_name_and_tax_codes(one, chance, owner);
    set_address(one, chance, where);
    set_goods_address(one, chance);
    one.telefono1 = phone_number(chance, where);
    one.telefono2 = chance.percent(30) ? phone_number(chance, where) : "";
    one.telefono3 = chance.percent(50) ? "3" + zero_padded(chance.below(1'000'000'000), 9) : "";
    one.email = chance.percent(70) ? mail_address(owner.surname) : "";
    set_trade_terms(one, chance);
    return one;
}

void mark_deleted(rec_cli& one) {
    one.intestazione1 = std::string(deleted_mark).append(one.intestazione1.full());
    one.eliminato = std::int16_t{1};
}

}  // namespace

std::vector<rec_cli> make_customers(int count, std::uint64_t seed) {
    draws chance(seed, 1);
    std::vector<rec_cli> all;
    all.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        all.push_back(make_customer(chance));
        if (i == 11) all[11].intestazione1 = all[4].intestazione1.full();
        if (i > 11 && chance.percent(3)) mark_deleted(all.back());
    }
    return all;
}

}  // namespace vantora::demo
