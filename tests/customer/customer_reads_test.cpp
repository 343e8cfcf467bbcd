#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "customer/customer_desk.h"

namespace vantora::test {
namespace {

using names = std::vector<std::string>;
using counts = std::map<std::string, std::size_t>;

/// Customers "CLIENTE 0001" and so on, in records of any order.
void write_shuffled(small_company& company, int customers) {
    std::vector<rec_cli> all;
    for (int i = 1; i <= customers; ++i) {
        const std::string digits = std::to_string(10000 + i).substr(1);
        all.push_back(customer_named("CLIENTE " + digits));
    }
    std::shuffle(all.begin(), all.end(), std::mt19937(5));
    company.customers(all);
}

TEST(customer_reads, ASearchProbesTheIndexAndShowsWhatItFound) {
    small_company company;
    write_shuffled(company, 1000);
    customer_desk desk(company);
    for (const char* name : {"cliente 0001", "cliente 0500", "cliente 0777", "cliente 1000"}) {
        desk.reads.clear();
        desk.search(name);
        EXPECT_EQ(desk.shown_name(), upper(name));
        // Moving the cursor shows the customer, and so does the search itself.
        EXPECT_LE(desk.reads["src"], 11U + 2U) << name;
        EXPECT_LE(desk.reads["cli"], 2U) << name;
    }
    desk.reads.clear();
    desk.search("zzz");
    EXPECT_EQ(desk.box, "Anagrafica non trovata");
    EXPECT_LE(desk.reads["src"], 11U + 1U);
}

TEST(customer_reads, AStepOfTheCursorReadsOneEntryAndOneCustomer) {
    small_company company;
    write_shuffled(company, 1000);
    customer_desk desk(company);
    for (const int position : {2, 3, 700, 1000, 1}) {
        desk.reads.clear();
        desk.app.mirorcx->HScroll1.drag(position);
        EXPECT_EQ(desk.reads, (counts{{"tot", 1}, {"src", 1}, {"cli", 1}})) << position;
    }
}

TEST(customer_reads, ThePickListReadsTheCustomersInStretches) {
    small_company company;
    write_shuffled(company, 1000);
    customer_desk desk(company);
    desk.with_pick_list([&](mirsel& list) {
        EXPECT_EQ(list.elenco.rows(), 1001);
        EXPECT_EQ(list.elenco.text(1, 0), "CLIENTE 0001");
        EXPECT_EQ(list.elenco.text(1000, 0), "CLIENTE 1000");
        EXPECT_LE(desk.reads["cli"], 1000U / 32 + 1);
        EXPECT_LE(desk.reads["src"], 2U);
    });
}

TEST(customer_reads, WhatCantBeReadShowsAsTheCustomerBefore) {
    small_company company;
    company.customers({customer_named("ALFA"), customer_named("BETA"), customer_named("GAMMA")});
    customer_desk desk(company);
    desk.unreadable["cli"] = 752 + 10;
    desk.app.mirorcx->HScroll1.drag(2);
    EXPECT_EQ(desk.shown_name(), "ALFA");
    desk.with_pick_list([](mirsel& list) {
        EXPECT_EQ(customer_desk::column(list, mirsel::nominativo),
                  (names{"ALFA", "ALFA", "GAMMA"}));
        EXPECT_EQ(customer_desk::column(list, mirsel::numero), (names{"1", "2", "3"}));
    });
    desk.unreadable = {{"src", 42 + 10}};
    desk.app.mirorcx->HScroll1.drag(3);
    desk.app.mirorcx->HScroll1.drag(2);
    EXPECT_EQ(desk.shown_name(), "GAMMA");
    EXPECT_EQ(desk.app.mirorcx->HScroll1.value(), 2);
}

}  // namespace
}  // namespace vantora::test
