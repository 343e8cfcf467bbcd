#include "archive/show.h"

#include <nlohmann/json.hpp>
#include <ostream>

#include "archive/csv_text.h"
#include "archive/show_words.h"
#include "archive/table_writer.h"

namespace vantora::archive {

namespace {

using nlohmann::ordered_json;

ordered_json json_of(const any_record& one, const record_field& field) {
    auto list = ordered_json::array();
    for (std::size_t which = 0; which < field.values; ++which) {
        std::visit([&list](const auto& cell) { list.push_back(cell); },
                   plain_cell(one, field, which));
    }
    return field.values > 1 ? list : list[0];
}

/// The key of a field; those that only other programs use have names that say so.
std::string key_of(const record_field& field) {
    if (field.english) return field.english;
    constexpr std::pair<std::string_view, const char*> heads[] = {{"riservato", "reserved"},
                                                                  {"testo", "text"},
                                                                  {"descrizione", "description"},
                                                                  {"vuoto", "blank"},
                                                                  {"uno", "one"}};
    for (const auto& [italian, english] : heads) {
        if (!field.name.starts_with(italian)) continue;
        return english + std::string(field.name.substr(italian.size()));
    }
    return std::string(field.name);
}

/// Every field by its name; no number at all comes as null.
ordered_json all_fields(std::int64_t number, const any_record& one) {
    ordered_json object{{"record", number}};
    for (const record_field& field : one.fields) object[key_of(field)] = json_of(one, field);
    return object;
}

/// Every field of a record that has something to say, one a line.
void write_fields(const any_record& one, std::ostream& out) {
    for (const record_field& field : one.fields) {
        if (field.values > 1 || is_empty(one, field)) continue;
        const cell_value cell = meant_cell(one, field, {32767, 32767});
        out << "  " << (field.column ? field.column : field.name) << ": ";
        const auto* text = std::get_if<std::string>(&cell);
        const bool day = field.means == meaning::date || field.means == meaning::day;
        if (text) out << (day ? italian_date(*text) : *text) << '\n';
        if (const auto* whole = std::get_if<std::int64_t>(&cell)) out << *whole << '\n';
        if (const auto* number = std::get_if<double>(&cell)) out << figure(*number) << '\n';
    }
}

/// Whether a record is the one that people call so.
template <class Record>
bool is_called(const Record& one, const std::string& name) {
    if constexpr (std::is_same_v<Record, rec_bol>) {
        return std::to_string(one.numero) == name;
    } else if constexpr (std::is_same_v<Record, rec_art>) {
        return upper(cell_text(one.codice.full())) == upper(name);
    } else if constexpr (requires { one.numero; }) {
        return upper(cell_text(one.numero.full())) == upper(name);
    } else {
        return false;
    }
}

class shower {
 public:
    shower(company_files& company, const show_request& request, std::ostream& out)
        : request_(request), out_(out), words_(company) {}

    template <class Record>
    bool records(const channel<Record>& from, int count) {
        int found = 0;
        const auto show = [&](std::int64_t number, const Record& one) {
            ++found;
            if (request_.json) {
                list_.push_back(all_fields(number, one));
            } else {
                out_ << words_.line(number, one) << '\n';
                if (!request_.wanted.empty()) write_fields(one, out_);
            }
        };
        const auto pass = [&](auto take) {
            return scan(from, count, [&](std::int64_t number, const Record& one) {
                       if (take(number, one)) show(number, one);
                   }) == 0;
        };
        if (request_.wanted.empty()) return pass([](auto...) { return true; }) && finish(1);
        if (!request_.by_record &&
            !pass([&](auto, const Record& one) { return is_called(one, request_.wanted); })) {
            return false;
        }
        const auto by_number = [&](std::int64_t number, const Record&) {
            return std::to_string(number) == request_.wanted;
        };
        return (found > 0 || pass(by_number)) && finish(found);
    }

    template <class Row>
    bool blocks(const channel<Row>& from, int count) {
        int found = 0;
        const int unread = scan_blocks(from, count, [&](int block, std::span<const Row> rows) {
            if (!wants(block, rows[0])) return;
            ++found;
            if (!request_.json) {
                out_ << (request_.wanted.empty() ? words_.line(block, rows[0]) + "\n"
                                                 : words_.whole(block, rows));
                return;
            }
            const std::size_t shown = request_.wanted.empty() ? 1 : rows.size();
            for (std::size_t row = 0; row < shown; ++row) {
                const auto number = block_record(block, static_cast<std::int64_t>(row) + 1);
                list_.push_back(all_fields(request_.wanted.empty() ? block : number, rows[row]));
            }
        });
        return unread == 0 && finish(request_.wanted.empty() ? 1 : found);
    }

 private:
    template <class Row>
    [[nodiscard]] bool wants(int block, const Row& head) const {
        if (request_.wanted.empty()) return true;
        return request_.by_record ? std::to_string(block) == request_.wanted
                                  : is_called(head, request_.wanted);
    }

    bool finish(int found) {
        if (found == 0) return false;
        if (request_.json) {
            out_ << list_.dump(2, ' ', false, ordered_json::error_handler_t::replace) << '\n';
        }
        return true;
    }

    const show_request& request_;
    std::ostream& out_;
    show_words words_;
    ordered_json list_ = ordered_json::array();
};

}  // namespace

bool show(company_files& company, const show_request& request, std::ostream& out) {
    using enum show_request::kind;
    archivi& files = company.records();
    shower all(company, request, out);
    switch (request.what) {
        case orders:
            return all.blocks(files.orc, company.count(contatori::ordini));
        case quotes:
            return all.blocks(files.prv, company.count(contatori::preventivi));
        case customers:
            return all.records(files.cli, company.count(contatori::clienti));
        case articles:
            return all.records(files.art, company.count(contatori::articoli));
        case movements:
            return all.records(files.mag, company.count(contatori::magazzino));
        case documents:
            return all.records(files.bol, company.count(contatori::documenti_trasporto));
        case counters:
            return all.records(files.tot, contatori::preventivi);
    }
    return false;
}

}  // namespace vantora::archive
