// What an order costs beyond the disk: saving 200 article lines, new or opened again, against the
// bare reads and writes of the same records; opening such an order; and composing a document of ten
// pages, against writing the same print file from memory.

#include <span>

#include "bench/measure.h"
#include "customer/mirorcm.h"
#include "demo/demo_company.h"
#include "documents/print_file.h"
#include "documents/printed_document.h"
#include "entry/mirorcz.h"
#include "entry/save_order.h"
#include "orders/totals.h"
#include "store/suite_paths.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

/// Passes a file's reads and writes on and doesn't wait for the disk, which takes its own time.
class unflushed_file final : public file {
 public:
    explicit unflushed_file(std::unique_ptr<file> real) : real_(std::move(real)) {}
    std::optional<std::size_t> read(std::int64_t offset, std::span<std::byte> into) override {
        return real_->read(offset, into);
    }
    bool write(std::int64_t offset, std::span<const std::byte> bytes) override {
        return real_->write(offset, bytes);
    }
    bool flush() override { return true; }

 private:
    std::unique_ptr<file> real_;
};

template <class Record>
channel<Record> unflushed(file_port& files, std::string_view extension) {
    return channel<Record>(
        std::make_unique<unflushed_file>(files.open_records(company_path(1, extension))));
}

righe_ordine full_order(const channel<rec_art>& articles) {
    righe_ordine lines;
    for (int number = 1; number <= righe_ordine::massimo; ++number) {
        rec_art article;
        articles.read(number, article);
        riga_ordine& line = lines[number];
        line.articolo = static_cast<std::int16_t>(number);
        line.codice = article.codice.full();
        line.descrizione = article.descrizione.full();
        line.um = article.um.full();
        line.iva = article.iva;
        line.quantita = 1 + number % 7;
        line.prezzo = article.prezzo1;
        line.sc1 = 10;
    }
    return lines;
}

void save_bench(program& app, const righe_ordine& lines, int rounds) {
    testata_registrata head;
    head.numero = "1";
    head.impegno = true;
    const auto save = [&] {
        rec_tot counter{};
        app.archives.tot.write(contatori::ordini, counter);
        salva_nuovo_ordine(app.archives, head, 0, lines, 300);
    };
    const auto bare = [&] {
        rec_art article;
        const rec_orc row{};
        for (int number = 1; number <= righe_blocco; ++number) {
            app.archives.art.read(number, article);
            app.archives.art.write(number, article);
            app.archives.orc.write(number, row);
        }
    };
    compare("save of 200 article lines", rounds, save, "bare reads and writes of its records",
            bare);
}

void edit_bench(program& app, const righe_ordine& lines, int rounds) {
    testata_registrata head;
    head.numero = "1";
    head.impegno = true;
    const auto save = [&] {
        rec_orc row;
        app.archives.orc.read(1, row);
        rec_tot counter;
        app.archives.tot.read(contatori::ordini, counter);
        salva_ordine(app.archives, {{1, row}, counter, 300, true}, head, false, lines);
    };
    const auto bare = [&] {
        rec_art article;
        rec_orc row;
        for (int number = 1; number <= righe_blocco; ++number) {
            app.archives.orc.read(number, row);
            for (int times = 0; times < 2; ++times) {
                app.archives.art.read(number, article);
                app.archives.art.write(number, article);
            }
            app.archives.orc.write(number, row);
        }
    };
    compare("save of 200 changed lines", rounds, save, "bare reads and writes of its records",
            bare);
}

void opening_bench(test::program_stage<>& bench, int rounds) {
    program& app = bench.app;
    bench.provide(app.mirorcz);
    bench.provide(app.mirorcm);
    app.selezione_1 = app.selezione_2 = std::int16_t{1};
    app.parameters.gnr.usa_barcode = std::int16_t{1};  // the list of articles is no part of it
    const auto bare = [&] {
        std::vector<rec_orc> rows(righe_blocco);
        app.archives.orc.read_block(1, rows);
        rec_art article;
        for (int number = 1; number <= righe_blocco; ++number) {
            app.archives.art.read(number, article);
        }
        app.mirorcz->VScroll1.set_value(100);  // paints the twelve rows
    };
    compare(
        "opening of 200 article lines", rounds, [&] { app.mirorcz->show(); },
        "reads of block and articles, one painting", bare,
        [&, fresh = false]() mutable {
            // The yardstick paints what the work left.
            fresh = !fresh;
            if (!fresh) return;
            app.mirorcz.use().unload();
            app.mirorcz.use();
        });
}

void document_bench(test::program_stage<>& bench, righe_ordine& lines, int rounds) {
    tabelle_documento tables;
    disegno background;
    carica_documento(tables, tipo_documento::ordine, bench.app.parameters, bench.files);
    carica_disegno(background, tipo_documento::ordine, 1, bench.files);
    // Twenty lines a page make ten pages.
    tables.tabella_layout[68].posizione = "100000";
    tables.tabella_layout[69].posizione = "180000";
    const valuta currency;
    const auto totals = calcola_totali(lines, tables.iva, currency);
    const testata_documento head;
    const rec_cli customer;
    ui::picture figure;
    std::size_t pages = 0;
    const auto compose = [&] {
        bench.front.answers.keep(ui::answer::yes);
        stampa_documento(bench.app, {tipo_documento::ordine, head, lines, totals.iva, customer,
                                     currency, tables, background, figure});
        pages = bench.paper.take_jobs().at(0).pages.size();
    };
    compose();
    const std::string whole = bench.files.read_whole(file_di_stampa).value_or("");
    const auto write_again = [&] {
        bench.files.create_instead(file_di_stampa)->write(0, std::as_bytes(std::span(whole)));
    };
    std::printf("%zu pages, %zu bytes of print file\n", pages, whole.size());
    compare("composition of a document", rounds, compose, "its print file from memory",
            write_again);
    tables.tabella_layout[99].posizione = "000000";
    compare("the same without its background", rounds, compose, "its print file from memory",
            write_again);
}

int run(int rounds) {
    test::program_stage bench;
    std::filesystem::remove_all(bench.folder.path() / "mirwin");
    demo::demo_request request;
    request.numero_azienda = 1;
    request.orders = 1;
    request.articles = 300;
    request.customers = 5;
    demo::make_company(request, bench.folder.path());
    archivi& files = bench.app.archives;
    files.art = unflushed<rec_art>(bench.files, "art");
    files.orc = unflushed<rec_orc>(bench.files, "orc");
    files.tot = unflushed<rec_tot>(bench.files, "tot");
    righe_ordine lines = full_order(files.art);
    save_bench(bench.app, lines, rounds);
    edit_bench(bench.app, lines, rounds);
    opening_bench(bench, rounds);
    document_bench(bench, lines, rounds);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::run(vantora::bench::is_quick(count, arguments) ? 3 : 31);
}
