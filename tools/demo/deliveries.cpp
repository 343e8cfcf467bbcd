#include "demo/deliveries.h"

#include "demo/blank_record.h"
#include "demo/calendar.h"
#include "orders/totals.h"
#include "text/dates.h"

namespace vantora::demo {

namespace {

constexpr int righe_a_collo = 3;

}  // namespace

riga_ordine& delivery::add_text(const document_line& line) {
    return kept_.righe[++lines_] = line.typed();
}

void delivery::add(const document_line& line, long long quantity,
                   const std::vector<article>& articles) {
    const double leaving = static_cast<double>(quantity) / 10;
    riga_ordine& typed = add_text(line);
    typed.quantita = leaving;
    if (line.articolo < 1) return;
    const rec_art& its = articles[static_cast<std::size_t>(line.articolo - 1)].record;
    typed.codice = its.codice.full();
    weight_ += its.peso * leaving;

    rec_mag movement;
    movement.data = stored_day(of_.day);
    movement.documento = "Ordine n. " + std::to_string(of_.number);
    movement.tipo = std::int16_t{1};
    movement.movimento = "DDT n. " + std::to_string(number_);
    movement.data_reg = moment();
    movement.articolo = static_cast<std::int16_t>(line.articolo);
    movement.cliente = static_cast<std::int16_t>(of_.customer_number);
    movement.quantita = leaving;
    movement.prezzo = static_cast<double>(net_price(line)) / 100;
    movement.segno = std::int16_t{1};
    into_.movements.push_back(movement);
    delivered_ = true;
}

void delivery::close(folder_writer& folder) {
    if (!delivered_) return;
    auto document = blank_record<rec_bol>();
    document.numero = static_cast<std::int16_t>(number_);
    document.data = stored_day(of_.day);
    document.progressivo = static_cast<float>(number_);
    document.data_reg = moment();
    document.uno = std::int16_t{1};
    document.cliente = static_cast<std::int16_t>(of_.customer_number);
    into_.documents.push_back(document);
    write_text_file(folder);
}

void delivery::write_text_file(folder_writer& folder) {
    const rec_cli& to = of_.customer;
    kept_.cliente = static_cast<std::int16_t>(of_.customer_number);
    const std::string day = shown_day(of_.day);
    kept_.text3 = {
        std::to_string(number_), day, std::to_string(1 + lines_ / righe_a_collo),
        weight_text(weight_),    day, time_text({{}, of_.seconds / 3600, of_.seconds / 60 % 60})};
    kept_.causale = 0;
    kept_.aspetto = number_ % 3;
    kept_.porto = of_.choices[0] - '0';
    kept_.trasporto = of_.choices[1] - '0';
    using namespace campo_cliente;
    const auto place = [&](std::size_t field, const auto& of) {
        kept_.text2[field] = of.trimmed();
    };
    place(amm_intestazione1, to.amm_intestazione1);
    place(amm_intestazione2, to.amm_intestazione2);
    place(amm_indirizzo, to.amm_indirizzo);
    place(amm_cap, to.amm_cap);
    place(amm_citta, to.amm_citta);
    place(vettore1, to.vettore1);
    place(vettore2, to.vettore2);
    place(vettore3, to.vettore3);
    folder.write_one_of_many(snapshot_name(static_cast<float>(number_)), write_snapshot(kept_));
}

}  // namespace vantora::demo
