#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <map>
#include <random>

#include "entry/save_order.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

constexpr int articles = 4;  ///< by the counter; the file holds one more
constexpr int blocks = 3;
constexpr int blocks_max = 10;
constexpr int edited = 2;
constexpr double data_reg = 45418.5;

enum class command { add, edit, remove };

/// What is asked for: a new order, an order as it is to become, or a deletion.
struct request {
    command what = command::add;
    testata_registrata head;
    righe_ordine lines;
    bool evaso = false;
};

template <class Record>
bool same_bytes(const std::vector<Record>& one, const std::vector<Record>& other) {
    return one.size() == other.size() &&
           std::memcmp(one.data(), other.data(), one.size() * sizeof(Record)) == 0;
}

/// The whole archive in memory, worked on step by step as a clerk with paper would. Reads and
/// writes can be made to fail, counted from 1.
struct plain_books {
    std::vector<rec_tot> counter;
    std::vector<rec_art> stock;
    std::vector<rec_orc> rows;
    std::function<bool(int)> read_fails = [](int) { return false; };
    std::function<bool(int)> write_fails = [](int) { return false; };
    int reads = 0;
    int writes = 0;
    std::map<int, rec_art> before;  ///< articles that a new order moved

    explicit plain_books(archivi& files) : counter(1), stock(articles + 1), rows(blocks_max * 200) {
        files.tot.read(contatori::ordini, counter[0]);
        files.art.read_block(1, stock);
        files.orc.read_block(1, rows);
    }

    bool operator==(const plain_books& other) const {
        return same_bytes(counter, other.counter) && same_bytes(stock, other.stock) &&
               same_bytes(rows, other.rows);
    }

    template <class Record>
    bool write(Record& place, const Record& value) {
        if (write_fails(++writes)) return false;
        place = value;
        return true;
    }

    /// What a quantity does to its article: `sign` 1 for one that is ordered, -1 for one undone.
    void move(double quantity, double evaso, int article, bool commit, int sign) {
        if (quantity == 0 || article < 1 || article > articles || read_fails(++reads)) return;
        rec_art one = stock[static_cast<std::size_t>(article - 1)];
        const double r = quantity - evaso;
        if (std::isfinite(r)) {
            const double there = sign > 0 ? one.giacenza : one.impegnato;
            const double x = !commit ? 0 : r > there ? there : r;
            one.ordinato_clienti = one.ordinato_clienti + sign * r;
            one.giacenza = one.giacenza - sign * x;
            one.impegnato = one.impegnato + sign * x;
        }
        rec_art& place = stock[static_cast<std::size_t>(article - 1)];
        const rec_art as_it_was = place;
        if (write(place, one)) before.try_emplace(article, as_it_was);
    }

