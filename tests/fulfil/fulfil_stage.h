#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "register/mirorc.h"
#include "scripted/order_company.h"
#include "scripted/station.h"

namespace vantora::test {

/// A company on which the program runs, on its way to a transport document.
struct fulfil_stage : order_company, station {
    fulfil_stage() : station(drive()) {}

    small_company& company = *this;

    /// Goes to the worklist of a customer.
    void open_worklist(int customer) {
        desk.dispatch([&] {
            app.mirorc->hide();
            app.mirorcc->show();
            app.mirorcc->HScroll1.drag(customer);
            app.mirorcc->bottone.click();
        });
        EXPECT_EQ(desk.pointer_shape(), ui::pointer::normal);
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
        EXPECT_TRUE(desk.ended() || desk.pointer_shape() == ui::pointer::normal);
    }
    /// Confirms the document, with the answers to the questions to come.
    void confirm(const std::vector<bool>& answers) {
        for (const bool yes : answers) {
            front.answers.keep(yes ? ui::answer::yes : ui::answer::no);
        }
        desk.dispatch([this] { app.mirorca->comando[1].click(); });
    }
    std::vector<std::string> row(int number) {
        std::vector<std::string> texts;
        const ui::grid& list = app.mirorcr->elenco;
        for (int col = 0; col < list.cols(); ++col) texts.emplace_back(list.text(number, col));
        return texts;
    }
};

}  // namespace vantora::test
