#include "enquiry/prezzi.h"

#include "enquiry/all_records.h"
#include "orders/customer_names.h"
#include "store/money.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr std::size_t prezzi_di_ognuno = 500;  ///< of the customer, and of the others

const tipo_ricerca& tipo_prezzi() {
    using enum ui::alignment;
    static const tipo_ricerca kind{"prezzi",
                                   "Prezzi praticati",
                                   {{{"Data", 1000}, prezzi::data_stored},
                                    {{"Cliente", 4000}},
                                    {{"Prezzo", 1200, right}},
                                    {{"Sconti", 900, right}},
                                    {{"Quantit\xE0", 1000, right}},
                                    {{"Ordine", 900}},
                                    {{"", 0}},
                                    {{"", 0}}},
                                   {"&Indietro", "&Prendi prezzo e sconti"}};
    return kind;
}

std::string discounts(const rec_orc& row) {
    if (row.sc2 != 0) return std::to_string(row.sc1) + "+" + std::to_string(row.sc2);
    return row.sc1 != 0 ? std::to_string(row.sc1) : std::string();
}

}  // namespace

prezzi::prezzi(program& app) : enquiry_screen(app, tipo_prezzi()) {}

std::string prezzi::fill(list_rows& list) {
    const auto [article, customer] = app_.prezzi_di;
    auto found = find_prices(app_.archives, article, customer, prezzi_di_ognuno,
                             [&](int passed, int of) { return goes_on(list, passed, of); });
    listed_ = std::move(found.del_cliente);
    const std::size_t own = listed_.size();
    listed_.insert(listed_.end(), found.di_altri.begin(), found.di_altri.end());
    customer_names names(app_.archives.cli, static_cast<std::int16_t>(
                                                records_in_use(app_.archives, contatori::clienti)));
    const valuta currency(app_.parameters);
    for (std::size_t i = 0; i < listed_.size(); ++i) {
        const rec_orc& row = listed_[i].riga;
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
    const rec_orc& chosen = listed_[place].riga;
    app_.prezzo_scelto = prezzo_e_sconti{finite_or_zero(chosen.prezzo), chosen.sc1, chosen.sc2};
    leave();
}

void prezzi::run_command(int /*command*/, int row) {
    open_row(row);
}

}  // namespace vantora
