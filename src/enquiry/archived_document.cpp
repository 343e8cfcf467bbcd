#include "enquiry/archived_document.h"

#include "customer/customer_fields.h"
#include "customer/shipping_data.h"
#include "documents/pdf_handoff.h"
#include "orders/ddt_snapshot.h"
#include "orders/stored_lines.h"
#include "orders/totals.h"
#include "store/records/order_block.h"
#include "store/suite_paths.h"
#include "store/suite_table.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora {

namespace {

/// The places of a head's lists on a page.
enum lista : std::size_t { porto, seconda, trasporto };

template <class List>
std::string entry_of(const List& list, int place) {
    const auto at = static_cast<std::size_t>(place);
    return place >= 0 && at < std::size(list) ? std::string(list[at]) : std::string();
}

/// The customer's own fields; a customer that can't be read leaves them empty.
void fill_customer(documento_archiviato& document, const program& app, std::int16_t number) {
    app.archives.cli.read(number, document.cliente);
    for (std::size_t i = 0; i < customer_fields.size(); ++i) {
        document.testata.text2[i] = customer_fields[i](document.cliente);
    }
}

void fill_order_head(documento_archiviato& document, const program& app,
                     const stored_rows<rec_orc>& rows) {
    fill_customer(document, app, rows[1].cliente);
    testata_documento& head = document.testata;
    head.text3 = {std::string(rows[1].numero.trimmed()),
                  date_text_of_stored(rows[1].data.full()),
                  date_text_of_stored(rows[1].data_evasione.full()),
                  std::string(rows[1].testo1.trimmed()),
                  std::string(rows[1].testo2.trimmed()),
                  std::string(rows[1].testo3.trimmed())};
    for (const auto& [field, row, stored] : campi_spedizione) {
        head.text2[field] = (rows[row].*stored).trimmed();
    }
    const auto chosen = [&](scelta_testata which) { return scelta(rows[3].testo3, which); };
    const tabella_suite table = read_suite_table(app.files, app.parameters.numero_azienda);
    head.combo1 = {entry_of(voci_porto, chosen(scelta_testata::porto)),
                   entry_of(table.pagamenti, chosen(scelta_testata::pagamento)),
                   entry_of(voci_trasporto, chosen(scelta_testata::trasporto))};
}

bool wants_mail(const program& app, const rec_cli& customer) {
    const auto& mail = app.parameters.parametri_valuta[valuta_slot::invio_email];
    return customer.invio_email.full() == "1" && number_at_head(mail) != 0;
}

}  // namespace

documento_archiviato archived_order(const program& app, std::int16_t registrazione) {
    documento_archiviato document;
    // A row that can't be read must not come out as the one before it.
    std::vector<rec_orc> whole(righe_blocco);
    if (!app.archives.orc.read_block(block_record(registrazione, 1), whole)) {
        document.perche = "L'ordine non si lascia leggere: " + app.archives.orc.name();
        return document;
    }
    const stored_rows<rec_orc> rows(app.archives.orc, registrazione);
    if (rows[1].annullato == 1) {
        document.perche = "Ordine annullato";
        return document;
    }
    fill_order_head(document, app, rows);
    stored_lines lines(app.archives.art);
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        lines.read(rows[number], document.righe[number]);
    }
    const tabella_suite table = read_suite_table(app.files, app.parameters.numero_azienda);
    document.iva = calcola_totali(document.righe, table.iva, valuta(app.parameters)).iva;
    return document;
}

documento_archiviato archived_transport_document(const program& app, std::int16_t number) {
    documento_archiviato document;
    document.tipo = tipo_documento::documento_trasporto;
    rec_bol record;
    if (!app.archives.bol.read(number, record)) {
        document.perche = "Il documento non si lascia leggere: "_cp + app.archives.bol.name();
        return document;
    }
    const std::string name = snapshot_name(record.progressivo);
    const std::string file = folder_of_company(app.parameters.numero_azienda) + "\\" + name;
    auto content = app.files.read_whole(file);
    if (!content) {
        document.perche = "Manca il file " + name + " con il contenuto del documento";
        return document;
    }
    auto kept = read_snapshot(std::move(*content));
    if (!kept) {
        document.perche =
            "Il file "_cp + name + ", con il contenuto del documento, è danneggiato"_cp;
        return document;
    }
    fill_customer(document, app, kept->cliente);
    testata_documento& head = document.testata;
    head.text3 = kept->text3;
    for (const std::size_t i : campo_cliente::del_documento) head.text2[i] = kept->text2[i];
    const tabella_suite table = read_suite_table(app.files, app.parameters.numero_azienda);
    head.combo1 = {entry_of(voci_porto, kept->porto), entry_of(table.causali, kept->causale),
                   entry_of(voci_trasporto, kept->trasporto)};
    head.combo2 = entry_of(table.aspetti, kept->aspetto);
    document.righe = kept->righe;
    return document;
}

bool can_be_printed(ui::desk& desk, const documento_archiviato& document) {
    if (document.perche.empty()) return true;
    desk.message(document.perche, ui::attention, ui::icon::stop);
    return false;
}

void reprint(program& app, documento_archiviato& document, uscita_ristampa where) {
    auto tables = std::make_unique<tabelle_documento>();
    auto drawing = std::make_unique<disegno>();
    carica_documento(*tables, document.tipo, app.parameters, app.files);
    carica_disegno(*drawing, document.tipo, app.parameters.numero_azienda, app.files);
    const valuta currency(app.parameters);
    ui::picture nothing_shown;
    const documento_da_stampare printed{document.tipo, document.testata, document.righe,
                                        document.iva,  document.cliente, currency,
                                        *tables,       *drawing,         nothing_shown};
    const std::string_view number = trimmed(document.testata.text3[campo_ordine::numero]);
    const bool order = document.tipo == tipo_documento::ordine;
    app.desk.printer().set_job_name((order ? "Ordine " : "DDT ") + std::string(number));
    if (where == uscita_ristampa::anteprima) app.desk.printer().preview_next_job();
    if (where != uscita_ristampa::pdf) {
        compose_document(app, printed, app.desk.printer());
        return;
    }
    const auto write = [&] { return put_print_file(app, printed); };
    offri_pdf(app, {document.tipo, document.testata.text3[campo_ordine::numero],
                    wants_mail(app, document.cliente), document.cliente.email.full(), *tables,
                    write(), write});
}

}  // namespace vantora
