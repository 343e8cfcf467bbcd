#include "demo/demo_company.h"

#include <algorithm>
#include <utility>

#include "demo/articles.h"
#include "demo/customers.h"
#include "demo/orders.h"
#include "demo/page.h"
#include "demo/tables.h"
#include "store/drive.h"
#include "store/records/rec_index.h"
#include "store/records/rec_tot.h"
#include "store/suite_paths.h"
#include "text/code_page.h"

namespace vantora::demo {

namespace {

constexpr int counter_records = 20;
constexpr int most_quotes = 200;

// The sorted indexes: ascending by the key in capitals, by the characters' codes; equal keys in the
// order of their records. Deleted customers and articles are in them too.

template <class Entry, class Master, class Key>
std::vector<Entry> index_by(const std::vector<Master>& masters, Key key) {
    std::vector<std::pair<std::string, Entry>> ranked;
    ranked.reserve(masters.size());
    for (const Master& one : masters) {
        Entry entry;
        entry.chiave = key(one);
        entry.numero = static_cast<std::int16_t>(ranked.size() + 1);
        ranked.emplace_back(upper(entry.chiave.full()), entry);
    }
    std::ranges::stable_sort(ranked, {}, &std::pair<std::string, Entry>::first);
    std::vector<Entry> index;
    index.reserve(ranked.size());
    for (const auto& [rank, entry] : ranked) index.push_back(entry);
    return index;
}

std::vector<rec_src> index_by_name(const std::vector<rec_cli>& customers) {
    return index_by<rec_src>(customers,
                             [](const rec_cli& one) { return one.intestazione1.full(); });
}

std::vector<rec_sra> index_by_code(const std::vector<article>& articles) {
    return index_by<rec_sra>(articles, [](const article& one) { return one.record.codice.full(); });
}

std::vector<rec_srb> index_by_bar_code(const std::vector<article>& articles) {
    return index_by<rec_srb>(articles,
                             [](const article& one) { return one.record.codice_barre.full(); });
}

void write_articles(folder_writer& into, const std::vector<article>& articles) {
    std::vector<rec_art> records;
    records.reserve(articles.size());
    for (const article& one : articles) records.push_back(stored(one));
    into.write_records("vantora.art", records);
    into.write_records("vantora.sra", index_by_code(articles));
    into.write_records("vantora.srb", index_by_bar_code(articles));

    auto texts = into.create_records<rec_prx>("vantora.prx");
    for (std::size_t i = 0; i < articles.size(); ++i) {
        if (articles[i].long_text.empty()) continue;
        const bool written =
            texts.write(static_cast<std::int64_t>(i + 1), stored_long_text(articles[i]));
        folder_writer::check_written(written, "vantora.prx");
    }
}

void write_counters(folder_writer& into, const demo_request& request, int quotes,
                    const deliveries& done) {
    const auto documents = static_cast<int>(done.documents.size());
    std::vector<rec_tot> counters(counter_records);
    const auto count = [&](int record, int records, int last_number) -> rec_tot& {
        rec_tot& one = counters[static_cast<std::size_t>(record - 1)];
        one.quanti = static_cast<std::int16_t>(records);
        one.ultimo_numero = static_cast<std::int16_t>(last_number);
        return one;
    };
    count(contatori::clienti, request.customers, 0);
    count(contatori::articoli, request.articles, 0);
    count(contatori::magazzino, static_cast<int>(done.movements.size()), 0).modificato =
        static_cast<std::int16_t>(done.movements.empty() ? 0 : 1);
    count(contatori::documenti_trasporto, documents, documents).progressivo =
        static_cast<float>(documents);
    count(contatori::ordini, request.orders, request.orders);
    count(contatori::preventivi, quotes, quotes);
    into.write_records("vantora.tot", counters);
}

void write_archives(folder_writer& into, const demo_request& request) {
    const auto customers = make_customers(request.customers, request.seed);
    auto articles = make_articles(request.articles, request.seed);
    const deliveries done = write_orders(into, request.orders, request.seed, customers, articles);
    const int quotes = customers.empty() ? 0 : std::min((request.orders + 9) / 10, most_quotes);
    write_quotes(into, quotes, request.seed, customers, articles);
    into.write_records("vantora.cli", customers);
    into.write_records("vantora.src", index_by_name(customers));
    write_articles(into, articles);
    into.write_records("vantora.mag", done.movements);
    into.write_records("vantora.bol", done.documents);
    write_counters(into, request, quotes, done);
}

void write_tables(folder_writer& into) {
    into.write_lines("vantora.int", heading_lines());
    into.write_lines("vantora.tab", suite_table_lines());
    into.write_lines("vantora.tb2", category_lines());
    into.write_lines("vantora.pdf", pdf_lines());
    into.write_records("vantora.gnr", std::vector{general_parameters()});
}

void write_pages(folder_writer& into, int numero_azienda) {
    const std::string logo = logo_bitmap();
    into.write_bytes("logo.bmp", std::as_bytes(std::span(logo)));
    const std::string logo_path = folder_of_company(numero_azienda) + "\\logo.bmp";
    into.write_lines("vantora.lyo", layout_lines(order_page));
    into.write_lines("vantora.lko", drawing_lines(order_page, logo_path));
    into.write_lines("vantora.lyb", layout_lines(transport_page));
    into.write_lines("vantora.lkb", drawing_lines(transport_page, logo_path));
}

void make_folder(file_port& files, std::string_view path) {
    if (files.create_folder(path)) return;
    throw demo_error("Impossibile creare la cartella " + std::string(path));
}

bool is_there(const drive& suite, std::string_view path) {
    return std::filesystem::exists(std::filesystem::symlink_status(suite.locate(path)));
}

void write_general_files(drive& suite) {
    folder_writer general(suite, "\\mirwin\\mirwin");
    const auto missing = [&](std::string_view extension) {
        return !is_there(suite, general_path(extension));
    };
    if (missing("eur")) general.write_lines("vantora.eur", currency_lines());
    if (missing("tbl")) general.write_lines("vantora.tbl", report_table_lines());
    if (missing("gnr")) general.write_records("vantora.gnr", std::vector{general_parameters()});
}

/// The company while it is written, beside the place where it will stand. Gone unless finished.
class unfinished_company {
 public:
    unfinished_company(drive& suite, int numero_azienda)
        : final_path_(suite.locate(folder_of_company(numero_azienda))),
          folder_(folder_of_company(numero_azienda) + ".parziale"),
          path_(suite.locate(folder_)) {
        std::filesystem::remove_all(path_);
        make_folder(suite, folder_);
    }
    unfinished_company(const unfinished_company&) = delete;
    unfinished_company& operator=(const unfinished_company&) = delete;
    ~unfinished_company() {
        std::error_code ignored;
        if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::string& folder() const { return folder_; }

    void finish() {
        std::filesystem::rename(path_, final_path_);
        path_.clear();
    }

 private:
    std::filesystem::path final_path_;
    std::string folder_;
    std::filesystem::path path_;
};

}  // namespace

void make_company(const demo_request& request, const std::filesystem::path& drive_root) {
    if (request.orders > 0 && request.customers == 0) {
        throw demo_error("Servono clienti per fare degli ordini");
    }
    drive suite(drive_root);
    const std::string company = folder_of_company(request.numero_azienda);
    try {
        if (is_there(suite, company)) {
            throw demo_error("L'azienda esiste già: " + suite.locate(company).string());
        }
        std::filesystem::create_directories(drive_root);
        for (const char* folder : {"\\mirwin", "\\mirwin\\mirwin", "\\mirwin\\PDF"}) {
            make_folder(suite, folder);
        }
        unfinished_company unfinished(suite, request.numero_azienda);
        folder_writer files(suite, unfinished.folder());
        write_tables(files);
        write_pages(files, request.numero_azienda);
        write_archives(files, request);
        write_general_files(suite);
        unfinished.finish();
    } catch (const std::filesystem::filesystem_error& refused) {
        throw demo_error(refused.what());
    }
}

}  // namespace vantora::demo
