#include "archive/show.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "archive/words.h"
#include "orders/order_rows.h"
#include "text/dates.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

using nlohmann::ordered_json;

template <std::size_t N>
ordered_json value_of(const text<N>& field) {
    const std::string_view stored = field.full();
    const std::size_t end = stored.find_last_not_of(std::string_view(" \0", 2));
    return to_utf8(stored.substr(0, end == std::string_view::npos ? 0 : end + 1));
}

ordered_json value_of(std::int16_t field) {
    return field;
}

ordered_json value_of(double field) {
    return field;  // no number at all comes as null
}

template <class Record>
ordered_json all_fields(const Record& one) {
    ordered_json object;
    visit_fields(one, [&](const auto& field, const auto& value) {
        object[std::string(field.name)] = value_of(value);
    });
    return object;
}

std::string state_of(const rec_orc& head) {
    if (head.annullato == 1) return "deleted";
    return head.evaso_flag == 1 ? "fulfilled"
                                : "open, due " + date_text_of_stored(head.data_evasione.full());
}

bool is_used(const rec_orc& row) {
    return row.articolo > 0 || in_use_or_priced(row);
}

/// The names of those that the records point to.
class names {
 public:
    explicit names(company_files& company) : files_(company.records()) {}

    std::string customer(std::int16_t number) {
        rec_cli one;
        files_.cli.read(number, one);
        return std::to_string(number) + " " + words_of(one.intestazione1.full());
    }
    std::string article(std::int16_t number) {
        rec_art one;
        if (number < 1 || !files_.art.read(number, one)) return {};
        return std::to_string(number) + " " + words_of(one.codice.full()) + " ";
    }

 private:
    archivi& files_;
};

std::string in_words(const rec_cli& one, names&) {
    return words_of(one.intestazione1.full()) + ", " + words_of(one.indirizzo.full()) + ", " +
           words_of(one.cap.full()) + " " + words_of(one.citta.full()) +
           (one.eliminato == 1 ? " (deleted)" : "");
}

std::string in_words(const rec_art& one, names&) {
    return words_of(one.codice.full()) + " " + words_of(one.descrizione.full()) + ": stock " +
           plain_text(one.giacenza) + ", committed " + plain_text(one.impegnato) + ", ordered " +
           plain_text(one.ordinato_clienti) + (one.eliminato != 0 ? " (deleted)" : "");
}

std::string in_words(const rec_mag& one, names& of) {
    return date_text_of_stored(one.data.full()) + " " + words_of(one.movimento.full()) + " " +
           words_of(one.documento.full()) + ": " + plain_text(one.quantita) + " of article " +
           of.article(one.articolo) + "to customer " + of.customer(one.cliente);
}

std::string in_words(const rec_bol& one, names& of) {
    return "number " + std::to_string(one.numero) + " of " + date_text_of_stored(one.data.full()) +
           " to customer " + of.customer(one.cliente) + ", text file b" +
           plain_text(static_cast<double>(one.progressivo)) +
           (one.senza_scarico == 1 ? ", nothing unloaded" : "");
}

std::string in_words(const rec_tot& one, names&) {
    return std::to_string(one.quanti) + " in use, last number " +
           std::to_string(one.ultimo_numero) + ", running number " +
           plain_text(static_cast<double>(one.progressivo));
}

template <class Head>
std::string head_in_words(const Head& head, names& of) {
    return "number " + words_of(head.numero.full()) + " of " +
           date_text_of_stored(head.data.full()) + ", customer " + of.customer(head.cliente) +
           ", " + words_of(head.testo1.full());
}

std::string in_words(const rec_orc& head, names& of) {
    return head_in_words(head, of) + ", " + state_of(head);
}

std::string in_words(const rec_prv& head, names& of) {
    return head_in_words(head, of) + (head.annullato != 0 ? ", deleted" : "");
}

std::string line_in_words(const rec_orc& row, names& of) {
    return of.article(row.articolo) + words_of(description_of(row)) + ": " +
           plain_text(row.quantita) + " " + words_of(row.um.full()) + " at " +
           plain_text(row.prezzo) + ", fulfilled " + plain_text(row.evaso);
}

struct output {
    std::ostream& out;
    bool json;
    names of;
    ordered_json list = ordered_json::array();

    template <class Record>
    void add(std::int64_t number, const Record& one) {
        if (json) {
            ordered_json object{{"record", number}};
            object.update(all_fields(one));
            list.push_back(std::move(object));
        } else {
            out << number << ": " << in_words(one, of) << '\n';
        }
    }
};

template <class Record>
bool show_records(const channel<Record>& from, std::int16_t count, int wanted, output& into) {
    if (wanted > count) return false;
    if (wanted > 0) {
        Record one;
        if (!from.read(wanted, one)) return false;
        into.add(wanted, one);
        return true;
    }
    scan(from, count, [&](std::int64_t number, const Record& one) { into.add(number, one); });
    return true;
}

/// Of a block its first row is the head.
template <class Row>
bool show_heads(const channel<Row>& from, std::int16_t count, output& into) {
    for (int number = 1; number <= count; ++number) {
        Row head;
        if (from.read(block_record(number, 1), head)) into.add(number, head);
    }
    return true;
}

bool show_order(company_files& company, int number, output& into) {
    std::vector<rec_orc> rows(righe_blocco);
    const auto& orders = company.records().orc;
    if (number > company.count(contatori::ordini)) return false;
    if (!orders.read_block(block_record(number, 1), rows)) return false;
    if (!into.json) into.out << number << ": " << in_words(rows[0], into.of) << '\n';
    for (std::size_t row = 0; row < rows.size(); ++row) {
        if (into.json) {
            into.add(block_record(number, static_cast<std::int64_t>(row) + 1), rows[row]);
        } else if (is_used(rows[row])) {
            into.out << "  " << row + 1 << ": " << line_in_words(rows[row], into.of) << '\n';
        }
    }
    return true;
}

bool show_into(company_files& company, const show_request& request, output& into) {
    using enum show_request::kind;
    archivi& files = company.records();
    switch (request.what) {
        case orders:
            if (request.number > 0) return show_order(company, request.number, into);
            return show_heads(files.orc, company.count(contatori::ordini), into);
        case quotes:
            return show_heads(files.prv, company.count(contatori::preventivi), into);
        case customers:
            return show_records(files.cli, company.count(contatori::clienti), request.number, into);
        case articles:
            return show_records(files.art, company.count(contatori::articoli), request.number,
                                into);
        case movements:
            return show_records(files.mag, company.count(contatori::magazzino), request.number,
                                into);
        case documents:
            return show_records(files.bol, company.count(contatori::documenti_trasporto),
                                request.number, into);
        case counters:
            return show_records(files.tot, contatori::preventivi, request.number, into);
    }
    return false;
}

}  // namespace

bool show(company_files& company, const show_request& request, std::ostream& out) {
    output into{out, request.json, names(company)};
    if (!show_into(company, request, into)) return false;
    if (request.json) out << into.list.dump(2) << '\n';
    return true;
}

}  // namespace vantora::archive
