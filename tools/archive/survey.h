#pragma once

#include <functional>
#include <string>
#include <vector>

#include "archive/finding.h"
#include "archive/key_indexes.h"
#include "archive/open_quantities.h"

namespace vantora::archive {

/// Why something can't be built on, in words; empty: it can be.
struct doubts {
    std::string customers;
    std::string articles;
    std::string orders;
    std::string orders_but_for_twins;
    std::string quotes;
    std::string movements;
    std::string documents;
};

/// A file of records.
struct record_file {
    const char* extension;
    std::int64_t record_length;
    std::string doubts::*depends;  ///< what can't be built on without it; null: nothing
    int counter = 0;               ///< record of the counters; 0: counted by nothing
    std::int64_t per_count = 1;    ///< records that one of the count stands for

    [[nodiscard]] std::string name() const { return std::string("vantora.") + extension; }
    [[nodiscard]] bool is_index() const { return !depends && counter > 0; }
};

inline constexpr record_file record_files[] = {
    {"cli", sizeof(rec_cli), &doubts::customers, contatori::clienti},
    {"src", sizeof(rec_src), nullptr, contatori::clienti},
    {"art", sizeof(rec_art), &doubts::articles, contatori::articoli},
    {"sra", sizeof(rec_sra), nullptr, contatori::articoli},
    {"srb", sizeof(rec_srb), nullptr, contatori::articoli},
    {"orc", sizeof(rec_orc), &doubts::orders, contatori::ordini, righe_blocco},
    {"prv", sizeof(rec_prv), &doubts::quotes, contatori::preventivi, righe_blocco},
    {"mag", sizeof(rec_mag), &doubts::movements, contatori::magazzino},
    {"bol", sizeof(rec_bol), &doubts::documents, contatori::documenti_trasporto},
    {"prx", sizeof(rec_prx), nullptr},
    {"tot", sizeof(rec_tot), nullptr},
};

/// A block of orders that is, byte for byte, an earlier one: a compaction was cut off.
struct twin {
    int registrazione = 0;
    int of = 0;
};

/// A counter that is wrong for certain, and what is right.
struct wrong_counter {
    int record = 0;
    int counted = 0;
    int right = 0;
};

/// Where a check is: of a file, so much of so much; all 0: at its beginning.
using progress = std::function<void(const std::string& file, int done, int all)>;

/// What one reading of a company tells of its counters, masters and orders. Checks and repairs
/// build on it; what can't be built on is named in `doubt`.
struct survey {
    explicit survey(company_files& company);

    std::vector<std::string> names;  ///< of what lies in the company's folder
    doubts doubt;
    masters known;
    std::array<key_index, 3> indexes;
    int orders_counted = 0;
    int orders_held = 0;  ///< whole blocks in the file
    std::vector<twin> twins;
    std::vector<wrong_counter> wrong_counters;
    std::vector<std::string> coming_back;  ///< orders that a right counter would show again
    open_quantities open;                  ///< of the counted orders
    findings all;
};

/// Files, counters, masters and orders of a company, causes before effects.
survey survey_company(company_files& company, const progress& tell = {});

// One subject each -------------------------------------------------------------------------------

/// What stands in the way of a file: "manca", "è una cartella, non un file"; empty if nothing does.
std::string obstacle_at(company_files& company, const std::string& path);

/// The record files and what stands in their places.
void survey_files(company_files& company, survey& into);
/// Each counter in itself, and those of customers, articles, movements, documents and quotes
/// against their files.
void survey_counters(company_files& company, survey& into);
/// The orders, block by block, and their counter, judged by what stands behind it.
void survey_orders(company_files& company, survey& into, const progress& tell);

/// So many records of an open file couldn't be read.
template <class Record>
bool tell_unread(const channel<Record>& file, int records, findings& into) {
    if (records == 0 || !file.is_open()) return false;
    into.push_back({gravity::error, "unreadable-records", file.name(),
                    std::to_string(records) + " registrazioni non si possono leggere",
                    "Controllare il disco; se non si rimedia, rimettere il file da una copia."});
    return true;
}

}  // namespace vantora::archive
