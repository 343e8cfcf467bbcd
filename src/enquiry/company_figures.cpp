#include "enquiry/company_figures.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

#include "enquiry/all_records.h"
#include "orders/article_texts.h"
#include "orders/customer_names.h"
#include "orders/order_rows.h"
#include "orders/stock.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr int settimane_avanti = 8;  ///< told apart; what is due later stands together
constexpr int mesi_indietro = 12;
constexpr std::size_t primi = 10;

struct somma {
    double valore = 0;
    std::vector<std::int16_t> dietro;  ///< orders or movements, in the order they came

    void add(double value, std::int16_t of) {
        valore += value;
        if (dietro.empty() || dietro.back() != of) dietro.push_back(of);
    }
};

using somme = std::map<int, somma>;
/// By the number of a customer or an article, from 0.
using somme_numerate = std::vector<somma>;

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

template <class Name>
std::vector<barra> bars_of(const somme& sums, Name name) {
    std::vector<barra> all;
    for (const auto& [key, sum] : sums) {
        if (!sum.dietro.empty()) all.push_back({name(key), sum.valore, sum.dietro});
    }
    return all;
}

/// The highest of them, highest first.
template <class Name>
std::vector<barra> highest(const somme_numerate& sums, Name name) {
    std::vector<std::size_t> order;
    for (std::size_t number = 0; number < sums.size(); ++number) {
        if (sums[number].valore > 0) order.push_back(number);
    }
    std::ranges::stable_sort(order, std::greater(),
                             [&](auto number) { return sums[number].valore; });
    order.resize(std::min(order.size(), primi));
    std::vector<barra> all;
    for (const std::size_t number : order) {
        all.push_back(
            {name(static_cast<std::int16_t>(number)), sums[number].valore, sums[number].dietro});
    }
    return all;
}

class counting {
 public:
    counting(const archivi& files, const valuta& currency, const date& today)
        : files_(files),
          currency_(currency),
          today_(today),
          names_(files),
          texts_(files.art),
          customers_(static_cast<std::size_t>(records_in_use(files, contatori::clienti)) + 1),
          sold_(static_cast<std::size_t>(records_in_use(files, contatori::articoli)) + 1),
          wanted_(sold_.size()) {}

    void add(const ordine_letto& order) {
        const rec_orc& head = order.righe.front();
        const auto ordered_on = stored_day(head.data);
        somma& due = open_[place_of(stored_day(head.data_evasione), today_)];
        somma& aged = aged_[age_of(ordered_on)];
        somma& customer = at(customers_, head.cliente);
        for (const rec_orc& row : order.righe) {
            if (row.quantita == 0) continue;
            const double value = worth(row, row.quantita);
            customer.add(value, order.registrazione);
            at(sold_, row.articolo).add(value, order.registrazione);
            if (head.evaso_flag == 1 || !is_open(row)) continue;
            const double left = open_quantity(row);
            const double still = worth(row, left);
            due.add(still, order.registrazione);
            aged.add(still, order.registrazione);
            at(wanted_, row.articolo).add(left, order.registrazione);
        }
    }

    quadro_azienda figures() {
        quadro_azienda all;
        count_movements();
        all.da_evadere = bars_of(open_, week_text);
        for (barra& bar : all.da_evadere) {
            bar.etichetta += " (" + std::to_string(bar.ordini.size()) + ")";
        }
        all.aperto = bars_of(
            aged_, [this](int month) { return month == oldest() ? "Prima" : month_text(month); });
        all.consegnato = bars_of(delivered_, month_text);
        for (barra& bar : all.consegnato) {
            bar.movimenti.assign(bar.ordini.rbegin(), bar.ordini.rend());
            bar.ordini.clear();
        }
        all.clienti = highest(customers_, [this](std::int16_t number) {
            return number == 0 ? "Senza cliente" : std::string(names_.of(number));
        });
        // Lines of text are no articles.
        sold_.front() = wanted_.front() = {};
        all.articoli = highest(sold_, [this](std::int16_t number) { return texts_.of(number); });
        count_missing(all.mancanti);
        return all;
    }

 private:
    /// Where a number counts; those that stand for nobody count together, at 0.
    static somma& at(somme_numerate& sums, int number) {
        const auto place = static_cast<std::size_t>(std::max(number, 0));
        return sums[place < sums.size() ? place : 0];
    }
    [[nodiscard]] double worth(const rec_orc& row, double quantity) const {
        return line_value(row.prezzo, quantity, row.sc1, row.sc2, currency_);
    }

    /// All months before those that are told apart.
    [[nodiscard]] int oldest() const { return month_of(today_) - mesi_indietro; }
    /// The month of an order, or oldest().
    [[nodiscard]] int age_of(const std::optional<date>& ordered_on) const {
        return ordered_on ? std::clamp(month_of(*ordered_on), oldest(), month_of(today_))
                          : oldest();
    }

    void count_movements() {
        for_all(files_.mag, records_in_use(files_, contatori::magazzino),
                [&](int number, const rec_mag& movement) {
                    const auto day = stored_day(movement.data);
                    const int ago = day ? month_of(today_) - month_of(*day) : -1;
                    if (ago < 0 || ago >= mesi_indietro) return;
                    delivered_[month_of(*day)].add(movement_value(movement),
                                                   static_cast<std::int16_t>(number));
                });
    }

    void count_missing(std::vector<barra>& into) {
        somme_numerate missing(wanted_.size());
        for_all(files_.art, static_cast<int>(wanted_.size()) - 1,
                [&](int number, const rec_art& article) {
                    const somma& wanted = at(wanted_, number);
                    if (wanted.dietro.empty()) return;
                    at(missing, number) = {wanted.valore - stock_of(article).in_magazzino,
                                           wanted.dietro};
                });
        into = highest(missing, [this](std::int16_t number) { return texts_.of(number); });
    }

    const archivi& files_;
    const valuta& currency_;
    date today_;
    customer_names names_;
    article_texts texts_;
    somme open_;       ///< by place_of
    somme aged_;       ///< what is open, by age_of
    somme delivered_;  ///< by month
    somme_numerate customers_;
    somme_numerate sold_;
    somme_numerate wanted_;  ///< quantities still to be delivered
};

}  // namespace

double movement_value(const rec_mag& movement) {
    return finite_or_zero(movement.quantita * movement.prezzo);
}

quadro_azienda count_company(const archivi& files, const valuta& currency, const date& today,
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
