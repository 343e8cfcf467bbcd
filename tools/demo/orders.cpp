#include "demo/orders.h"

#include "demo/blank_record.h"
#include "demo/calendar.h"
#include "demo/demo_company.h"
#include "demo/draws.h"
#include "demo/lines.h"
#include "orders/stock.h"
#include "store/records/order_block.h"
#include "store/records/rec_orc.h"
#include "store/records/rec_prv.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

enum class order_state { open, partly_delivered, fulfilled, deleted };

struct order {
    int number = 0;
    int day = 0;
    int delivery_day = 0;
    int seconds = 0;  ///< time of the save, within its day
    int customer = 0;
    bool committed = false;
    order_state state = order_state::open;
    std::string references[3];
    std::string choices;  ///< port, transport, payment and price, as the save packs them
    std::vector<document_line> lines;

    [[nodiscard]] double data_reg() const { return day + seconds / 86400.0; }
};

constexpr std::string_view subjects[] = {
    "Ordine telefonico",    "Vs. ordine via e-mail",  "Ordine al banco",   "Rif. cantiere Salò",
    "Manutenzione stabile", "Ristrutturazione bagno", "Nuovo impianto",    "Fornitura mensile",
    "Rif. Vs. richiesta",   "Reintegro scorte",       "Commessa officina", "Urgenza caldaia",
};

constexpr std::string_view quote_subjects[] = {
    "Preventivo rifacimento bagno", "Preventivo impianto elettrico", "Offerta centrale termica",
    "Offerta materiale di consumo", "Preventivo illuminazione LED",  "Offerta annuale utensileria",
};

/// The day of a document, of so many that spread over the two years.
int day_of(int number, int count) {
    const long long span = ultimo_giorno - primo_giorno;
    return working_day(primo_giorno + static_cast<int>(span * number / count));
}

order_state draw_state(draws& chance, int number, int count) {
    const bool late = number * 5LL > count * 4LL;
    const int fate = chance.below(100);
    if (fate < 5) return order_state::deleted;
    if (fate < (late ? 18 : 92)) return order_state::fulfilled;
    if (fate < (late ? 45 : 96)) return order_state::partly_delivered;
    return order_state::open;
}

int draw_customer(draws& chance, const std::vector<rec_cli>& customers) {
    const int number = chance.between(1, static_cast<int>(customers.size()));
    return customers[static_cast<std::size_t>(number - 1)].eliminato == 0 ? number : 1;
}

order draw_order(draws& chance, int number, int count, const std::vector<rec_cli>& customers,
                 const std::vector<article>& articles) {
    order one;
    one.number = number;
    one.customer = draw_customer(chance, customers);
    const rec_cli& customer = customers[static_cast<std::size_t>(one.customer - 1)];
    one.day = day_of(number, count);
    one.delivery_day = working_day(one.day + chance.between(3, 40));
    one.seconds = chance.between(8 * 3600, 18 * 3600);
    one.committed = chance.percent(45);
    one.state = draw_state(chance, number, count);

    one.references[0] = from_utf8(chance.one_of(subjects));
    if (chance.percent(35)) {
        one.references[1] = "Vs. rif. n. " + std::to_string(chance.between(10, 980)) + " del " +
                            shown_day(one.day - chance.between(0, 6));
    }
    if (chance.percent(10)) one.references[2] = "Consegnare con sponda idraulica";
    one.choices = std::to_string(chance.percent(70) ? 0 : chance.between(1, 2)) +
                  std::to_string(chance.percent(60) ? 0 : chance.between(1, 2)) +
                  std::to_string(customer.pagamento - 1) +
                  (customer.listino.full() == "1" ? "1" : "0");
    one.lines = draw_lines(chance, articles, customer);
    return one;
}

/// All of a line, half of it in whole units, or nothing of it.
long long delivered_part(draws& chance, const document_line& line) {
    const int fate = chance.below(3);
    if (fate == 0) return line.quantita;
    return fate == 1 ? line.quantita / 20 * 10 : 0;
}

/// The article of a line, with stock behind it; null for a line of text.
rec_art* article_of(const document_line& line, std::vector<article>& articles) {
    if (line.articolo < 1 || line.quantita == 0) return nullptr;
    return &articles[static_cast<std::size_t>(line.articolo - 1)].record;
}

/// A quantity of a line leaves. What the stock lacks has been bought in before.
void deliver(document_line& line, long long quantity, bool committed,
             std::vector<article>& articles) {
    line.evaso += quantity;
    rec_art* const one = article_of(line, articles);
    if (!one) return;
    const auto leaving = static_cast<double>(quantity);
    release_stock(*one, leaving, committed);
    if (one->giacenza < leaving) one->giacenza = one->giacenza + 4 * leaving;
    unload_stock(*one, leaving, static_cast<double>(net_price(line)));
}

