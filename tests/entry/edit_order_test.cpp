#include "entry/edit_order.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "entry/save_order.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

constexpr int articles = 4;  ///< by the counter; the file holds one more
constexpr int blocks = 3;
constexpr int edited = 2;

template <class Record>
bool same_bytes(const Record& one, const Record& other) {
    return std::memcmp(&one, &other, sizeof one) == 0;
}

/// The whole archive in memory, worked on step by step as a clerk with paper would.
struct plain_books {
    std::vector<rec_art> stock;
    std::vector<rec_orc> rows;

    explicit plain_books(archivi& files) : stock(articles + 1) {
        rec_tot counter;
        files.tot.read(contatori::ordini, counter);
        rows.resize(static_cast<std::size_t>(counter.quanti) * 200);
        files.art.read_block(1, stock);
        files.orc.read_block(1, rows);
    }

    bool operator==(const plain_books& other) const {
        return rows.size() == other.rows.size() &&
               std::memcmp(stock.data(), other.stock.data(), stock.size() * sizeof(rec_art)) == 0 &&
               std::memcmp(rows.data(), other.rows.data(), rows.size() * sizeof(rec_orc)) == 0;
    }

    rec_orc& row(int number) {
        return rows[static_cast<std::size_t>((edited - 1) * 200 + number - 1)];
    }

    void move(double quantity, double evaso, int article, bool commit, bool back) {
        const double r = quantity - evaso;
        if (quantity == 0 || article < 1 || article > articles || !std::isfinite(r)) return;
        rec_art& one = stock[static_cast<std::size_t>(article - 1)];
        if (back) {
            one.ordinato_clienti = one.ordinato_clienti - r;
            if (!commit) return;
            double x = r;
            if (r > one.impegnato) x = one.impegnato;
            one.giacenza = one.giacenza + x;
            one.impegnato = one.impegnato - x;
        } else {
            one.ordinato_clienti = one.ordinato_clienti + r;
            if (!commit) return;
            double x = r;
            if (r > one.giacenza) x = one.giacenza;
            one.giacenza = one.giacenza - x;
            one.impegnato = one.impegnato + x;
        }
    }

    static void fill(rec_orc& of, int i, const testata_registrata& head, const riga_ordine& line) {
        of.impegno = head.impegno ? "1" : "0";
        of.numero = head.numero;
        of.data = "20240506";
        of.data_evasione = "20241231";
        of.cliente = head.cliente;
        if (i <= 4) {
            const auto& texts = head.testi[static_cast<std::size_t>(i - 1)];
            of.testo1 = texts[0];
            of.testo2 = texts[1];
            of.testo3 = texts[2];
        }
        of.articolo = line.articolo;
        of.descrizione = line.descrizione.full().substr(0, 40);
        of.descrizione2 = line.descrizione.full().substr(40, 10);
        of.um = line.um.full();
        of.quantita = line.quantita;
        of.prezzo = line.prezzo;
        of.sc1 = line.sc1;
        of.sc2 = line.sc2;
        of.iva = line.iva;
    }

    /// The rows behind the fourth repeat its texts.
    void add(const testata_registrata& head, double data_reg, const righe_ordine& lines) {
        rec_orc of;
        for (int i = 1; i <= 200; ++i) {
            fill(of, i, head, lines[i]);
            of.data_reg = data_reg;
            rows.push_back(of);
            move(lines[i].quantita, 0, lines[i].articolo, head.impegno, false);
        }
    }

    void save(const testata_registrata& head, bool evaso, const righe_ordine& lines) {
        for (int i = 1; i <= 200; ++i) {
            rec_orc& of = row(i);
            move(of.quantita, of.evaso, of.articolo, head.impegno, true);
            const riga_ordine& line = lines[i];
            fill(of, i, head, line);
            of.evaso = line.evaso;
            of.evaso_flag = evaso ? 1 : 0;
            of.annullato = 0;
            move(line.quantita, line.evaso, line.articolo, head.impegno, false);
        }
    }

    void remove(bool commit) {
        for (int i = 1; i <= 200; ++i) {
            move(row(i).quantita, row(i).evaso, row(i).articolo, commit, true);
            row(i).annullato = 1;
        }
    }
};

