// Whatever bytes stand in the files of articles, bar codes, long texts and customers, an order can
// be entered: the line screen works on, or ends with an error that it names.

#include <cmath>
#include <cstdlib>
#include <fstream>

#include "entry/mirorcs.h"
#include "fuzz/fuzz_driver.h"
#include "support/program_stage.h"

namespace {

using namespace vantora;

constexpr int articles = 25;
constexpr std::pair<const char*, std::size_t> files_in_input[] = {
    {"vantora.tot", 3 * sizeof(rec_tot)},        {"vantora.cli", sizeof(rec_cli)},
    {"vantora.art", articles * sizeof(rec_art)}, {"vantora.srb", articles * sizeof(rec_srb)},
    {"vantora.prx", articles * sizeof(rec_prx)},
};

template <class Record>
void append(std::string& to, const std::vector<Record>& records) {
    to.append(reinterpret_cast<const char*>(records.data()), records.size() * sizeof(Record));
}

void require(bool holds) {
    if (!holds) std::abort();
}

void type(ui::text_box& cell, std::string_view text) {
    cell.set_focus();
    for (const char character : text) {
        cell.press_key(static_cast<unsigned char>(character), character);
    }
    cell.press_key(ui::key::enter, static_cast<char>(ui::key::enter));
}

void walk_cells(mirorcs& screen, int row) {
    for (ui::text_box* cell :
         {&screen.artic[row], &screen.um[row], &screen.quantita[row], &screen.sc1[row],
          &screen.sc2[row], &screen.prezzo[row], &screen.civ[row]}) {
        cell->set_focus();
    }
    screen.Combo1.pick(row % 24);
}

/// What a user does in the screen, one action after the other.
void enter_lines(mirorcs& screen, int line) {
    screen.command3d3.click();
    screen.VScroll1.drag(line);
    type(screen.quantita[0], "2.5");
    for (int row = 0; row < mirorcs::rows; ++row) {
        if (row < screen.lookup().List1.count()) {
            screen.um[row].set_focus();
            screen.lookup().List1.pick(row);
        }
        type(screen.artic[row], "A" + std::to_string(row));
        walk_cells(screen, row);
    }
    screen.ds[1].set_focus();
    screen.ds[1].press_key(ui::key::f1, {});
    screen.lookup().barcode.toggle();
    for (const char* code : {"800", "8003", "\xFF", "8024"}) type(screen.artic[2], code);
    screen.lookup().barcode.toggle();
    screen.riordina.click();
    for (const int command : {2, 3}) screen.comando[command].click();
}

}  // namespace

std::vector<std::string> fuzz_seeds() {
    std::vector<std::string> seeds;
    for (const int count : {articles, 32767, 0, -1}) {
        std::vector<rec_tot> counters(3);
        counters[contatori::articoli - 1].quanti = static_cast<std::int16_t>(count);
        std::vector<rec_art> all(articles);
        std::vector<rec_srb> bar_codes(articles);
        std::vector<rec_prx> texts(articles);
        for (std::size_t i = 0; i < articles; ++i) {
            all[i].codice = "A" + std::to_string(i);
            all[i].descrizione = "Articolo";
            all[i].codice_barre = std::to_string(8000 + i);
            all[i].prezzo1 = 1.5;
            bar_codes[i] = {all[i].codice_barre, static_cast<std::int16_t>(i + 1)};
            texts[i].righe[i % 10] = "testo";
            texts[i].marca_testo = i % 2 == 1 ? rec_prx::ha_testo : std::int16_t{0};
        }
        std::string& seed = seeds.emplace_back();
        append(seed, counters);
        append(seed, std::vector<rec_cli>(1));
        append(seed, all);
        append(seed, bar_codes);
        append(seed, texts);
    }
    seeds.emplace_back();
    return seeds;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::program_stage stage;
    program& app = stage.app;
    ui::desk& desk = stage.desk;
    std::string_view rest(reinterpret_cast<const char*>(data), size);
    for (const auto& [name, most] : files_in_input) {
        const std::size_t taken = std::min(most, rest.size());
        std::ofstream(stage.company() / name, std::ios::binary) << rest.substr(0, taken);
        rest.remove_prefix(taken);
    }

    app.selezione_1 = 1;
    apri_archivi(app.archives, stage.files, 1);
    stage.provide(app.mirorcs);
    for (int i = 0; i < 100; ++i) desk.queue_answer(ui::answer::ok);
    desk.dispatch([&] { app.mirorcs->show(); });
    for (const int line : {1, 100, 189}) {
        desk.dispatch([&] { enter_lines(*app.mirorcs, line); });
    }
    if (desk.ended()) {
        require(desk.ended()->fatal && !desk.ended()->message.empty());
    } else {
        require(std::isfinite(app.mirorcs->totals().totale));
        require(desk.focus() != nullptr && desk.active() == &*app.mirorcs);
    }
    return 0;
}
