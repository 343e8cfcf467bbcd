#pragma once

#include <vector>

#include "app/start.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "register/mirorc.h"
#include "scripted/small_company.h"
#include "store/drive.h"
#include "store/records/order_block.h"
#include "support/faulty_files.h"
#include "support/program_stage.h"

namespace vantora::test {

/// A row of an order as fulfilment sees it.
struct order_line {
    int article = 0;
    double quantity = 0;
    double fulfilled = 0;
    std::string description = "merce";
};

/// A user who answers every question, as told.
class answering_user final : public silent_front_end {
 public:
    void run_until(const std::function<bool()>& done) override {
        while (!done()) {
            if (!desk->answer_box(ui::answer::ok)) {
                desk->answer_box(decide() ? ui::answer::yes : ui::answer::no);
            }
        }
    }
    ui::desk* desk = nullptr;
    std::function<bool()> decide = [] { return false; };
};

/// A company with two customers and three articles, on which the program runs over files that may
/// fail.
struct fulfil_stage {
    fulfil_stage() {
        company.table_file();
        company.customers({customer_named("ROSSI SPA"), customer_named("VERDI SRL")});
        std::vector<rec_art> all;
        for (const char* code : {"A1", "A2", "A3"}) {
            rec_art one = article(code, std::string("articolo ") + code, 10);
            one.giacenza = 100;
            one.impegnato = 4;
            one.ordinato_clienti = 50;
            one.peso = 0.25;
            all.push_back(one);
        }
        company.articles(all);
        front.desk = &desk;
        time.stop_at({{2024, 5, 6}, 10, 20, 30});
    }

    /// Writes order `block` of a customer and counts it.
    void order(int block, int customer, const std::vector<order_line>& lines,
               bool committed = false) {
        std::vector<rec_orc> rows(righe_blocco);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            rec_orc& row = rows[i];
            row.numero = std::to_string(block * 10);
            row.data = "20240301";
            row.cliente = static_cast<std::int16_t>(customer);
            row.testo1 = "testo " + std::to_string(i + 1);
            row.descrizione = i < lines.size() ? lines[i].description : "";
            row.descrizione2 = "";
            row.um = "PZ";
            row.impegno = committed ? "1" : "0";
            row.riservato_e = "altrui";
            if (i >= lines.size()) continue;
            row.articolo = static_cast<std::int16_t>(lines[i].article);
            row.quantita = lines[i].quantity;
            row.evaso = lines[i].fulfilled;
            row.prezzo = 10;
            row.sc1 = 10;
            row.iva = 4;
        }
        company.files.orc.write_block(block_record(block, 1), rows);
        company.counter(contatori::ordini, block);
    }
    void run() {
        desk.dispatch([this] { start(app, "ordini001"); });
    }
    /// Goes to the worklist of a customer.
    void open_worklist(int customer) {
        desk.dispatch([&] {
            app.mirorc->hide();
            app.mirorcc->show();
            app.mirorcc->HScroll1.drag(customer);
            app.mirorcc->bottone.click();
        });
    }
    void click(int row, int col) {
        desk.dispatch([&] { app.mirorcr->elenco.click_cell(row, col); });
    }
    void type_quantity(int row, const std::string& text) {
        click(row, mirorcr::evaso);
        desk.dispatch([&] {
            app.mirorcr->quantita.set_text(text);
            app.mirorcr->quantita.press_key(ui::key::enter, '\r');
        });
    }
    void book() {
        desk.dispatch([this] { app.mirorcr->bottone[1].click(); });
    }
    /// Confirms the document, with the answers to the questions to come.
    void confirm(const std::vector<bool>& answers) {
        for (const bool yes : answers) desk.queue_answer(yes ? ui::answer::yes : ui::answer::no);
        desk.dispatch([this] { app.mirorca->comando[1].click(); });
    }
    std::vector<std::string> row(int number) {
        std::vector<std::string> texts;
        const ui::grid& list = app.mirorcr->elenco;
        for (int col = 0; col < list.cols(); ++col) texts.emplace_back(list.text(number, col));
        return texts;
    }
    rec_art article_now(int number) {
        rec_art one;
        company.files.art.read(number, one);
        return one;
    }
    rec_orc row_now(int block, int number) {
        rec_orc one;
        company.files.orc.read(block_record(block, number), one);
        return one;
    }
    rec_tot counter_now(int number) {
        rec_tot one;
        company.files.tot.read(number, one);
        return one;
    }

    small_company company;
    drive real{company.drive()};
    faulty_files faults{real};
    answering_user front;
    ui::local_clock time;
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::desk desk{front, time, paper, programs};
    ui::pixbuf_decoder pictures;
    program app{faults, desk, pictures};
};

}  // namespace vantora::test
