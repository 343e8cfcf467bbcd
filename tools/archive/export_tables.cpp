#include "archive/export_tables.h"

#include <initializer_list>

#include "archive/words.h"
#include "text/dates.h"

namespace vantora::archive {

namespace {

using enum content;

/// yyyy-mm-dd; empty for what is no date.
std::string date_of(std::string_view stored) {
    if (!read_date(date_text_of_stored(stored))) return {};
    std::string iso = to_utf8(stored);
    return iso.insert(6, "-").insert(4, "-");
}

std::int64_t whole_of(std::int16_t value) {
    return value;
}

std::int64_t yes(bool value) {
    return value ? 1 : 0;
}

/// An empty reference where there is no such record.
cell_value reference(std::int16_t number, std::int16_t count) {
    if (number < 1 || number > count) return std::string();
    return whole_of(number);
}

void put(table_sink& into, std::initializer_list<cell_value> values) {
    into.row(std::span(values.begin(), values.size()));
}

class exporter {
 public:
    exporter(company_files& company, table_sink& into)
        : files_(company.records()),
          customers_(company.count(contatori::clienti)),
          articles_(company.count(contatori::articoli)),
          orders_(company.count(contatori::ordini)),
          quotes_(company.count(contatori::preventivi)),
          movements_(company.count(contatori::magazzino)),
          documents_(company.count(contatori::documenti_trasporto)),
          into_(into) {}

    void customers() {
        into_.begin({"customers",
                     {{"id", whole},
                      {"name", words},
                      {"name2", words},
                      {"address", words},
                      {"town", words},
                      {"postal_code", words},
                      {"vat_number", words},
                      {"tax_code", words},
                      {"telephone", words},
                      {"email", words},
                      {"discount1", whole},
                      {"discount2", whole},
                      {"payment", whole},
                      {"price_list", words},
                      {"deleted", yes_no}}});
        scan(files_.cli, customers_, [&](std::int64_t number, const rec_cli& one) {
            put(into_,
                {number, words_of(one.intestazione1.full()), words_of(one.intestazione2.full()),
                 words_of(one.indirizzo.full()), words_of(one.citta.full()),
                 words_of(one.cap.full()),
                 words_of(one.prefisso_iva.full()) + words_of(one.partita_iva.full()),
                 words_of(one.codice_fiscale.full()), words_of(one.telefono1.full()),
                 words_of(one.email.full()), whole_of(one.sconto1), whole_of(one.sconto2),
                 whole_of(one.pagamento), words_of(one.listino.full()), yes(one.eliminato == 1)});
        });
        into_.end();
    }

    void articles() {
        into_.begin({"articles",
                     {{"id", whole},
                      {"code", words},
                      {"description", words},
                      {"bar_code", words},
                      {"unit", words},
                      {"category", words},
                      {"vat_code", whole},
                      {"price1", number},
                      {"price2", number},
                      {"stock", number},
                      {"committed", number},
                      {"ordered", number},
                      {"unloaded", number},
                      {"unloaded_value", number},
                      {"weight", number},
                      {"deleted", yes_no}}});
        scan(files_.art, articles_, [&](std::int64_t at, const rec_art& one) {
            put(into_, {at, words_of(one.codice.full()), words_of(one.descrizione.full()),
                        words_of(one.codice_barre.full()), words_of(one.um.full()),
                        words_of(one.categoria.full()), whole_of(one.iva), double{one.prezzo1},
                        double{one.prezzo2}, double{one.giacenza}, double{one.impegnato},
                        double{one.ordinato_clienti}, double{one.scaricato},
                        double{one.valore_scaricato}, double{one.peso}, yes(one.eliminato != 0)});
        });
        into_.end();
    }

    void orders() {
        into_.begin({"orders",
                     {{"id", whole},
                      {"number", words},
                      {"date", date},
                      {"due", date},
                      {"customer", whole, "customers"},
                      {"reference", words},
                      {"commits_stock", yes_no},
                      {"fulfilled", yes_no},
                      {"deleted", yes_no}}});
        for_heads(files_.orc, orders_, [&](std::int64_t at, const rec_orc& head) {
            put(into_, {at, words_of(head.numero.full()), date_of(head.data.full()),
                        date_of(head.data_evasione.full()), reference(head.cliente, customers_),
                        words_of(head.testo1.full()), yes(head.impegno.full() == "1"),
                        yes(head.evaso_flag == 1), yes(head.annullato == 1)});
        });
        into_.end();
    }

