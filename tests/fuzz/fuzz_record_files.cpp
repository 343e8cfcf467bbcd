// Whatever bytes stand in the record files, the register opens, sorts and compacts, the customer
// screens show and list what there is, and the searches end.

#include <cstdlib>
#include <cstring>
#include <fstream>

#include "app/start.h"
#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "fuzz/fuzz_driver.h"
#include "register/mirorc.h"
#include "store/key_index.h"
#include "support/program_stage.h"

namespace {

using namespace vantora;

constexpr std::size_t counters_size = 17 * sizeof(rec_tot);
constexpr std::size_t orders_size = 3 * righe_blocco * sizeof(rec_orc);

/// The input as counters, orders, and for the rest customers and their index.
void write_files(const std::filesystem::path& company, const std::string& input) {
    const auto part = [&](const char* name, std::size_t begin, std::size_t size) {
        std::ofstream out(company / name, std::ios::binary);
        if (begin < input.size()) out << input.substr(begin, size);
    };
    part("vantora.tot", 0, counters_size);
    part("vantora.orc", counters_size, orders_size);
    part("vantora.cli", counters_size + orders_size, std::string::npos);
    part("vantora.src", counters_size + orders_size, std::string::npos);
    part("vantora.gnr", 0, 346);
}

void require(bool holds) {
    if (!holds) std::abort();
}

void use_customers(program& app) {
    ui::desk& desk = app.desk;
    desk.dispatch([&] { app.mirorcx->show(); });
    auto& screen = *app.mirorcx;
    const int ends[] = {screen.HScroll1.minimum(), screen.HScroll1.maximum(), 1, 2, 3};
    for (const int to : ends) desk.dispatch([&] { screen.HScroll1.drag(to); });
    for (const char* name : {"", "R", "\xFF"}) {
        desk.queue_answer(ui::answer::ok);
        screen.nome.set_text(name);
        desk.dispatch([&] { screen.b_cerca.click(); });
    }
    desk.dispatch([&] { screen.b_lista.click(); });
    require(app.mirsel->elenco.rows() >= 26 && app.mirsel->elenco.rows() <= 31999);
    for (auto& button : app.mirsel->srx) desk.dispatch([&] { button.click(); });
    desk.queue_answer(ui::answer::ok);
    desk.dispatch([&] { app.mirsel->elenco.click_cell(1, 0); });
}

}  // namespace

std::vector<std::string> fuzz_seeds() {
    std::vector<std::string> seeds;
    for (const int orders : {3, 1000, -1, 0}) {
        std::vector<rec_tot> counters(17);
        counters[contatori::ordini - 1].quanti = static_cast<std::int16_t>(orders);
        counters[contatori::clienti - 1].quanti = 2;
        std::vector<rec_orc> rows(3 * righe_blocco);
        rows[200].annullato = 1;
        for (auto& row : rows) row.cliente = 1;
        std::vector<rec_cli> customers(2);
        customers[0].intestazione1 = "ROSSI";
        std::string seed(reinterpret_cast<const char*>(counters.data()), counters_size);
        seed.append(reinterpret_cast<const char*>(rows.data()), orders_size);
        seed.append(reinterpret_cast<const char*>(customers.data()), 2 * sizeof(rec_cli));
        seeds.push_back(seed);
    }
    seeds.emplace_back();
    return seeds;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::program_stage stage;
    program& app = stage.app;
    ui::desk& desk = stage.desk;
    write_files(stage.company(), std::string(reinterpret_cast<const char*>(data), size));
    desk.dispatch([&] { start(app, "ordini001"); });
    require(!desk.ended().has_value());

    ui::grid& list = app.mirorc->elenco;
    require(list.rows() >= 26 && list.rows() <= 31999);
    for (auto& button : app.mirorc->srx) desk.dispatch([&] { button.click(); });
    desk.queue_answer(ui::answer::yes);
    desk.queue_answer(ui::answer::yes);
    rec_tot counter;
    app.archives.tot.read(contatori::ordini, counter);
    // A count far beyond the file only costs time here.
    if (counter.quanti < 50) desk.dispatch([&] { app.mirorc->srtt[0].click(); });
    app.archives.tot.read(contatori::clienti, counter);
    for (const char* name : {"", "R", "\xFF"}) {
        const int found = cerca_nominativo(app.archives.src, counter.quanti, name);
        require(found >= 0 && found <= 32767);
    }
    use_customers(app);
    require(!desk.ended().has_value());
    return 0;
}
