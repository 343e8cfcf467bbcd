// How long the customer screens take over an archive filled to its limits: the build of the pick
// list, a search, a step of the cursor, each against bare positioned reads of the same records.

#include <memory>
#include <random>
#include <string>

#include "bench/full_archive.h"
#include "bench/measure.h"
#include "customer/mirorcx.h"
#include "customer/mirsel.h"
#include "support/program_stage.h"

namespace vantora::bench {
namespace {

/// Closes the pick list as soon as it stands.
class hasty_user final : public ui::front_end {
 public:
    std::function<void()> leave;

    void run_until(const std::function<bool()>& done) override {
        while (!done()) leave();
    }
    void let_events_run() override {}
};

int run(int customers, int rounds) {
    test::program_stage<hasty_user> bench;
    program& app = bench.app;
    hasty_user& user = bench.front;
    app.parameters.gnr.righe_alternate = "1";
    bench.provide(app.mirorcx);
    bench.provide(app.mirsel);
    apri_archivi(app.archives, bench.files, 1);
    fill_archive(app.archives, {.customers = customers});
    app.mirorcx->show();
    std::printf("%d customers\n", customers);

    rec_src entry;
    rec_cli customer;
    const auto read_one = [&](int position) {
        app.archives.src.read(position, entry);
        app.archives.cli.read(entry.numero, customer);
    };
    const auto read_all = [&] {
        for (int position = 1; position <= customers; ++position) read_one(position);
    };

    user.leave = [&app] { app.mirsel->indice.click(); };
    const auto open_list = [&](const char* part) {
        app.mirorcx->nome.set_text(part);
        app.mirorcx->b_lista.click();
    };
    compare(
        "pick list of all customers", rounds, [&] { open_list(""); },
        "one read for each entry and its customer", read_all);
    compare(
        "pick list of a tenth of them", rounds, [&] { open_list("7 s.r"); },
        "one read for each entry and its customer", read_all);

    const int searches = std::min(customers, 1000);
    const auto ranks = [&](const std::function<void(int)>& visit) {
        std::mt19937 random(2);
        for (int i = 0; i < searches; ++i) {
            visit(static_cast<int>(random() % static_cast<unsigned>(customers)) + 1);
        }
    };
    const auto search_all = [&] {
        ranks([&](int rank) {
            app.mirorcx->nome.set_text(customer_name(rank));
            app.mirorcx->b_cerca.click();
        });
    };
    const auto probe_all = [&] {
        ranks([&](int rank) {
            for (int i = 0; i < 15; ++i) app.archives.src.read(rank, entry);
            read_one(rank);
        });
    };
    compare("1000 searches by name", rounds, search_all, "16 entries and one customer each",
            probe_all);

    const auto walk = [&] {
        for (int position = customers; position >= 1; --position) {
            app.mirorcx->HScroll1.drag(position);
        }
        app.mirorcx->HScroll1.drag(customers);
    };
    compare("cursor over every customer", rounds, walk, "one read for each entry and its customer",
            read_all);
    return 0;
}

}  // namespace
}  // namespace vantora::bench

int main(int count, char** arguments) {
    return vantora::bench::is_quick(count, arguments) ? vantora::bench::run(200, 3)
                                                      : vantora::bench::run(32767, 9);
}
