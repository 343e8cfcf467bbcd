#include "fulfil/salva_ddt.h"

#include "fulfil/document_number.h"
#include "store/suite_paths.h"
#include "text/dates.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora {

namespace {

constexpr float ultimo_progressivo = 1000000000;

/// Counts in 32 bits: from 16777216 on it stands still.
float next_progressive(float progressive) {
    const float next = progressive + 1.0F;
    return next > ultimo_progressivo ? 1.0F : next;
}

rec_bol record_of(const ddt_da_registrare& document, std::int16_t number, float progressive) {
    rec_bol record;
    record.numero = number;
    record.data = stored_of_date_text(document.contenuto.text3[campo_ddt::data]);
    record.testo1 = "";
    record.testo2 = "";
    record.progressivo = progressive;
    record.data_reg = document.data_reg;
    record.uno = 1;
    record.vuoto = "";
    record.cliente = document.contenuto.cliente;
    record.senza_scarico = document.scaricato ? 0 : 1;
    return record;
}

}  // namespace

change_outcome salva_ddt(archivi& files, file_port& port, int numero_azienda,
                         const ddt_da_registrare& document) {
    archive_change change(files);
    change.recorded_as("documento di trasporto", document.contenuto.text3[campo_ddt::numero]);
    rec_tot counter;
    change.counts(files.tot, contatori::documenti_trasporto, counter, files.bol);
    const rec_tot before = counter;
    counter.quanti = to_int16(counter.quanti + 1).value_or(counter.quanti);
    change.writes(files.bol, counter.quanti, 1);
    if (change.may_write() && document.solo_se_chiaro &&
        doubt_about(files, document.contenuto.text3[campo_ddt::numero],
                    document.contenuto.text3[campo_ddt::data])
            .any()) {
        change.give_up(change_outcome::to_be_asked);
    }
    if (!change.may_write()) return change.finish();

    const auto number = to_int16(number_at_head(document.contenuto.text3[campo_ddt::numero]));
    counter.ultimo_numero = number.value_or(counter.ultimo_numero);
    counter.progressivo = next_progressive(counter.progressivo);
    if (!change.write(files.tot, contatori::documenti_trasporto, counter)) return change.finish();
    const rec_bol record = record_of(document, number.value_or(0), counter.progressivo);
    if (!change.write(files.bol, counter.quanti, record)) {
        // A document that isn't there must not count.
        if (change.write(files.tot, contatori::documenti_trasporto, before)) {
            change.take_back(true);
        }
        change.flush(files.tot);
        return change.finish();
    }
    change.flush(files.tot);
    change.flush(files.bol);

    const std::string name = snapshot_name(counter.progressivo);
    const auto file = port.create_instead(folder_of_company(numero_azienda) + "\\" + name);
    const std::string content = write_snapshot(document.contenuto);
    change.note(file && file->write(0, std::as_bytes(std::span(content))) && file->flush(), name);
    return change.finish();
}

}  // namespace vantora