/// An archive of three orders, whatever their fields hold, over files that may fail.
struct edit_stage {
    explicit edit_stage(unsigned seed) : random(seed) {
        company.counter(contatori::articoli, articles);
        company.counter(contatori::ordini, blocks);
        std::vector<rec_art> stock(articles + 1);
        for (rec_art& one : stock) {
            fill_with_noise(one);
            one.giacenza = whole(-5, 40);
            one.impegnato = whole(0, 20);
            one.ordinato_clienti = whole(0, 60);
        }
        company.files.art.write_block(1, stock);
        std::vector<rec_orc> rows(blocks * 200);
        for (rec_orc& one : rows) {
            fill_with_noise(one);
            const riga_ordine line = any_line();
            one.articolo = line.articolo;
            one.quantita = chance(30) ? std::numeric_limits<double>::quiet_NaN() : line.quantita;
            one.evaso = chance(40) ? std::numeric_limits<double>::infinity() : line.evaso;
        }
        company.files.orc.write_block(1, rows);
        apri_archivi(files, faults, 1);
    }

    template <class Record>
    void fill_with_noise(Record& one) {
        auto* bytes = reinterpret_cast<unsigned char*>(&one);
        for (std::size_t i = 0; i < sizeof one; ++i)
            bytes[i] = static_cast<unsigned char>(random());
    }
    int whole(int from, int to) { return std::uniform_int_distribution<int>(from, to)(random); }
    bool chance(int one_in) { return whole(1, one_in) == 1; }

    riga_ordine any_line() {
        riga_ordine line;
        line.articolo = static_cast<std::int16_t>(chance(3) ? 0 : whole(-1, articles + 1));
        line.descrizione =
            std::string("Un testo che nessun campo tiene tutto intero, e che perde la sua coda")
                .substr(0, static_cast<std::size_t>(whole(0, 68)));
        line.um = "PZ";
        line.quantita = chance(4) ? 0 : chance(20) ? -9999 : whole(-3, 12);
        line.evaso = chance(2) ? 0 : whole(0, 14);
        line.prezzo = whole(0, 900) / 8.0;
        line.iva = static_cast<std::int16_t>(whole(0, 24));
        line.sc1 = static_cast<std::int16_t>(whole(0, 9));
        line.sc2 = static_cast<std::int16_t>(whole(-2, 2));
        return line;
    }
    righe_ordine any_lines() {
        righe_ordine lines;
        for (int i = 1; i <= 200; ++i) lines[i] = any_line();
        return lines;
    }
    testata_registrata any_head() {
        testata_registrata head;
        head.numero = std::to_string(whole(1, 99999)) + "/B-0000000";
        head.data = "06/05/2024";
        head.data_evasione = "31/12/2024";
        head.cliente = static_cast<std::int16_t>(whole(1, 9));
        for (auto& texts : head.testi) {
            for (auto& one : texts) one = std::string(static_cast<std::size_t>(whole(0, 45)), 't');
        }
        head.impegno = chance(2);
        return head;
    }
    ordine_esistente order(bool commit) { return {edited, articles, commit}; }

    std::mt19937 random;
    small_company company;
    drive real{company.drive()};
    faulty_files faults{real};
    archivi files;
};

TEST(edit_order, SessionsLeaveTheBytesOfBooksKeptByHand) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        edit_stage stage(seed);
        plain_books books(stage.files);
        for (int step = 0; step < 12; ++step) {
            if (stage.chance(4)) {
                const testata_registrata head = stage.any_head();
                const righe_ordine lines = stage.any_lines();
                books.add(head, 45418.5, lines);
                ASSERT_TRUE(salva_nuovo_ordine(stage.files, head, 45418.5, lines, articles));
            } else if (stage.chance(4)) {
                const bool commit = stage.chance(2);
                books.remove(commit);
                elimina_ordine(stage.files, stage.order(commit));
            } else {
                const testata_registrata head = stage.any_head();
                const bool evaso = stage.chance(2);
                const righe_ordine lines = stage.any_lines();
                books.save(head, evaso, lines);
                salva_ordine(stage.files, stage.order(head.impegno), head, evaso, lines);
            }
            ASSERT_TRUE(books == plain_books(stage.files)) << "seed " << seed << ", step " << step;
        }
    }
}

