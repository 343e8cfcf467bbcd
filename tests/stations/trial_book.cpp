#include "stations/trial_book.h"

#include <algorithm>
#include <numeric>
#include <sstream>

#include "store/records/order_block.h"

namespace vantora::test {

namespace {

constexpr int places[] = {1, 2, 3, righe_blocco};

double at_most(double quantity, double there) {
    return std::min(quantity, there);
}

}  // namespace

trial_book trial_book::of(const archivi& files) {
    trial_book now;
    rec_tot counter;
    files.tot.read(contatori::ordini, counter);
    now.last_order = counter.ultimo_numero;
    for (int block = 1; block <= counter.quanti; ++block) {
        book_order& order = now.orders.emplace_back();
        for (std::size_t i = 0; i < order.size(); ++i) {
            rec_orc row;
            files.orc.read(block_record(block, places[i]), row);
            order[i] = {std::string(row.numero.trimmed()),
                        row.cliente,
                        row.impegno.full() == "1",
                        row.articolo,
                        row.quantita,
                        row.evaso,
                        row.evaso_flag != 0,
                        row.annullato != 0};
        }
    }
    for (std::size_t i = 0; i < now.articles.size(); ++i) {
        rec_art one;
        files.art.read(static_cast<int>(i) + 1, one);
        now.articles[i] = {one.ordinato_clienti, one.giacenza, one.impegnato, one.scaricato};
    }
    files.tot.read(contatori::magazzino, counter);
    for (int i = 1; i <= counter.quanti; ++i) {
        rec_mag one;
        files.mag.read(i, one);
        now.movements.push_back({double(one.articolo), double(one.cliente), one.quantita});
    }
    files.tot.read(contatori::documenti_trasporto, counter);
    now.last_document = counter.ultimo_numero;
    for (int i = 1; i <= counter.quanti; ++i) {
        rec_bol one;
        files.bol.read(i, one);
        now.documents.push_back(
            {double(one.numero), double(one.cliente), double(one.senza_scarico)});
    }
    return now;
}

std::string trial_book::text() const {
    std::ostringstream out;
    for (const book_order& order : orders) {
        for (const book_row& row : order) {
            out << row.numero << '/' << row.cliente << (row.impegno ? "i" : "") << ' '
                << row.articolo << ':' << row.quantita << '-' << row.evaso
                << (row.chiuso ? "E" : "") << (row.annullato ? "X" : "") << " | ";
        }
        out << '\n';
    }
    for (const book_article& one : articles) {
        out << one.ordinato << ' ' << one.giacenza << ' ' << one.impegnato << ' ' << one.scaricato
            << '\n';
    }
    for (const auto* list : {&movements, &documents}) {
        for (const book_entry& one : *list) out << one[0] << ',' << one[1] << ',' << one[2] << "; ";
        out << '\n';
    }
    out << last_order << ' ' << last_document << '\n';
    return out.str();
}

std::size_t trial_book::find(const std::string& numero) const {
    const auto at = std::ranges::find_if(orders, [&](auto& o) { return o[0].numero == numero; });
    return static_cast<std::size_t>(at - orders.begin());
}

int trial_book::work(const book_change& change, int writes) {
    int done = 0;
    const auto write = [&](auto& place, const auto& value) {
        if (done++ < writes) place = value;
    };
    const auto move = [&](int article, double quantity, bool committed, double book_article::*from,
                          double book_article::*to, int sign) {
        if (article < 1) return;
        book_article& place = articles[static_cast<std::size_t>(article - 1)];
        book_article one = place;
        one.ordinato += sign * quantity;
        const double set_aside = committed ? at_most(quantity, one.*from) : 0;
        one.*from -= set_aside;
        one.*to += set_aside;
        write(place, one);
    };
    const auto order = [&](int article, double quantity, bool committed) {
        move(article, quantity, committed, &book_article::giacenza, &book_article::impegnato, 1);
    };
    const auto release = [&](int article, double quantity, bool committed) {
        move(article, quantity, committed, &book_article::impegnato, &book_article::giacenza, -1);
    };
    bool deleted = false;
    const std::size_t which = find(change.order[0].numero);
    switch (change.how) {
        case book_change::add: {
            for (const book_row& row : change.order) {
                if (row.quantita != 0) order(row.articolo, row.quantita, row.impegno);
            }
            auto counted = orders;
            counted.push_back(change.order);
            write(orders, counted);
            if (done <= writes) last_order = std::stoi(change.order[0].numero);
            break;
        }
        case book_change::edit:
        case book_change::remove:
            if (which == orders.size()) return -1;
            deleted = orders[which][0].annullato;
            for (std::size_t i = 0; i < change.order.size(); ++i) {
                book_row& row = orders[which][i];
                book_row then = change.order[i];
                const bool committed = change.order[0].impegno;
                // Of rows deleted meanwhile nothing is open any more.
                if (row.quantita != 0 && !(deleted && row.annullato)) {
                    release(row.articolo, row.quantita - row.evaso, committed);
                }
                if (change.how == book_change::remove) {
                    then = row;
                    then.annullato = true;
                } else if (then.quantita != 0) {
                    order(then.articolo, then.quantita - then.evaso, committed);
                }
                write(row, then);
            }
            break;
        case book_change::book:
            for (const auto& one : change.leaving) {
                const std::size_t of = find(one.numero);
                if (of == orders.size()) return -1;
                book_row& row = orders[of][one.row];
                release(row.articolo, one.quantity, row.impegno);
                book_row then = row;
                then.evaso += one.quantity;
                write(row, then);
            }
            for (const auto& numero : change.listed) {
                const std::size_t of = find(numero);
                if (of == orders.size()) return -1;
                double rest = 0;
                for (const book_row& row : orders[of]) rest += row.quantita - row.evaso;
                book_row head = orders[of][0];
                head.chiuso = true;
                if (rest <= 0) write(orders[of][0], head);
            }
            break;
        case book_change::unload: {
            auto counted = movements;
            for (const auto& one : change.leaving) {
                book_article& place = articles[static_cast<std::size_t>(one.articolo - 1)];
                book_article then = place;
                then.giacenza -= one.quantity;
                then.scaricato += one.quantity;
                write(place, then);
                counted.push_back({double(one.articolo), double(change.cliente), one.quantity});
            }
            write(movements, counted);
            break;
        }
        case book_change::document: {
            auto counted = documents;
            counted.push_back({});
            if (done < writes) last_document = change.numero;
            write(documents, counted);
            counted.back() = {double(change.numero), double(change.cliente), 0};
            write(documents, counted);
            break;
        }
        case book_change::compact: {
            std::size_t to = 0;
            for (std::size_t from = 0; from < orders.size(); ++from) {
                if (orders[from][0].annullato || (change.evasi && orders[from][0].chiuso)) continue;
                if (to != from) write(orders[to], orders[from]);
                ++to;
            }
            const std::vector<book_order> rest(orders.begin(), orders.begin() + std::ptrdiff_t(to));
            write(orders, rest);
            break;
        }
    }
    return done;
}

bool trial_book::goes_on(const trial_book& now, std::vector<book_change> changes,
                         const book_change* broken) {
    const std::size_t broken_off = broken ? changes.size() : changes.size() + 1;
    if (broken) changes.push_back(*broken);
    std::vector<std::size_t> turns(changes.size());
    std::iota(turns.begin(), turns.end(), 0U);
    do {
        for (int writes = 0, needed = 0; writes <= needed; ++writes) {
            trial_book book = *this;
            for (const std::size_t turn : turns) {
                const bool whole = turn != broken_off;
                const int needs = book.work(changes[turn], whole ? 9999 : writes);
                if (!whole) needed = needs;
            }
            if (book == now) {
                *this = now;
                return true;
            }
        }
    } while (std::ranges::next_permutation(turns).found);
    return false;
}

}  // namespace vantora::test
