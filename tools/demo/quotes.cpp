#include "demo/calendar.h"
#include "demo/draws.h"
#include "demo/lines.h"
#include "demo/orders.h"
#include "store/records/order_block.h"
#include "store/records/rec_prv.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

constexpr std::string_view quote_subjects[] = {
    "Preventivo rifacimento bagno", "Preventivo impianto elettrico", "Offerta centrale termica",
    "Offerta materiale di consumo", "Preventivo illuminazione LED",  "Offerta annuale utensileria",
};

}  // namespace

void write_quotes(folder_writer& into, int count, std::uint64_t seed,
                  const std::vector<rec_cli>& customers, const std::vector<article>& articles) {
    draws chance(seed, 4);
    auto file = into.create_records<rec_prv>("vantora.prv");
    for (int number = 1; number <= count; ++number) {
        const int customer = chance.between(1, static_cast<int>(customers.size()));
        rec_prv row;
        set_line(row, {});
        row.riservato_f = "";
        row.riservato_n = "";
        row.testo1 = row.testo2 = row.testo3 = "";
        row.numero = std::to_string(number);
        const long long span = ultimo_giorno - primo_giorno;
        row.data = stored_day(working_day(primo_giorno + static_cast<int>(span * number / count)));
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
