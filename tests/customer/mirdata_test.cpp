#include "customer/mirdata.h"

#include <gtest/gtest.h>

#include "support/program_stage.h"
#include "ui/bench_desk.h"

namespace vantora::test {
namespace {

/// Opens the dialog with a proposal and a reserve, leaves it in some way, and tells the choice.
std::string choose(const std::string& proposed, const std::string& reserve,
                   const std::function<void(ui::desk&, mirdata&)>& leave) {
    program_stage<ui::test::prepared_user> stage;
    stage.provide(stage.app.mirdata);
    stage.app.data_proposta = proposed;
    stage.app.data_riserva = reserve;
    stage.front.actions = {
        [&] { stage.desk.dispatch([&] { leave(stage.desk, *stage.app.mirdata); }); }};
    stage.desk.dispatch([&] { stage.app.mirdata->show_modal(); });
    EXPECT_FALSE(stage.app.mirdata.loaded());
    return stage.app.data_scelta;
}

TEST(mirdata, ProposesTheDateOrItsReserve) {
    const auto keep = [](ui::desk&, mirdata& dialog) {
        dialog.nuovadata.press_key(ui::key::enter, '\r');
    };
    EXPECT_EQ(choose("03/04/2025", "01/01/2020", keep), "03/04/2025");
    EXPECT_EQ(choose("", "01/01/2020", keep), "01/01/2020");
    EXPECT_EQ(choose("31/02/2025", "01/01/2020", keep), "01/01/2020");
}

TEST(mirdata, EveryWayOutGivesThePickersDate) {
    const auto pick = [](ui::desk&, mirdata& dialog) { dialog.nuovadata.choose({2025, 6, 5}); };
    EXPECT_EQ(choose("03/04/2025", "", pick), "05/06/2025");
    const auto close = [](ui::desk& desk, mirdata& dialog) { desk.close(dialog); };
    EXPECT_EQ(choose("03/04/2025", "", close), "03/04/2025") << "there is no cancel";
}

}  // namespace
}  // namespace vantora::test
