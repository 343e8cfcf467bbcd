#include "bench/full_archive.h"

#include <algorithm>
#include <numeric>
#include <random>
#include <span>
#include <vector>

#include "store/records/order_block.h"
#include "text/code_page.h"

namespace vantora::bench {

namespace {

using random_numbers = std::mt19937;

std::int16_t any_of(random_numbers& random, int count) {
    return static_cast<std::int16_t>(count > 0 ? random() % static_cast<unsigned>(count) + 1 : 0);
}

std::string a_day(int i) {
    return "2024" + std::to_string(10101 + i % 12 * 100 + i % 28).substr(1);
}

void count(archivi& files, int which, int how_many) {
    rec_tot counter{};
    counter.quanti = static_cast<std::int16_t>(how_many);
    files.tot.write(which, counter);
}

void write_customers(archivi& files, int customers, random_numbers& random) {
    std::vector<std::int16_t> numbers(static_cast<std::size_t>(customers));
    std::iota(numbers.begin(), numbers.end(), std::int16_t{1});
    std::ranges::shuffle(numbers, random);
    std::vector<rec_cli> records(numbers.size());
    std::vector<rec_src> by_name(numbers.size());
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        rec_cli& one = records[static_cast<std::size_t>(numbers[i] - 1)];
        one.intestazione1 = customer_name(static_cast<int>(i) + 1);
        one.indirizzo = "Via Garibaldi 12";
        one.citta = "Perugia";
        one.partita_iva = "01234567890";
        by_name[i] = {one.intestazione1, numbers[i]};
    }
    files.cli.write_block(1, records);
    files.src.write_block(1, by_name);
    count(files, contatori::clienti, customers);
}

void write_articles(archivi& files, int articles, random_numbers& random) {
    const char* families[] = {"VIT", "BUL", "TUBO-", "RACC.", "Guarn ", "FL", "10", "A"};
    std::vector<rec_art> records(static_cast<std::size_t>(articles));
    std::vector<rec_sra> by_code(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) {
        rec_art& one = records[i];
        one.codice = families[random() % 8] + std::to_string(random() % 1000000);
        one.descrizione = "Articolo di magazzino n. " + std::to_string(random() % 100000);
        one.prezzo1 = static_cast<double>(random() % 100000) / 100;
        one.giacenza = 5;
        by_code[i] = {one.codice, static_cast<std::int16_t>(i + 1)};
    }
    std::ranges::sort(by_code, {}, [](const rec_sra& one) { return upper(one.chiave.full()); });
    files.art.write_block(1, records);
    files.sra.write_block(1, by_code);
    count(files, contatori::articoli, articles);
}

void write_movements(archivi& files, const archive_size& size, random_numbers& random) {
    std::vector<rec_mag> records(static_cast<std::size_t>(size.movements));
    for (int i = 0; i < size.movements; ++i) {
        rec_mag& one = records[static_cast<std::size_t>(i)];
        one.data = a_day(i);
        one.articolo = any_of(random, size.articles);
        one.quantita = 1 + i % 9;
        one.prezzo = 1.35;
    }
    files.mag.write_block(1, records);
    count(files, contatori::magazzino, size.movements);
}

void write_orders(archivi& files, const archive_size& size, random_numbers& random) {
    std::vector<rec_orc> block;
    for (int i = 1; i <= size.orders; ++i) {
        rec_orc row;
        row.descrizione = "";
        row.descrizione2 = "";
        row.numero = std::to_string(i);
        row.data = a_day(i);
        row.data_evasione = "20241231";
        row.cliente = any_of(random, size.customers);
        row.testo1 = "Ordine per cantiere n. " + std::to_string(random() % 1000);
        row.evaso_flag = static_cast<std::int16_t>(i % 3 == 0);
        row.impegno = "1";
        block.assign(righe_blocco, row);
        for (rec_orc& line : std::span(block).first(static_cast<std::size_t>(size.lines))) {
            line.articolo = any_of(random, size.articles);
            line.descrizione = "Tubo zincato saldato, in barre da 6 m";
            line.quantita = 1 + i % 9;
            line.prezzo = 1.35;
        }
        files.orc.write_block(block_record(i, 1), block);
    }
    files.orc.flush();
    count(files, contatori::ordini, size.orders);
}

}  // namespace

std::string customer_name(int place) {
    return "CLIENTE " + std::to_string(100000 + place) + " S.R.L.";
}

void fill_archive(archivi& files, const archive_size& size) {
    random_numbers random(1);
    write_customers(files, size.customers, random);
    write_articles(files, size.articles, random);
    write_movements(files, size, random);
    write_orders(files, size, random);
}

}  // namespace vantora::bench
