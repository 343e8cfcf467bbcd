#pragma once

#include <sys/stat.h>

#include <cmath>
#include <limits>
#include <random>

#include "damaged.h"

namespace vantora::test {

using doing = std::function<void(const demo_folder&)>;

/// One kind of damage, and all that a check says of it, in order; what follows isn't said.
struct damage {
    const char* name;
    std::string_view found;  ///< kinds
    doing make;
};

inline constexpr double nan = std::numeric_limits<double>::quiet_NaN();
inline constexpr std::int16_t gone = 999;
inline constexpr std::int16_t i1 = 1, i2 = 2, i25 = 25, i101 = 101, minus = -1;

/// Where in the company a damage lies is a matter of chance.
inline std::mt19937 dice;
inline std::int64_t one_to(std::size_t count) {
    return static_cast<std::int64_t>(dice() % count) + 1;
}

inline std::size_t length_of(const demo_folder& c, const char* extension) {
    return std::filesystem::file_size(c.file(extension));
}

template <class Record, class Field, class Value>
doing any(const char* extension, Field Record::*field, Value value) {
    return [=](const demo_folder& c) {
        std::int64_t number = one_to(length_of(c, extension) / sizeof(Record));
        if constexpr (requires(Record one) { one.eliminato; }) {
            const auto all = records_of<Record>(c.file(extension));
            while (all[static_cast<std::size_t>(number) - 1].eliminato != 0) {
                number = one_to(all.size());
            }
        }
        wrong(extension, number, field, value)(c);
    };
}
inline doing count(int record, int says) {
    return wrong("tot", record, &rec_tot::quanti, static_cast<std::int16_t>(says));
}

inline std::int64_t open_block(const demo_folder& c) {
    const auto open = blocks_that_are(c, true);
    return open[dice() % open.size()];
}
/// Row 1 of an open order.
template <class Field, class Value>
doing line(Field rec_orc::*field, Value value) {
    return [=](const demo_folder& c) {
        wrong("orc", block_record(open_block(c), 1), field, value)(c);
    };
}
/// All rows of some block of a file.
template <class Row>
void whole(const demo_folder& c, const char* extension, std::int64_t block,
           const std::function<void(Row&)>& by) {
    auto rows = records_of<Row>(c.file(extension));
    const auto first = static_cast<std::size_t>(block - 1) * righe_blocco;
    for (std::size_t row = first; row < first + righe_blocco; ++row) by(rows[row]);
    put(c.file(extension), {reinterpret_cast<const char*>(rows.data()), rows.size() * sizeof(Row)});
}
template <class Field, class Value>
doing order(Field rec_orc::*field, Value value) {
    return [=](const demo_folder& c) {
        whole<rec_orc>(c, "orc", open_block(c), [&](rec_orc& row) { row.*field = value; });
    };
}
template <class Field, class Value>
doing quote(Field rec_prv::*field, Value value) {
    return [=](const demo_folder& c) {
        const auto block = one_to(length_of(c, "prv") / block_bytes);
        whole<rec_prv>(c, "prv", block, [&](rec_prv& row) { row.*field = value; });
    };
}
template <class Field, class Value>
doing quote_line(Field rec_prv::*field, Value value) {
    return [=](const demo_folder& c) {
        const auto block = one_to(length_of(c, "prv") / block_bytes);
        wrong("prv", block_record(block, 1), field, value)(c);
    };
}

inline doing missing(const char* extension) {
    return [=](const demo_folder& c) { std::filesystem::remove(c.file(extension)); };
}
inline doing holds(const char* extension, std::string bytes) {
    return [=](const demo_folder& c) { put(c.file(extension), bytes); };
}
/// Shorter by so many bytes, or longer.
inline doing cut(const char* extension, int bytes) {
    return [=](const demo_folder& c) {
        const auto length = static_cast<std::int64_t>(length_of(c, extension));
        std::filesystem::resize_file(c.file(extension),
                                     static_cast<std::uintmax_t>(length - bytes));
    };
}
/// Block 21 is some open order once more, then changed.
inline doing copied_behind(const std::function<void(rec_orc&)>& by, int counted = 20) {
    return [=](const demo_folder& c) {
        copy_block(c, static_cast<std::size_t>(open_block(c)), 21);
        whole<rec_orc>(c, "orc", 21, by);
        count(contatori::ordini, counted)(c);
    };
}
/// A line of a text file reads otherwise.
inline void rewrite(const std::filesystem::path& file, int number, const char* text) {
    std::string bytes = bytes_of(file);
    std::size_t at = 0;
    for (int line = 1; line < number; ++line) at = bytes.find("\r\n", at) + 2;
    bytes.replace(at, bytes.find("\r\n", at) - at, text);
    put(file, bytes);
}
inline doing says(const char* extension, int number, const char* text) {
    return [=](const demo_folder& c) { rewrite(c.file(extension), number, text); };
}

inline void save_unfinished(const demo_folder& c) {
    const auto last = blocks_that_are(c, true).back();
    std::filesystem::resize_file(c.file("orc"), static_cast<std::size_t>(last) * block_bytes);
    count(contatori::ordini, static_cast<int>(last) - 1)(c);
}
inline void fifo(const demo_folder& c) {
    std::filesystem::remove(c.file("mag"));
    ::mkfifo(c.file("mag").c_str(), 0600);
}
inline void bytes_lost(const demo_folder& c) {
    const std::string bytes = bytes_of(c.file("orc"));
    put(c.file("orc"),
        bytes.substr(0, 3 * block_bytes + 150) + bytes.substr(3 * block_bytes + 157));
}
inline void half_deleted(const demo_folder& c) {
    wrong("orc", block_record(open_block(c), 1) + 50, &rec_orc::annullato, std::int16_t{1})(c);
}
inline void mixed(const demo_folder& c) {
    wrong("orc", block_record(open_block(c), 1) + 150, &rec_orc::numero, "altro")(c);
}
inline void quote_doubled(const demo_folder& c) {
    std::string bytes = bytes_of(c.file("prv"));
    bytes.replace(block_bytes, block_bytes, bytes, 0, block_bytes);
    put(c.file("prv"), bytes);
}
inline void more_unloaded(const demo_folder& c, double by) {
    change<rec_art>(c, "art", one_to(30), [&](rec_art& a) { a.scaricato = a.scaricato + by; });
}
/// Deleted is what an open order is for.
template <class Record>
doing deleted(const char* extension, i16le rec_orc::*of) {
    return [=](const demo_folder& c) {
        const auto row = static_cast<std::size_t>(block_record(open_block(c), 1));
        const std::int16_t number = records_of<rec_orc>(c.file("orc"))[row - 1].*of;
        wrong(extension, number, &Record::eliminato, i1)(c);
    };
}

inline const damage damages[] = {
    // Counters and files
    {"an order and a part missing", "file-short", cut("orc", 57000)},
    {"bytes behind the orders", "file-cut", cut("orc", -5)},
    {"orders counted too low", "counter-low", count(contatori::ordini, 8)},
    {"orders counted too high", "counter-high", count(contatori::ordini, 30)},
    {"orders counted below 0", "counter-negative", count(contatori::ordini, -1)},
    {"an unfinished save", "save-unfinished", save_unfinished},
    {"a copy behind the counter", "", copied_behind([](auto&) {})},
    {"customers counted too low", "counter-wrong", count(contatori::clienti, 9)},
    {"quotes counted too low", "quotes-behind", count(contatori::preventivi, 0)},
    {"movements counted too high", "file-short", count(contatori::magazzino, 30000)},
    {"movements behind", "records-behind", cut("mag", -2 * int{sizeof(rec_mag)})},
    {"numbers nearly used", "numbers-nearly-used",
     wrong("tot", 14, &rec_tot::ultimo_numero, std::int16_t{32500})},
    {"running number stands", "running-number", wrong("tot", 12, &rec_tot::progressivo, 2e7F)},
    {"last order", "last-number-low", wrong("tot", 14, &rec_tot::ultimo_numero, i2)},
    {"last document", "last-document-low", wrong("tot", 12, &rec_tot::ultimo_numero, i2)},
    {"no counters", "counters-empty", holds("tot", "")},
    {"few counters", "counters-short", holds("tot", std::string(100, '\0'))},
    {"a pipe for a file", "file-missing", fifo},
    {"two spellings", "two-spellings",
     [](auto& c) { put(c.file("orc").replace_filename("VANTORA.Orc"), ""); }},
    {"a repair interrupted", "repair-unfinished", holds("riparazione-counters", "")},
    // Orders as a whole
    {"an order doubled", "order-doubled", copied_behind([](auto&) {}, 21)},
    {"an order twice with a difference", "order-twice-changed order-number-twice",
     copied_behind([](auto& row) { row.prezzo = 7; }, 21)},
    {"an order lost", "order-lost",
     [](auto& c) { whole<rec_orc>(c, "orc", open_block(c), [](auto& row) { row = {}; }); }},
    {"an order mixed", "order-mixed", mixed},
    {"an order half deleted", "order-half-deleted", half_deleted},
    {"bytes lost in the middle", "file-short orders-shifted", bytes_lost},
    {"order of no customer", "order-no-customer", order(&rec_orc::cliente, gone)},
    {"order of no date", "order-date", order(&rec_orc::data, "20230230")},
    {"text of an order", "order-text", line(&rec_orc::testo1, "\x1B[2J")},
    {"mark of commitment", "order-mark", order(&rec_orc::impegno, "x")},
    {"order of a deleted customer", "order-of-deleted-customer",
     deleted<rec_cli>("cli", &rec_orc::cliente)},
    {"order of a deleted article", "line-of-deleted-article",
     deleted<rec_art>("art", &rec_orc::articolo)},
    // Lines
    {"line of no article", "line-no-article", line(&rec_orc::articolo, gone)},
    {"no quantity", "line-no-number", line(&rec_orc::quantita, nan)},
    {"quantity beyond reason", "line-absurd", line(&rec_orc::quantita, 1e300)},
    {"more fulfilled than ordered", "line-fulfilled-beyond ordered-quantity-odd",
     line(&rec_orc::evaso, 5000.0)},
    {"fulfilled below 0", "line-fulfilled-backwards ordered-quantity-odd",
     line(&rec_orc::evaso, -3.0)},
    {"no VAT code", "line-vat-code", line(&rec_orc::iva, i25)},
    {"discount", "line-discount", line(&rec_orc::sc2, i101)},
    {"a terminal's command", "line-text", line(&rec_orc::descrizione, "\x1B[2J")},
    // Quotes
    {"a quote doubled", "quote-doubled", quote_doubled},
    {"a quote lost", "quote-lost",
     [](auto& c) { whole<rec_prv>(c, "prv", 2, [](auto& row) { row = {}; }); }},
    {"a quote mixed", "quote-mixed", quote_line(&rec_prv::numero, "77")},
    {"quote of no customer", "quote-no-customer", quote(&rec_prv::cliente, gone)},
    {"quote of no date", "quote-date", quote(&rec_prv::data, "20240230")},
    {"quoted article", "quote-line-no-article", quote_line(&rec_prv::articolo, gone)},
    {"quoted text", "quote-line-text", quote_line(&rec_prv::um, "\x01")},
    // Articles and customers
    {"ordered", "ordered-quantity", any("art", &rec_art::ordinato_clienti, 1e6)},
    {"committed too much", "committed-too-high", any("art", &rec_art::impegnato, 1e6)},
    {"committed below 0", "committed-negative", any("art", &rec_art::impegnato, -1.0)},
    {"stock is no number", "figure-no-number", any("art", &rec_art::giacenza, nan)},
    {"stock beyond reason", "figure-absurd", any("art", &rec_art::giacenza, -1e13)},
    {"unloaded without movement", "movement-missing", [](auto& c) { more_unloaded(c, 1); }},
    {"moved without unloading", "movement-too-many", [](auto& c) { more_unloaded(c, -1); }},
    {"VAT code of an article", "article-vat-code", any("art", &rec_art::iva, i25)},
    {"text of an article", "article-text", any("art", &rec_art::um, "\x07")},
    {"a code lost", "article-without-code", any("art", &rec_art::codice, "")},
    {"a name lost", "customer-nameless", any("cli", &rec_cli::intestazione1, "")},
    {"text of a customer", "customer-text", any("cli", &rec_cli::citta, "\x9D")},
    {"discount of a customer", "customer-discount", any("cli", &rec_cli::sconto1, i101)},
    {"VAT code of a customer", "customer-vat-code", any("cli", &rec_cli::iva_cliente, minus)},
    {"index out of order", "index-order index-other-key", wrong("sra", 5, &rec_sra::chiave, "!")},
    {"index leads nowhere", "index-nowhere index-missing", any("src", &rec_src::numero, gone)},
    {"index too short", "index-short", cut("srb", int{sizeof(rec_srb)})},
    // Movements and documents
    {"movement of no article", "movement-no-article", any("mag", &rec_mag::articolo, gone)},
    {"movement of no customer", "movement-no-customer", any("mag", &rec_mag::cliente, gone)},
    {"movement of no date", "movement-date", any("mag", &rec_mag::data, "")},
    {"movement of no quantity", "movement-no-number", any("mag", &rec_mag::quantita, nan)},
    {"document of no customer", "document-no-customer", any("bol", &rec_bol::cliente, gone)},
    {"document of no date", "document-date", any("bol", &rec_bol::data, "20240230")},
    {"document of no number", "document-number", any("bol", &rec_bol::numero, std::int16_t{0})},
    {"number twice", "document-number-twice", wrong("bol", 4, &rec_bol::numero, std::int16_t{3})},
    {"a b file beyond", "text-files-beyond",
     [](auto& c) { put(c.file("orc").replace_filename("b30000"), ""); }},
    {"a b file lost", "document-text-missing",
     [](auto& c) { std::filesystem::remove(c.file("orc").replace_filename("b2")); }},
    {"article of a b file", "document-no-article",
     [](auto& c) { rewrite(c.file("orc").replace_filename("b3"), 11, "999"); }},
    // Tables
    {"layout too short", "table-short", [](auto& c) { cut("lyo", 1000)(c); }},
    {"layout that says nothing", "layout-value", says("lyb", 7, "qui")},
    {"drawing", "drawing", says("lko", 1, "tanti")},
    {"rate", "vat-rate", says("tab", 1, "x")},
    {"no parameters", "table-missing", missing("gnr")},
    {"parameters cut", "parameters-short", cut("gnr", 10)},
};

}  // namespace vantora::test
