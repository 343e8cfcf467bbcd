#include "program/list_grid.h"

#include <gtest/gtest.h>

#include "scripted/station.h"
#include "ui/controls.h"

namespace vantora::test {
namespace {

struct plain_screen : ui::form {
    explicit plain_screen(program& app) : form(app.desk, "prova", ""), lista(elenco, app, 26, 0) {
        add("altro", altro);
        add("elenco", elenco);
        elenco.set_columns({{"Numero", 100}, {"", 0}});
    }
    void show_numbers(int from, int to) {
        lista.build([&](list_rows& list) {
            for (int i = from; i <= to && !list.full(); ++i) {
                list.next();
                list.write(0, std::to_string(i));
            }
        });
    }

    ui::button altro;
    ui::grid elenco;
    list_grid lista;
};

class list_grid_of_a_screen : public testing::Test {
 protected:
    list_grid_of_a_screen() {
        stage.app.parameters.gnr.righe_alternate = "1";
        stage.app.parameters.gnr.colore_riga_pari = 254.6;
        stage.app.parameters.gnr.colore_riga_dispari = -4e300;
        place.made_by(stage.desk, [this] { return std::make_unique<plain_screen>(stage.app); });
        place->show();
    }

    program_stage<answering_user> stage;
    ui::screen<plain_screen> place;
};

TEST_F(list_grid_of_a_screen, HoldsItsRowsAndNoMoreThanItsRoom) {
    for (const auto& [last, in_use, shown] :
         {std::tuple{0, 1, 26}, {25, 26, 26}, {26, 27, 27}, {40000, 31999, 31999}, {3, 4, 26}}) {
        place->elenco.set_focus();
        place->show_numbers(1, last);
        EXPECT_EQ(place->lista.in_use(), in_use);
        EXPECT_EQ(place->elenco.rows(), shown);
        EXPECT_EQ(place->elenco.text(in_use, 0), "") << "nothing is left of a longer list";
        EXPECT_EQ(place->elenco.back_colour(shown - 1, 0), shown % 2 == 0 ? ui::white : 255U);
        EXPECT_TRUE(place->elenco.has_focus());
        EXPECT_EQ(stage.desk.pointer_shape(), ui::pointer::normal);
    }
    stage.app.parameters.gnr.righe_alternate = "0";
    place->elenco.set_columns({{"Numero", 100}, {"", 0}});  // without colours
    place->show_numbers(1, 3);
    EXPECT_EQ(place->elenco.back_colour(2, 0), ui::white);
}

TEST_F(list_grid_of_a_screen, ARefreshServedDuringASortStays) {
    for (const auto& [before, after] : {std::pair{3, 60}, {60, 3}, {3, 5}, {60, 70}}) {
        place->show_numbers(1, before);
        stage.front.meanwhile = [&, last = after] { place->show_numbers(1, last); };
        place->lista.sort(0, ui::sort_order::generic_ascending);
        EXPECT_EQ(place->elenco.rows(), std::max(after + 1, 26)) << before;
        EXPECT_EQ(place->elenco.text(after, 0), std::to_string(after)) << before;
        stage.front.meanwhile = nullptr;
        place->lista.sort(0, ui::sort_order::generic_ascending);
        EXPECT_EQ(place->elenco.text(1, 0), "1") << "blank rows stay at the bottom";
        EXPECT_TRUE(place->elenco.has_focus());
        EXPECT_EQ(place->elenco.back_colour(24, 0), 255U) << "striped anew";
    }
}

}  // namespace
}  // namespace vantora::test
