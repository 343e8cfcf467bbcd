#include <gtest/gtest.h>

#include <thread>

#include "entry/order_station.h"
#include "scripted/problems.h"

namespace vantora::test {
namespace {

std::string contents(const small_company& company) {
    return content(company, "orc") + content(company, "art") + content(company, "tot");
}

void change_head(order_company& company, int block) {
    for (int number = 1; number <= righe_blocco; ++number) {
        rec_orc row = company.row_now(block, number);
        row.numero = "altro";
        company.set_row(block, number, row);
    }
}

// Of four orders the second is deleted. While one is open here, something happens at another
// station; then the order is saved or deleted here.
TEST(stations, AnOrderIsNotWrittenOverTheOneThatACompactionPutIntoItsBlock) {
    enum { compacts = 1, takes_order = 2, changes_head = 4 };
    const struct {
        int opened;
        int there;
        bool moved;
    } cases[] = {{1, compacts, false},
                 {1, compacts | takes_order, false},
                 {3, compacts, true},
                 {4, compacts, true},
                 {3, compacts | takes_order, true},
                 {4, compacts | takes_order, true},
                 {3, takes_order, false},
                 {3, changes_head, false}};
    for (const auto& one : cases) {
        for (const bool deletes : {false, true}) {
            order_company company;
            for (const int block : {1, 2, 3, 4}) company.order(block, 1, {{1, 5}});
            rec_orc gone = company.row_now(2, 1);
            gone.annullato = 1;
            company.set_row(2, 1, gone);
            order_station here(company);
            order_station there(company);
            mirorcz& screen = here.open(one.opened);
            screen.ds[0].set_text("a mano");
            if ((one.there & compacts) != 0) there.compact();
            if ((one.there & takes_order) != 0) there.take_order();
            if ((one.there & changes_head) != 0) change_head(company, one.opened);

            const std::string before = contents(company);
            deletes ? here.delete_opened() : here.save_opened();
            SCOPED_TRACE(std::to_string(one.opened) + " " + std::to_string(one.there));
            if (one.moved) {
                EXPECT_EQ(contents(company), before);
                EXPECT_TRUE(
                    here.front.told.back().starts_with("Un'altra postazione ha compattato"));
                EXPECT_EQ(here.active(), "mirorcz");
                EXPECT_EQ(screen.ds[0].text(), "a mano");
                continue;
            }
            const rec_orc row = company.row_now(one.opened, 1);
            EXPECT_EQ(here.active(), "mirorc");
            EXPECT_EQ(row.annullato, deletes ? 1 : 0);
            EXPECT_EQ(row.descrizione.trimmed(), deletes ? "merce" : "a mano");
        }
    }
}

/// There are so many orders, none of them deleted, all of them whole, and the stock is theirs.
void expect_sound(order_company& company, int orders) {
    EXPECT_EQ(company.counter_now(contatori::ordini).quanti, orders);
    for (int block = 1; block <= orders; ++block) {
        EXPECT_EQ(company.row_now(block, 1).annullato, 0) << block;
    }
    EXPECT_EQ(problems(company), "");
}

/// Two stations do something at once, on disks that take their time.
template <class Here, class There>
void at_once(order_company& company, Here here, There there) {
    order_station stations[] = {order_station(company), order_station(company)};
    for (order_station& one : stations) one.faults.read_takes = std::chrono::microseconds(100);
    std::thread other([&] { there(stations[1]); });
    here(stations[0]);
    other.join();
}

TEST(stations, NothingIsLostWhateverTwoOfThemDoAtOnce) {
    const auto save = [](order_station& one) { one.take_order(); };
    const auto compact = [](order_station& one) { one.compact(); };
    for (int round = 0; round < 4; ++round) {
        order_company company;
        rec_art stock = company.article_now(1);
        stock.ordinato_clienti = 0;
        company.articles({stock});
        const auto five_times = [](auto what) {
            return [what](order_station& one) {
                for (int i = 0; i < 5; ++i) what(one);
            };
        };
        at_once(company, five_times(save), five_times(save));
        EXPECT_EQ(company.article_now(1).ordinato_clienti, 20);
        expect_sound(company, 10);

        for (const int block : {2, 3, 7}) {
            for (int number = 1; number <= righe_blocco; ++number) {
                rec_orc row = company.row_now(block, number);
                row.annullato = 1;
                company.set_row(block, number, row);
            }
        }
        stock.ordinato_clienti = 14;
        company.files.art.write(1, stock);
        if (round % 2 == 0) {
            at_once(company, compact, compact);
            expect_sound(company, 7);
        } else {
            at_once(company, compact, save);
            EXPECT_EQ(company.article_now(1).ordinato_clienti, 16);
            expect_sound(company, 8);
        }
    }
}

}  // namespace
}  // namespace vantora::test
