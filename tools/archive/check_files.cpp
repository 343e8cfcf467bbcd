#include <cmath>

#include "archive/check.h"
#include "store/suite_paths.h"

namespace vantora::archive {

namespace {

struct counted_file {
    const char* extension;
    std::int64_t record_length;
    int counter;             ///< record of the counters; 0: counted by nothing
    std::int64_t per_count;  ///< records that one of the count stands for
    bool may_be_short;       ///< what lies behind the end counts as nothing
};

constexpr counted_file counted_files[] = {
    {"cli", sizeof(rec_cli), contatori::clienti, 1, false},
    {"src", sizeof(rec_src), contatori::clienti, 1, false},
    {"art", sizeof(rec_art), contatori::articoli, 1, false},
    {"sra", sizeof(rec_sra), contatori::articoli, 1, false},
    {"srb", sizeof(rec_srb), contatori::articoli, 1, false},
    {"orc", sizeof(rec_orc), contatori::ordini, righe_blocco, false},
    {"prv", sizeof(rec_prv), contatori::preventivi, righe_blocco, false},
    {"mag", sizeof(rec_mag), contatori::magazzino, 1, false},
    {"bol", sizeof(rec_bol), contatori::documenti_trasporto, 1, false},
    {"prx", sizeof(rec_prx), 0, 1, true},
    {"tot", sizeof(rec_tot), 0, 1, true},
};

std::string named(const char* extension) {
    return std::string("vantora.") + extension;
}

void check_length(const counted_file& file, company_files& company, findings& into) {
    const auto length = company.length_of(file.extension);
    if (!length) {
        into.push_back({gravity::error, named(file.extension), "the file isn't there",
                        "Put it back from a copy; the programs take it as empty."});
        return;
    }
    if (!company.files().open_records(file_azienda(company.numero_azienda(), file.extension))) {
        into.push_back({gravity::error, named(file.extension), "the file can't be opened",
                        "Give the programs the right to read it; they take it as empty."});
        return;
    }
    if (const auto rest = *length % file.record_length; rest != 0) {
        into.push_back({gravity::error, named(file.extension),
                        "its length isn't a whole number of records: " + std::to_string(rest) +
                            " bytes too many",
                        "A write was cut short, or something else was appended; compare the last "
                        "record with a copy."});
    }
    if (file.counter == 0) return;
    const std::int64_t wanted = company.count(file.counter) * file.per_count * file.record_length;
    if (*length >= wanted || file.may_be_short) return;
    into.push_back({gravity::error, named(file.extension),
                    "the counter says " + std::to_string(wanted / file.record_length) +
                        " records, the file holds " + std::to_string(*length / file.record_length),
                    "What is missing reads as empty; put the file back from a copy."});
}

struct named_counter {
    int record;
    const char* of;
};

constexpr named_counter named_counters[] = {
    {contatori::clienti, "customers"},
    {contatori::articoli, "articles"},
    {contatori::magazzino, "warehouse movements"},
    {contatori::documenti_trasporto, "transport documents"},
    {contatori::ordini, "orders"},
    {contatori::preventivi, "quotes"},
};

void check_counter(const named_counter& one, const company_files& company, findings& into) {
    constexpr int nearly_full = 32767 - 1000;
    const std::string where = "vantora.tot, record " + std::to_string(one.record);
    const rec_tot counter = company.counter(one.record);
    if (counter.quanti < 0) {
        into.push_back({gravity::error, where,
                        std::string("the count of ") + one.of + " is negative (" +
                            std::to_string(counter.quanti) + ")",
                        "Nothing is listed and nothing more is saved; put the file back from a "
                        "copy."});
    } else if (counter.quanti > nearly_full) {
        const int left = 32767 - counter.quanti;
        into.push_back({gravity::warning, where,
                        "there is room for " + std::to_string(left) + " more " + one.of,
                        one.record == contatori::ordini
                            ? "Compact the archive of the orders."
                            : "Start a new archive before it is full."});
    }
    const bool numbered =
        one.record == contatori::ordini || one.record == contatori::documenti_trasporto;
    if (numbered && counter.ultimo_numero > nearly_full) {
        into.push_back({gravity::warning, where,
                        "the last number of the " + std::string(one.of) + " is " +
                            std::to_string(counter.ultimo_numero) + " of at most 32767",
                        "Type a lower number into the next one."});
    }
}

}  // namespace

void check_files(company_files& company, findings& into) {
    for (const counted_file& file : counted_files) check_length(file, company, into);
    for (const named_counter& one : named_counters) check_counter(one, company, into);
    const float running = company.counter(contatori::documenti_trasporto).progressivo;
    if (!std::isfinite(running) || running < 0) {
        into.push_back({gravity::error, "vantora.tot, record 12",
                        "the running number of the transport documents is no number",
                        "Set it right from a copy before the next transport document."});
    } else if (running >= 16777216.0F) {
        into.push_back({gravity::warning, "vantora.tot, record 12",
                        "the running number of the transport documents can't rise any further",
                        "Every new document writes over the same text file."});
    }
}

}  // namespace vantora::archive
