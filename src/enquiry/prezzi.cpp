#include "enquiry/prezzi.h"

#include "enquiry/all_records.h"
#include "orders/customer_names.h"
#include "store/money.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::size_t prezzi_di_ognuno = 500;  ///< of the customer, and of the others

std::string discounts(const rec_orc& row) {
    if (row.sc2 != 0) return std::to_string(row.sc1) + "+" + std::to_string(row.sc2);
    return row.sc1 != 0 ? std::to_string(row.sc1) : std::string();
}

}  // namespace

prezzi_articolo find_prices(const archivi& files, std::int16_t articolo, std::int16_t cliente,
                            std::size_t most, const std::function<bool(int, int)>& goes_on) {
    prezzi_articolo all;
    order_walk orders(files);
    while (const auto order = orders.next()) {
        const bool own = order->righe.front().cliente == cliente;
        auto& kept = own ? all.del_cliente : all.di_altri;
        for (const rec_orc& row : order->righe) {
            if (row.articolo == articolo && kept.size() < most) kept.push_back(row);
        }
        if (!goes_on(orders.passed(), orders.count())) break;
    }
    return all;
}

prezzi::prezzi(program& app)
    : enquiry_screen(app, {.name = "prezzi",
                           .title = "Prezzi praticati",
                           .colonne = {{"Data", 1000},
                                       {"Cliente", 4000},
                                       {"Prezzo", 1200, ui::alignment::right},
                                       {"Sconti", 900, ui::alignment::right},
                                       {"Quantit\xE0", 1000, ui::alignment::right},
                                       {"Ordine", 900},
                                       {"", 0},
                                       {"", 0}},
                           .comandi = {"&Indietro", "&Prendi prezzo e sconti"},
                           .giorno = data,
                           .giorno_stored = data_stored}) {}

std::string prezzi::fill(list_rows& list) {
    const auto [article, customer] = app_.prezzi_di;
    auto found = find_prices(app_.archives, article, customer, prezzi_di_ognuno,
                             [&](int passed, int of) { return goes_on(list, passed, of); });
    listed_ = std::move(found.del_cliente);
    const std::size_t own = listed_.size();
    listed_.insert(listed_.end(), found.di_altri.begin(), found.di_altri.end());
    customer_names names(app_.archives);
    const valuta currency(app_.parameters);
    for (std::size_t i = 0; i < listed_.size(); ++i) {
        const rec_orc& row = listed_[i];
        list.next();
        list.write(data, date_text_of_stored(row.data.full()));
        list.write(cliente, names.of(row.cliente));
        list.write(prezzo, formato_prezzo(finite_or_zero(row.prezzo), currency));
        list.write(sconti, discounts(row));
        list.write(quantita, quantity_text(row.quantita));
        list.write(ordine, row.numero.trimmed());
        list.write(riga, std::to_string(i));
        list.write(data_stored, row.data.full());
    }
    if (listed_.empty()) return "L'articolo non è in nessun ordine"_cp;
    return how_many(static_cast<int>(own), "prezzo a questo cliente", "prezzi a questo cliente") +
           ", " + std::to_string(listed_.size() - own) + " ad altri";
}

void prezzi::open_row(int row) {
    const auto place = static_cast<std::size_t>(number_at_head(elenco.text(row, riga)));
    const rec_orc& chosen = listed_[place];
    app_.prezzo_scelto = prezzo_e_sconti{finite_or_zero(chosen.prezzo), chosen.sc1, chosen.sc2};
    leave();
}

}  // namespace vantora