/// Texts leave with the goods above them, and all of them with a whole order.
void deliver_order(draws& chance, order& one, std::vector<article>& articles, delivery& papers) {
    const bool whole = one.state == order_state::fulfilled;
    bool keep_open = !whole;
    bool left = whole;
    for (document_line& line : one.lines) {
        if (line.quantita == 0) {
            if (left) papers.add_text(line);
            continue;
        }
        long long quantity = line.quantita;
        if (!whole) {
            quantity = keep_open ? line.quantita / 20 * 10 : delivered_part(chance, line);
            keep_open = false;
        }
        left = whole || quantity != 0;
        if (quantity == 0) continue;
        deliver(line, quantity, one.committed, articles);
        papers.add(line, quantity, articles);
    }
}

void play_out(const order& one, std::vector<article>& articles) {
    for (const document_line& line : one.lines) {
        rec_art* const its = article_of(line, articles);
        if (its) order_stock(*its, static_cast<double>(line.quantita), one.committed);
    }
    if (one.state != order_state::deleted) return;
    for (const document_line& line : one.lines) {
        rec_art* const its = article_of(line, articles);
        if (its) release_stock(*its, static_cast<double>(line.quantita), one.committed);
    }
}

template <class Text>
void set_texts(rec_orc& row, const Text& first, const Text& second, const Text& third) {
    row.testo1 = first;
    row.testo2 = second;
    row.testo3 = third;
}

/// The rows behind the fourth repeat its texts: that is how the orders' screen saves them.
void fill_block(std::vector<rec_orc>& block, const order& one, const rec_cli& customer) {
    rec_orc row;
    set_line(row, {});
    row.evaso = 0;
    row.numero = std::to_string(one.number);
    row.data = stored_day(one.day);
    row.cliente = static_cast<std::int16_t>(one.customer);
    row.data_evasione = stored_day(one.delivery_day);
    row.evaso_flag = static_cast<std::int16_t>(one.state == order_state::fulfilled ? 1 : 0);
    row.impegno = one.committed ? "1" : "0";
    row.data_reg = one.data_reg();
    row.annullato = static_cast<std::int16_t>(one.state == order_state::deleted ? 1 : 0);
    set_texts(row, customer.vettore1.full(), customer.vettore2.full(), customer.vettore3.full());
    block.assign(righe_blocco, row);

    set_texts(block[0], one.references[0], one.references[1], one.references[2]);
    set_texts(block[1], customer.amm_intestazione1.full(), customer.amm_intestazione2.full(),
              customer.amm_indirizzo.full());
    set_texts(block[2], customer.amm_cap.full(), customer.amm_citta.full(),
              std::string_view(one.choices));
    for (std::size_t i = 0; i < one.lines.size(); ++i) {
        set_line(block[i], one.lines[i]);
        block[i].evaso = one.lines[i].stored_evaso();
    }
}

/// The warehouse's file numbers its records in 16 bits: older movements have been closed off.
void keep_latest(std::vector<rec_mag>& movements) {
    constexpr std::size_t most = massimo_record;
    if (movements.size() <= most) return;
    movements.erase(movements.begin(), movements.end() - static_cast<std::ptrdiff_t>(most));
}

}  // namespace

deliveries write_orders(folder_writer& into, int count, std::uint64_t seed,
                        const std::vector<rec_cli>& customers, std::vector<article>& articles) {
    draws chance(seed, 3);
    deliveries done;
    auto file = into.create_records<rec_orc>("vantora.orc");
    std::vector<rec_orc> block;
    for (int number = 1; number <= count; ++number) {
        order one = draw_order(chance, number, count, customers, articles);
        const rec_cli& customer = customers[static_cast<std::size_t>(one.customer - 1)];
        play_out(one, articles);
        if (one.state == order_state::fulfilled || one.state == order_state::partly_delivered) {
            delivery papers(
                {number, one.customer, customer, one.delivery_day, one.seconds, one.choices}, done);
            deliver_order(chance, one, articles, papers);
            papers.close(into);
        }
        fill_block(block, one, customer);
        folder_writer::check_written(file.write_block(block_record(number, 1), block),
                                     "vantora.orc");
    }
    keep_latest(done.movements);
    return done;
}

void write_quotes(folder_writer& into, int count, std::uint64_t seed,
                  const std::vector<rec_cli>& customers, const std::vector<article>& articles) {
    draws chance(seed, 4);
    auto file = into.create_records<rec_prv>("vantora.prv");
    for (int number = 1; number <= count; ++number) {
        const int customer = chance.between(1, static_cast<int>(customers.size()));
        auto row = blank_record<rec_prv>();
        set_line(row, {});
        row.numero = std::to_string(number);
        row.data = stored_day(day_of(number, count));
        row.cliente = static_cast<std::int16_t>(customer);
        row.annullato = static_cast<std::int16_t>(chance.percent(6) ? 1 : 0);
        std::vector<rec_prv> block(righe_blocco, row);
        block[0].testo1 = from_utf8(chance.one_of(quote_subjects));
        const auto lines =
            draw_lines(chance, articles, customers[static_cast<std::size_t>(customer - 1)]);
        for (std::size_t i = 0; i < lines.size(); ++i) set_line(block[i], lines[i]);
        folder_writer::check_written(file.write_block(block_record(number, 1), block),
                                     "vantora.prv");
    }
}

}  // namespace vantora::demo
