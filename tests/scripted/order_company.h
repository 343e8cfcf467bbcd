#pragma once

#include <vector>

#include "scripted/small_company.h"
#include "store/records/order_block.h"

namespace vantora::test {

/// A row of an order that matters.
struct order_line {
    int article = 0;
    double quantity = 0;
    double fulfilled = 0;
    std::string description = "merce";
};

/// A company with two customers, three articles, and orders.
struct order_company : small_company {
    order_company() {
        table_file();
        customers({customer_named("ROSSI SPA"), customer_named("VERDI SRL")});
        std::vector<rec_art> all;
        for (const char* code : {"A1", "A2", "A3"}) {
            rec_art one = article(code, std::string("articolo ") + code, 10);
            one.giacenza = 100;
            one.impegnato = 4;
            one.peso = 0.25;
            all.push_back(one);
        }
        articles(all);
    }

    /// Writes order `block` of a customer and counts it, on its articles too.
    void order(int block, int customer, const std::vector<order_line>& lines,
               bool committed = false) {
        std::vector<rec_orc> rows(righe_blocco);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rec_orc& row = rows[i];
            row.numero = std::to_string(block * 10);
            row.data = row.data_evasione = "20240301";
            row.cliente = static_cast<std::int16_t>(customer);
            row.testo1 = "testo " + std::to_string(i + 1);
            row.descrizione = i < lines.size() ? lines[i].description : "";
            row.descrizione2 = "";
            row.um = "PZ";
            row.impegno = committed ? "1" : "0";
            row.data_reg = 45000.5 + block;
            row.riservato_e = "altrui";
            if (i >= lines.size()) continue;
            row.articolo = static_cast<std::int16_t>(lines[i].article);
            row.quantita = lines[i].quantity;
            row.evaso = lines[i].fulfilled;
            row.prezzo = 10;
            row.sc1 = 10;
            row.iva = 4;
            if (row.articolo < 1 || row.articolo > 3) continue;
            change_stored(files.art, row.articolo, [&](rec_art& one) {
                one.ordinato_clienti = one.ordinato_clienti + row.quantita - row.evaso;
            });
        }
        files.orc.write_block(block_record(block, 1), rows);
        counter(contatori::ordini, block, block * 10);
    }
    rec_art article_now(int number) { return stored(files.art, number); }
    rec_orc row_now(int block, int number) {
        return stored(files.orc, block_record(block, number));
    }
    rec_tot counter_now(int number) { return stored(files.tot, number); }

    template <class Change>
    void change_row(int block, int number, const Change& change) {
        change_stored(files.orc, block_record(block, number), change);
    }
    template <class Change>
    void change_rows(int block, const Change& change) {
        for (int number = 1; number <= righe_blocco; ++number) change_row(block, number, change);
    }
};

}  // namespace vantora::test
