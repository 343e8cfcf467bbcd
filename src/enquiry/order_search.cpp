#include "enquiry/order_search.h"

#include <algorithm>

#include "orders/order_rows.h"
#include "text/code_page.h"

namespace vantora {

namespace {

constexpr int righe_di_testata = 4;

bool blank(const rec_orc& row) {
    return row.articolo < 1 && is_blank(row.descrizione);
}

}  // namespace

order_search::order_search(const archivi& files, std::string_view wanted)
    : files_(files), wanted_(searchable(trimmed(wanted))) {
    if (wanted_.empty()) return;
    customers_ =
        matching(files.cli, records_in_use(files, contatori::clienti), [](const rec_cli& one) {
            return std::string(one.intestazione1.full()).append(one.intestazione2.full());
        });
    articles_ =
        matching(files.art, records_in_use(files, contatori::articoli), [](const rec_art& one) {
            return std::string(one.codice.full())
                .append(" ")
                .append(one.codice_barre.full())
                .append(" ")
                .append(one.descrizione.full());
        });
}

template <class Record, class Texts>
std::vector<bool> order_search::matching(const channel<Record>& records, int count,
                                         Texts texts) const {
    std::vector<bool> all(static_cast<std::size_t>(count) + 1);
    for_all(records, count, [&](int number, const Record& one) {
        all[static_cast<std::size_t>(number)] = holds({texts(one)});
    });
    return all;
}

bool order_search::holds(std::initializer_list<std::string_view> parts) const {
    plain_.clear();
    for (const std::string_view part : parts) append_searchable(plain_, part);
    return plain_.find(wanted_) != std::string::npos;
}

std::string order_search::in_head(std::span<const rec_orc> block) const {
    const rec_orc& head = block.front();
    if (holds({head.numero.full()})) return std::string(head.numero.trimmed());
    for (const rec_orc& row : block.first(righe_di_testata)) {
        for (const auto* one : {&row.testo1, &row.testo2, &row.testo3}) {
            if (!is_blank(*one) && holds({one->full()})) return std::string(one->trimmed());
        }
    }
    return {};
}

std::optional<std::string> order_search::in_line(const rec_orc& row) const {
    if (blank(row)) return {};
    const auto article = static_cast<std::size_t>(std::max<int>(row.articolo, 0));
    const bool found = (article < articles_.size() && articles_[article]) ||
                       holds({row.descrizione.full(), row.descrizione2.full()});
    if (!found) return {};
    return std::string(trimmed(description_of(row)));
}

void order_search::look_into(const ordine_letto& order,
                             const std::function<void(const rec_orc&, riga_trovata)>& found) const {
    const rec_orc& head = order.righe.front();
    const auto customer = static_cast<std::size_t>(std::max<int>(head.cliente, 0));
    if (customer < customers_.size() && customers_[customer]) {
        found(head, {order.registrazione, 1, {}});
    } else if (std::string text = in_head(order.righe); !text.empty()) {
        found(head, {order.registrazione, 1, std::move(text)});
    }
    int row = 0;
    for (const rec_orc& line : order.righe) {
        ++row;
        if (auto text = in_line(line)) found(head, {order.registrazione, row, std::move(*text)});
    }
}

void order_search::run(const std::function<void(const rec_orc&, riga_trovata)>& found,
                       const std::function<bool(int)>& goes_on) const {
    order_walk orders(files_);
    while (const auto order = orders.next()) {
        look_into(*order, found);
        if (!goes_on(orders.passed())) return;
    }
}

}  // namespace vantora