    /// A new order came to nothing: its articles are as before.
    void put_back() {
        for (const auto& [article, one] : before) {
            if (!read_fails(++reads)) write(stock[static_cast<std::size_t>(article - 1)], one);
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

    void work(const request& asked) {
        const bool adds = asked.what == command::add;
        const int block = adds ? counter[0].quanti + 1 : edited;
        rec_orc of;
        for (int i = 1; i <= 200; ++i) {
            rec_orc& place = rows[static_cast<std::size_t>((block - 1) * 200 + i - 1)];
            const riga_ordine& line = asked.lines[i];
            if (!adds) {
                if (read_fails(++reads)) continue;
                of = place;
                move(of.quantita, of.evaso, of.articolo, asked.head.impegno, -1);
            }
            if (asked.what == command::remove) {
                of.annullato = 1;
            } else {
                fill(of, i, asked.head, line);
                of.annullato = 0;
                of.evaso = adds ? 0 : line.evaso;
                of.evaso_flag = !adds && asked.evaso ? 1 : 0;
                if (adds) of.data_reg = data_reg;
                move(line.quantita, adds ? 0 : line.evaso, line.articolo, asked.head.impegno, 1);
            }
            if (!write(place, of) && adds) return put_back();
        }
        if (!adds) return;
        rec_tot counted = counter[0];
        counted.quanti = static_cast<std::int16_t>(counted.quanti + 1);
        const int number = std::stoi(asked.head.numero);
        if (number <= INT16_MAX) counted.ultimo_numero = static_cast<std::int16_t>(number);
        if (!write(counter[0], counted)) put_back();
    }
};

/// An archive of three orders, whatever their fields hold, over files that may fail.
struct order_stage {
    explicit order_stage(unsigned seed) : random(seed) {
        company.counter(contatori::ordini, blocks, 70);
        std::vector<rec_art> stock(articles + 1);
        std::vector<rec_orc> rows(blocks * 200);
        fill_with_noise(stock);
        fill_with_noise(rows);
        for (rec_art& one : stock) {
            one.giacenza = whole(-5, 40);
            one.impegnato = whole(0, 20);
            one.ordinato_clienti = whole(0, 60);
        }
        for (rec_orc& one : rows) {
            const riga_ordine line = any_line();
            const rec_orc& head = rows[(&one - rows.data()) / 200 * 200];
            one.numero = head.numero;
            one.data = head.data;
            one.cliente = head.cliente;
            one.data_reg = head.data_reg;
            one.articolo = line.articolo;
            one.quantita = chance(30) ? std::numeric_limits<double>::quiet_NaN() : line.quantita;
            one.evaso = chance(40) ? std::numeric_limits<double>::infinity() : line.evaso;
        }
        company.files.art.write_block(1, stock);
        company.files.orc.write_block(1, rows);
        apri_archivi(files, faults, 1);
    }

    template <class Record>
    void fill_with_noise(std::vector<Record>& all) {
        auto* bytes = reinterpret_cast<std::uint32_t*>(all.data());
        std::generate(bytes, bytes + all.size() * sizeof(Record) / 4, std::ref(random));
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
    request any(command what) {
        request asked{what, {}, {}, chance(2)};
        asked.head.numero = std::to_string(whole(1, chance(4) ? 99999 : 9999)) + "/B-0000000";
        asked.head.data = "06/05/2024";
        asked.head.data_evasione = "31/12/2024";
        asked.head.cliente = static_cast<std::int16_t>(whole(1, 9));
        for (auto& texts : asked.head.testi) {
            for (auto& one : texts) one = std::string(static_cast<std::size_t>(whole(0, 45)), 't');
        }
        asked.head.impegno = chance(2);
        for (int i = 1; i <= 200; ++i) asked.lines[i] = any_line();
        return asked;
    }
    change_outcome work(const request& asked) {
        const rec_orc row = stored(company.files.orc, block_record(edited, 1));
        const rec_tot counter = stored(company.files.tot, contatori::ordini);
        const ordine_esistente order{{edited, row}, counter, articles, asked.head.impegno};
        switch (asked.what) {
            case command::add:
                return salva_nuovo_ordine(files, asked.head, data_reg, asked.lines, articles);
            case command::edit:
                return salva_ordine(files, order, asked.head, asked.evaso, asked.lines);
            default:
                return elimina_ordine(files, order);
        }
    }

    std::mt19937 random;
    small_company company;
    drive real{company.drive()};
    faulty_files faults{real};
    archivi files;
};

// Whatever refuses, the rest is done as if nothing were wrong: each article before its row, the
// counter behind all, no half row, and an article or row that can't be read is left alone.
TEST(stored_orders, EveryCommandFaultAndEndLeavesTheBytesOfBooksKeptByHand) {
    struct fault {
        bool reading, once, ends;
    };
    const fault kinds[] = {{false, false, true},
                           {false, true, false},
                           {false, false, false},
                           {true, true, false},
                           {true, false, false}};
    constexpr int at_the_last = -1;
    constexpr int never = 9999;
    unsigned seed = 0;
    for (const command what : {command::add, command::edit, command::remove}) {
        for (const auto& [reading, once, ends] : kinds) {
            for (const int at : {1, 2, 3, 4, 5, 150, at_the_last, never}) {
                order_stage stage(++seed);
                const request asked = stage.any(what);
                plain_books books(stage.files);
                plain_books undisturbed = books;
                undisturbed.work(asked);
                const int last = reading ? undisturbed.reads : undisturbed.writes;
                const int which = at == at_the_last ? last : at == never ? at : std::min(at, last);
                const auto fails = [which, once = once](int count) {
                    return once ? count == which : count >= which;
                };
                (reading ? books.read_fails : books.write_fails) = fails;

                int count = 0;
                if (reading) {
                    stage.faults.read_fails = [&](auto&, auto, std::size_t size) {
                        const bool of_one = size == sizeof(rec_art) || size == sizeof(rec_orc);
                        return of_one && fails(++count);
                    };
                } else {
                    stage.faults.write_fails = [&, ends = ends](auto&, auto) {
                        if (!fails(++count)) return false;
                        if (ends) throw crash{};
                        return true;
                    };
                }
                books.work(asked);
                if (ends && at != never) {
                    EXPECT_THROW(stage.work(asked), crash);
                } else {
                    EXPECT_EQ(stage.work(asked).how == change_outcome::done, at == never);
                }
                ASSERT_TRUE(books == plain_books(stage.company.files))
                    << "command " << static_cast<int>(what) << (reading ? ", read " : ", write ")
                    << which << (once ? " once" : " and on") << (ends ? ", ends" : "");
            }
        }
    }
}

std::string extension(const std::string& path) {
    return path.substr(path.rfind('.') + 1);
}

TEST(stored_orders, OneFlushEndsACommandAndTheCounterWaitsForIt) {
    for (const command what : {command::add, command::edit, command::remove}) {
        for (const bool fails : {false, true}) {
            order_stage stage(3);
            stage.faults.flush_fails = [&](auto&) { return fails; };
            const bool adds = what == command::add;
            EXPECT_EQ(stage.work(stage.any(what)).files, fails ? "vantora.art, vantora.orc" : "");
            std::string order;  // from the first flush or counter on
            for (const auto& event : stage.faults.events) {
                const std::string file = extension(event.path);
                if (order.empty() && !event.flush && file != "tot") continue;
                order += file + (event.flush ? "! " : " ");
            }
            // What may not be on the disk isn't counted, and its stock goes back.
            EXPECT_EQ(order.substr(0, 10), "art! orc! ");
            EXPECT_EQ(order.find("tot tot! "), adds && !fails ? 10 : std::string::npos);
        }
    }
}

TEST(stored_orders, WhatStandsInTheWayIsNamedAndNothingIsWritten) {
    enum class way { unreadable, negative, read_only, full };
    const struct {
        command what;
        const char* file;
        way how;
    } cases[] = {
        {command::add, "tot", way::unreadable},   {command::add, "tot", way::negative},
        {command::add, "tot", way::read_only},    {command::add, "art", way::read_only},
        {command::add, "orc", way::read_only},    {command::add, "orc", way::full},
        {command::edit, "art", way::read_only},   {command::edit, "orc", way::full},
        {command::remove, "art", way::read_only}, {command::remove, "orc", way::read_only},
        {command::edit, "tot", way::negative},    {command::remove, "tot", way::unreadable}};
    for (const auto& one : cases) {
        order_stage stage(5);
        const auto hit = [&one](const std::string& path, way how) {
            return how == one.how && extension(path) == one.file;
        };
        stage.faults.read_fails = [&](auto& path, auto...) { return hit(path, way::unreadable); };
        stage.faults.read_only = [&](auto& path) { return hit(path, way::read_only); };
        // Room for a whole block is asked for.
        stage.faults.room_lacks = [&](auto& path, auto end) {
            return hit(path, way::full) && end % (200 * sizeof(rec_orc)) == 0;
        };
        if (one.how == way::negative) stage.company.counter(contatori::ordini, -1);
        const change_outcome outcome = stage.work(stage.any(one.what));
        EXPECT_FALSE(outcome.stored());
        EXPECT_EQ(outcome.files, std::string("vantora.") + one.file);
        EXPECT_TRUE(stage.faults.events.empty());
    }
}

}  // namespace
}  // namespace vantora::test