    void order_lines() {
        into_.begin({"order_lines", line_columns("orders", true), 2});
        scan_blocks(files_.orc, orders_, [&](int block, std::span<const rec_orc> rows) {
            for (std::size_t row = 0; row < rows.size(); ++row) {
                if (!is_used(rows[row])) continue;
                put_line(block, row + 1, rows[row], double{rows[row].evaso});
            }
        });
        into_.end();
    }

    void quotes() {
        into_.begin({"quotes",
                     {{"id", whole},
                      {"number", words},
                      {"date", date},
                      {"customer", whole, "customers"},
                      {"reference", words},
                      {"deleted", yes_no}}});
        for_heads(files_.prv, quotes_, [&](std::int64_t at, const rec_prv& head) {
            put(into_, {at, words_of(head.numero.full()), date_of(head.data.full()),
                        reference(head.cliente, customers_), words_of(head.testo1.full()),
                        yes(head.annullato != 0)});
        });
        into_.end();
    }

    void quote_lines() {
        into_.begin({"quote_lines", line_columns("quotes", false), 2});
        scan_blocks(files_.prv, quotes_, [&](int block, std::span<const rec_prv> rows) {
            for (std::size_t row = 0; row < rows.size(); ++row) {
                if (is_used(rows[row])) put_line(block, row + 1, rows[row], {});
            }
        });
        into_.end();
    }

    void movements() {
        into_.begin({"movements",
                     {{"id", whole},
                      {"date", date},
                      {"document", words},
                      {"movement", words},
                      {"article", whole, "articles"},
                      {"customer", whole, "customers"},
                      {"quantity", number},
                      {"net_price", number}}});
        scan(files_.mag, movements_, [&](std::int64_t at, const rec_mag& one) {
            put(into_,
                {at, date_of(one.data.full()), words_of(one.documento.full()),
                 words_of(one.movimento.full()), reference(one.articolo, articles_),
                 reference(one.cliente, customers_), double{one.quantita}, double{one.prezzo}});
        });
        into_.end();
    }

    void documents() {
        into_.begin({"transport_documents",
                     {{"id", whole},
                      {"number", whole},
                      {"date", date},
                      {"customer", whole, "customers"},
                      {"running_number", number},
                      {"without_unloading", yes_no}}});
        scan(files_.bol, documents_, [&](std::int64_t at, const rec_bol& one) {
            put(into_, {at, whole_of(one.numero), date_of(one.data.full()),
                        reference(one.cliente, customers_),
                        static_cast<double>(float{one.progressivo}), yes(one.senza_scarico == 1)});
        });
        into_.end();
    }

 private:
    static std::vector<table_column> line_columns(const char* of, bool fulfilled) {
        std::vector<table_column> columns{
            {of == std::string_view("orders") ? "order_id" : "quote_id", whole, of},
            {"line", whole},
            {"article", whole, "articles"},
            {"description", words},
            {"unit", words},
            {"quantity", number},
            {"price", number},
            {"discount1", whole},
            {"discount2", whole},
            {"vat_code", whole}};
        if (fulfilled) columns.push_back({"fulfilled", number});
        return columns;
    }

    template <class Row>
    static bool is_used(const Row& row) {
        return row.articolo > 0 || row.quantita != 0 || row.prezzo != 0 ||
               !words_of(row.descrizione.full()).empty();
    }

    template <class Row>
    void put_line(int block, std::size_t line, const Row& row, std::optional<double> fulfilled) {
        const std::string text =
            words_of(std::string(row.descrizione.full()).append(row.descrizione2.full()));
        const cell_value values[] = {std::int64_t{block},
                                     static_cast<std::int64_t>(line),
                                     reference(row.articolo, articles_),
                                     text,
                                     words_of(row.um.full()),
                                     double{row.quantita},
                                     double{row.prezzo},
                                     whole_of(row.sc1),
                                     whole_of(row.sc2),
                                     whole_of(row.iva),
                                     fulfilled.value_or(0)};
        into_.row(std::span(values).first(fulfilled ? 11 : 10));
    }

    template <class Row, class Visit>
    static void for_heads(const channel<Row>& from, std::int16_t count, Visit visit) {
        for (int block = 1; block <= count; ++block) {
            Row head;
            if (from.read(block_record(block, 1), head)) visit(std::int64_t{block}, head);
        }
    }

    archivi& files_;
    std::int16_t customers_;
    std::int16_t articles_;
    std::int16_t orders_;
    std::int16_t quotes_;
    std::int16_t movements_;
    std::int16_t documents_;
    table_sink& into_;
};

}  // namespace

void export_tables(company_files& company, table_sink& into) {
    exporter all(company, into);
    all.customers();
    all.articles();
    all.orders();
    all.order_lines();
    all.quotes();
    all.quote_lines();
    all.movements();
    all.documents();
}

}  // namespace vantora::archive
