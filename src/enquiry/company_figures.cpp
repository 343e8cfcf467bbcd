#include "enquiry/company_figures.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "enquiry/order_walk.h"
#include "orders/customer_names.h"
#include "orders/order_rows.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr int settimane_avanti = 8;  ///< told apart; what is due later stands together
constexpr int mesi_indietro = 12;
constexpr std::size_t primi = 10;

struct somma {
    double valore = 0;
    std::vector<std::int16_t> ordini;

    void add(double value, std::int16_t order) {
        valore += value;
        if (ordini.empty() || ordini.back() != order) ordini.push_back(order);
    }
};

template <class Key>
using somme = std::map<Key, somma>;

int week_of(const date& day) {
    // Day 2 of the calendar of date numbers is a Monday.
    return static_cast<int>(std::floor((date_number({day}) - 2) / 7));
}

int month_of(const date& day) {
    return day.year * 12 + day.month - 1;
}

std::optional<date> stored_day(const text<8>& stored) {
    return read_date(date_text_of_stored(stored.full()));
}

std::string month_text(int month) {
    const int number = month % 12 + 1;
    return (number < 10 ? "0" : "") + std::to_string(number) + "/" + std::to_string(month / 12);
}

/// Where what is due stands: -1 late, 0 this week, then the weeks ahead, later, without a day.
int place_of(const std::optional<date>& due, const date& today) {
    constexpr int without_day = settimane_avanti + 2;
    if (!due) return without_day;
    if (date_number({*due}) < date_number({today})) return -1;
    return std::min(week_of(*due) - week_of(today), settimane_avanti + 1);
}

std::string week_text(int place) {
    if (place == -1) return "In ritardo";
    if (place == 0) return "Questa settimana";
    if (place == 1) return "Settimana prossima";
    if (place <= settimane_avanti) return "Fra " + std::to_string(place) + " settimane";
    return place == settimane_avanti + 1 ? "Pi\xF9 avanti" : "Senza data";
}

template <class Key, class Name>
std::vector<barra> bars_of(const somme<Key>& sums, Name name) {
    std::vector<barra> all;
    for (const auto& [key, sum] : sums) all.push_back({name(key), sum.valore, sum.ordini});
    return all;
}

/// The highest of them, highest first.
template <class Name>
std::vector<barra> highest(const somme<std::int16_t>& sums, Name name) {
    std::vector<std::pair<std::int16_t, const somma*>> order;
    for (const auto& [number, sum] : sums) {
        if (sum.valore > 0) order.emplace_back(number, &sum);
    }
    const auto shown = static_cast<std::ptrdiff_t>(std::min(order.size(), primi));
    std::partial_sort(order.begin(), order.begin() + shown, order.end(),
                      [](const auto& one, const auto& other) {
                          return one.second->valore > other.second->valore;
                      });
    order.resize(static_cast<std::size_t>(shown));
    std::vector<barra> all;
    for (const auto& [number, sum] : order) {
        all.push_back({name(number), sum->valore, sum->ordini});
    }
    return all;
}

class counting {
 public:
    counting(const archivi& files, const valuta& currency, const date& today)
        : files_(files),
          currency_(currency),
          today_(today),
          names_(files.cli, static_cast<std::int16_t>(in_uso(files, contatori::clienti))),
          articles_(in_uso(files, contatori::articoli)) {}

    void add(const ordine_letto& order) {
        const rec_orc& head = order.righe.front();
        const auto ordered_on = stored_day(head.data);
        const int due = place_of(stored_day(head.data_evasione), today_);
        for (const rec_orc& row : order.righe) {
            if (row.quantita == 0) continue;
            const double value = worth(row, row.quantita);
            if (ordered_on) add_to_month(ordered_, *ordered_on, value, order.registrazione);
            customers_[head.cliente].add(value, order.registrazione);
            if (is_article(row.articolo)) sold_[row.articolo].add(value, order.registrazione);
            if (head.evaso_flag == 1 || !is_open(row)) continue;
            const double left = open_quantity(row);
            open_[due].add(worth(row, left), order.registrazione);
            if (is_article(row.articolo)) wanted_[row.articolo].add(left, order.registrazione);
        }
    }

    quadro_azienda figures() {
        quadro_azienda all;
        count_movements();
        all.da_evadere = bars_of(open_, week_text);
        all.ordinato = bars_of(ordered_, month_text);
        all.consegnato = bars_of(delivered_, month_text);
        all.clienti = highest(
            customers_, [this](std::int16_t number) { return std::string(names_.of(number)); });
        all.articoli = highest(sold_, [this](std::int16_t number) { return article_text(number); });
        count_missing(all.mancanti);
        return all;
    }

 private:
    [[nodiscard]] bool is_article(int number) const { return number >= 1 && number <= articles_; }
    [[nodiscard]] double worth(const rec_orc& row, double quantity) const {
        return valore_netto(row.prezzo, quantity, row.sc1, row.sc2, currency_);
    }

    void add_to_month(somme<int>& months, const date& day, double value, std::int16_t order) const {
        const int ago = month_of(today_) - month_of(day);
        if (ago >= 0 && ago < mesi_indietro) months[month_of(day)].add(value, order);
    }

    void count_movements() {
        for_all(files_.mag, in_uso(files_, contatori::magazzino),
                [&](int, const rec_mag& movement) {
                    const auto day = stored_day(movement.data);
                    if (day) add_to_month(delivered_, *day, value_of(movement), 0);
                });
        for (auto& [month, sum] : delivered_) sum.ordini.clear();
    }
    static double value_of(const rec_mag& movement) {
        return finite_or_zero(movement.quantita * movement.prezzo);
    }

    void count_missing(std::vector<barra>& into) {
        somme<std::int16_t> missing;
        for (auto& [number, sum] : wanted_) {
            rec_art article;
            if (!files_.art.read(number, article)) continue;
            const double there = finite_or_zero(article.giacenza + article.impegnato);
            if (sum.valore > there) missing[number] = {sum.valore - there, sum.ordini};
        }
        into = highest(missing, [this](std::int16_t number) { return article_text(number); });
    }

    [[nodiscard]] std::string article_text(std::int16_t number) const {
        rec_art article;
        files_.art.read(number, article);
        return std::string(article.codice.trimmed()) + " " +
               std::string(article.descrizione.trimmed());
    }

    const archivi& files_;
    const valuta& currency_;
    date today_;
    customer_names names_;
    int articles_;
    somme<int> open_;       ///< by place_of
    somme<int> ordered_;    ///< by month
    somme<int> delivered_;  ///< by month
    somme<std::int16_t> customers_;
    somme<std::int16_t> sold_;
    somme<std::int16_t> wanted_;  ///< quantities still to be delivered
};

}  // namespace

quadro_azienda conta_azienda(const archivi& files, const valuta& currency, const date& today,
                             const std::function<bool(int, int)>& goes_on) {
    counting all(files, currency, today);
    order_walk orders(files);
    while (const auto order = orders.next()) {
        all.add(*order);
        if (!goes_on(orders.passed(), orders.count())) break;
    }
    return all.figures();
}

}  // namespace vantora
