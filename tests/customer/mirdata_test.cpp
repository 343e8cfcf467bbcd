#include "customer/mirdata.h"

#include <gtest/gtest.h>

#include "support/program_stage.h"
#include "ui/bench_desk.h"

namespace vantora::test {
namespace {

/// There is no way out without a date.
TEST(mirdata, ProposesADateOfTheCalendarAndGivesItByEnter) {
    const std::pair<const char*, const char*> cases[] = {
        {"03/04/2025", "03/04/2025"}, {"", "01/01/2020"}, {"31/02/2025", "01/01/2020"}};
    for (const auto& [proposed, chosen] : cases) {
        program_stage<ui::test::prepared_user> stage;
        stage.provide(stage.app.mirdata);
        stage.app.data_proposta = proposed;
        stage.app.data_riserva = "01/01/2020";
        stage.front.actions = {
            [&] { stage.app.mirdata->nuovadata.press_key(ui::key::enter, '\r'); }};
        stage.desk.dispatch([&] { stage.app.mirdata->show_modal(); });
        EXPECT_FALSE(stage.app.mirdata.loaded());
        EXPECT_EQ(stage.app.data_scelta, chosen);
    }
}

}  // namespace
}  // namespace vantora::test
