#include <cmath>
#include <map>

#include "archive/check.h"
#include "text/dates.h"

namespace vantora::archive {

namespace {

using rows = std::span<const rec_orc>;

std::string order_named(int registrazione, const rec_orc& head) {
    return "orders, registrazione " + std::to_string(registrazione) + " (number " +
           to_utf8(head.numero.trimmed()) + ")";
}

bool is_stored_date(std::string_view text) {
    return read_date(date_text_of_stored(text)).has_value() &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// What every row of an order repeats.
bool same_head(const rec_orc& one, const rec_orc& other) {
    return one.numero == other.numero && one.data == other.data && one.cliente == other.cliente &&
           one.data_evasione == other.data_evasione && one.impegno == other.impegno &&
           one.annullato == other.annullato;
}

class order_check {
 public:
    order_check(company_files& company, findings& into)
        : customers_(company.count(contatori::clienti)),
          articles_(company.count(contatori::articoli)),
          into_(into) {}

    void look_at(int registrazione, rows order) {
        const rec_orc& head = order.front();
        registrazione_ = registrazione;
        head_ = &head;
        check_rows_agree(order);
        if (head.annullato == 1) return;
        check_head(head);
        check_lines(order);
        numbers_[std::string(head.numero.trimmed())].push_back(registrazione);
    }

    void tell_repeated_numbers() {
        for (const auto& [number, orders] : numbers_) {
            if (orders.size() < 2) continue;
            std::string list;
            for (const int one : orders) list += (list.empty() ? "" : ", ") + std::to_string(one);
            into_.push_back({gravity::note, "orders, number " + to_utf8(number),
                             "it was given to registrazioni " + list,
                             "Change it in all but one if that isn't meant."});
        }
    }

 private:
    void tell(gravity how_bad, std::string what, std::string advice) {
        into_.push_back(
            {how_bad, order_named(registrazione_, *head_), std::move(what), std::move(advice)});
    }

    void check_rows_agree(rows order) {
        for (std::size_t row = 1; row < order.size(); ++row) {
            if (same_head(order.front(), order[row])) continue;
            tell(gravity::error,
                 "from row " + std::to_string(row + 1) +
                     " on its rows belong to another order or to an older save",
                 "A save was interrupted: open the order, compare it with its paper, save it.");
            return;
        }
    }

    void check_head(const rec_orc& head) {
        if (head.cliente < 1 || head.cliente > customers_) {
            tell(gravity::error, "there is no customer " + std::to_string(head.cliente),
                 "Open the order and choose its customer.");
        }
        if (!is_stored_date(head.data.full()) || !is_stored_date(head.data_evasione.full())) {
            tell(gravity::error, "its dates are no dates", "Open the order and set them right.");
        }
    }

    void check_lines(rows order) {
        double open = 0;
        bool has_quantity = false;
        for (std::size_t row = 0; row < order.size(); ++row) {
            const rec_orc& line = order[row];
            const double quantity = line.quantita;
            const double done = line.evaso;
            const auto at = [row] { return "row " + std::to_string(row + 1) + ": "; };
            if (!std::isfinite(quantity) || !std::isfinite(done) || !std::isfinite(line.prezzo)) {
                tell(gravity::error, at() + "a quantity or the price is no number",
                     "Open the order and type the line anew.");
                continue;
            }
            if (line.articolo > articles_) {
                tell(gravity::error, at() + "there is no article " + std::to_string(line.articolo),
                     "Open the order and pick the article anew.");
            }
            has_quantity = has_quantity || quantity != 0;
            open += quantity - done;
        }
        const bool closed = order.front().evaso_flag == 1;
        if (closed && open > 0) {
            tell(gravity::note, "it counts as fulfilled with quantities open",
                 "Untick it in the order if the rest is still to come.");
        } else if (!closed && has_quantity && open <= 0) {
            tell(gravity::note, "nothing is open and it doesn't count as fulfilled",
                 "Tick it in the order, or let the next fulfilment close it.");
        }
    }

    std::int16_t customers_;
    std::int16_t articles_;
    findings& into_;
    int registrazione_ = 0;
    const rec_orc* head_ = nullptr;  ///< of the order looked at
    std::map<std::string, std::vector<int>> numbers_;
};

}  // namespace

void check_orders(company_files& company, open_quantities& open, findings& into) {
    order_check check(company, into);
    const int unread = open.add_orders(
        company, [&check](int registrazione, rows order) { check.look_at(registrazione, order); });
    tell_unread(company.records().orc, unread * righe_blocco, into);
    check.tell_repeated_numbers();
}

}  // namespace vantora::archive
