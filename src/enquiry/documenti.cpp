#include "enquiry/documenti.h"

#include "enquiry/all_records.h"
#include "enquiry/archived_document.h"
#include "orders/customer_names.h"
#include "orders/ddt_snapshot.h"
#include "store/suite_paths.h"
#include "text/dates.h"

namespace vantora {

namespace {

constexpr std::size_t byte_fino_ai_colli = 256;

}  // namespace

documenti::documenti(program& app)
    : enquiry_screen(app, {.name = "documenti",
                           .title = "Documenti di trasporto",
                           .colonne = {{"Numero", 900, ui::alignment::right},
                                       {"Data", 1100},
                                       {"Cliente", 5000},
                                       {"Colli", 900, ui::alignment::right},
                                       {"Movimento", 1200},
                                       {"", 0},
                                       {"", 0}},
                           .comandi = {"&Indietro", "&Anteprima", "&Stampa", "&PDF"},
                           .giorno = data,
                           .giorno_stored = data_stored}) {}

// One read for every 256 documents and every 32 customers, and one of each document's text file.
std::string documenti::fill(list_rows& list) {
    const int count = records_in_use(app_.archives, contatori::documenti_trasporto);
    std::vector<std::pair<int, rec_bol>> all;
    all.reserve(static_cast<std::size_t>(count));
    for_all(app_.archives.bol, count,
            [&](int number, const rec_bol& one) { all.emplace_back(number, one); });
    customer_names names(app_.archives);
    for (std::size_t i = all.size(); i-- > 0 && !list.full();) {
        const auto& [number, one] = all[i];
        list_document(list, one, number, names.of(one.cliente));
        list.come_to(static_cast<int>(all.size() - i), static_cast<int>(all.size()));
    }
    return how_many(list.in_use() - 1, "documento", "documenti");
}

void documenti::list_document(list_rows& list, const rec_bol& one, int number,
                              std::string_view name) {
    const std::string file =
        folder_of_company(app_.parameters.numero_azienda) + "\\" + snapshot_name(one.progressivo);
    list.next();
    list.write(numero, std::to_string(one.numero));
    list.write(data, date_text_of_stored(one.data.full()));
    list.write(cliente, name);
    list.write(colli, parcels_text(app_.files.read_head(file, byte_fino_ai_colli).value_or("")));
    list.write(movimento, one.senza_scarico == 0 ? "scaricato" : "senza scarico");
    list.write(documento, std::to_string(number));
    list.write(data_stored, one.data.full());
}

void documenti::open_row(int row) {
    run_command(anteprima, row);
}

void documenti::run_command(int command, int row) {
    auto found = archived_transport_document(app_, number_in(row, documento));
    if (!can_be_printed(app_.desk, found)) return;
    const work printing(*this);
    reprint(app_, found, static_cast<uscita_ristampa>(command - anteprima));
}

}  // namespace vantora
