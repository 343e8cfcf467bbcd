#pragma once

#include <gtest/gtest.h>

#include "customer/mirorcm.h"
#include "customer/mirorcx.h"
#include "entry/mirorcs.h"
#include "entry/mirorcz.h"
#include "register/mirorc.h"
#include "scripted/order_company.h"
#include "scripted/station.h"

namespace vantora::test {

/// A station at which the orders of a company are worked on. Its user confirms what is asked about
/// compactions and deletions, and wants nothing printed.
/// The program runs at once, unless something is to happen before.
struct order_station : station {
    explicit order_station(const small_company& company, bool at_once = true)
        : station(company.drive()) {
        front.decide = [this] {
            return front.told.back() == "Confermi?" || front.told.back() == "Sei proprio sicuro?";
        };
        if (at_once) run();
    }
    void compact() {
        desk.dispatch([this] { app.mirorc->srtt[0].click(); });
    }
    /// Opens the order in a row of the register.
    mirorcz& open(int row) {
        desk.dispatch([&] { app.mirorc->elenco.click_cell(row, 0); });
        EXPECT_TRUE(desk.ended() || desk.pointer_shape() == ui::pointer::normal);
        return *app.mirorcz;
    }
    void save_opened() {
        desk.dispatch([this] { app.mirorcz->comando[1].click(); });
    }
    void delete_opened() {
        desk.dispatch([this] { app.mirorcz->comando[6].click(); });
    }
    /// Takes a new order of customer 1: two pieces of article 1.
    void take_order() {
        desk.dispatch([this] {
            app.mirorc->bottone[2].click();
            app.mirorcx->bottone.click();
            app.mirorcs->lookup().List1.pick(0);
            app.mirorcs->quantita[0].set_text("2");
            app.mirorcs->comando[1].click();
        });
    }
    [[nodiscard]] std::string active() const { return desk.active()->name(); }
};

/// Deletes an order, with its stock.
inline void delete_order(const small_company& company, int block) {
    order_station at(company);
    at.open(block);
    at.delete_opened();
}

}  // namespace vantora::test