/// What a save or a deletion does, and what it left after a fault.
struct fault_case {
    bool deletes;
    explicit fault_case(bool remove) : deletes(remove), stage(7) {
        for (int i = 1; i <= 200; ++i) lines[i].descrizione = "nuova";
        for (int i = 1; i <= 3; ++i) {
            lines[i].articolo = static_cast<std::int16_t>(i);
            lines[i].quantita = 10 + i;
            rec_orc old = books_before().row(i);
            old.articolo = static_cast<std::int16_t>(i);
            old.quantita = 5;
            old.evaso = 2;
            stage.files.orc.write(block_record(edited, i), old);
        }
        for (int i = 4; i <= 200; ++i) {
            rec_orc old = books_before().row(i);
            old.quantita = 0;
            stage.files.orc.write(block_record(edited, i), old);
        }
        head.numero = "77";
        head.data = "06/05/2024";
        head.data_evasione = "31/12/2024";
        stage.faults.events.clear();
        stage.faults.writes = 0;
    }
    plain_books books_before() { return plain_books(stage.company.files); }
    write_outcome run() {
        if (deletes) return elimina_ordine(stage.files, stage.order(true));
        head.impegno = true;
        return salva_ordine(stage.files, stage.order(true), head, true, lines);
    }
    plain_books books_after() {
        plain_books books = books_before();
        head.impegno = true;
        if (deletes) {
            books.remove(true);
        } else {
            books.save(head, true, lines);
        }
        return books;
    }

    edit_stage stage;
    testata_registrata head;
    righe_ordine lines;
};

TEST(edit_order, EachRowFollowsItsArticleAndOneFlushEndsTheCommand) {
    for (const bool deletes : {false, true}) {
        fault_case one(deletes);
        one.run();
        std::string order;
        for (const auto& event : one.stage.faults.events) {
            order += event.path.ends_with("art") ? 'a' : event.path.ends_with("orc") ? 'o' : '?';
            if (event.flush) order += '!';
        }
        const std::string row = deletes ? "ao" : "aao";
        EXPECT_EQ(order, row + row + row + std::string(197, 'o') + "a!o!");
    }
}

TEST(edit_order, ACrashLeavesWholeRowsEachWithItsStock) {
    for (const bool deletes : {false, true}) {
        const std::size_t all = deletes ? 203 : 206;
        for (std::size_t writes = 0; writes < all; writes += writes < 12 ? 1 : 60) {
            fault_case one(deletes);
            plain_books before = one.books_before();
            plain_books after = one.books_after();
            one.stage.faults.writes_before_crash = writes;
            EXPECT_THROW(one.run(), crash);
            plain_books left = one.books_before();
            bool old_seen = false;
            for (int i = 1; i <= 200; ++i) {
                const bool is_new = same_bytes(left.row(i), after.row(i));
                ASSERT_TRUE(is_new || same_bytes(left.row(i), before.row(i)));
                ASSERT_FALSE(is_new && old_seen) << "rows go over in their order";
                old_seen |= !is_new;
                if (i > 3) continue;
                const auto article = static_cast<std::size_t>(i - 1);
                if (is_new) {
                    ASSERT_TRUE(same_bytes(left.stock[article], after.stock[article]));
                }
            }
        }
    }
}

TEST(edit_order, AFailedReadOrWriteSparesAllThatItDoesntTouch) {
    struct fault {
        bool write;
        bool for_good;
    };
    for (const bool deletes : {false, true}) {
        for (const fault kind : {fault{false, false}, {false, true}, {true, false}, {true, true}}) {
            for (int failing = 1; failing <= 12; ++failing) {
                fault_case one(deletes);
                plain_books before = one.books_before();
                plain_books after = one.books_after();
                int count = 0;
                const auto fails = [&] {
                    ++count;
                    return kind.for_good ? count >= failing : count == failing;
                };
                std::vector<std::int64_t> unread;
                if (kind.write) {
                    one.stage.faults.write_fails = [&](const std::string&, std::int64_t) {
                        return fails();
                    };
                } else {
                    one.stage.faults.read_fails = [&](const std::string& path, std::int64_t at,
                                                      std::size_t size) {
                        const bool look_before = size > 327;
                        if (look_before || !fails()) return false;
                        if (path.ends_with("orc")) unread.push_back(at / 284 + 1);
                        return true;
                    };
                }
                EXPECT_FALSE(one.run().faults.none());
                plain_books left = one.books_before();
                for (int i = 1; i <= 200; ++i) {
                    ASSERT_TRUE(same_bytes(left.row(i), after.row(i)) ||
                                same_bytes(left.row(i), before.row(i)))
                        << "a half row";
                }
                for (const std::int64_t record : unread) {
                    const auto row = record - block_record(edited, 1) + 1;
                    if (row > 3) continue;
                    const auto article = static_cast<std::size_t>(row - 1);
                    EXPECT_TRUE(same_bytes(left.stock[article], before.stock[article]))
                        << "a row that can't be read moves no stock";
                }
                if (!kind.for_good) {
                    EXPECT_TRUE(same_bytes(left.row(200), after.row(200))) << "the loop goes on";
                }
            }
        }
    }
}

}  // namespace
}  // namespace vantora::test
