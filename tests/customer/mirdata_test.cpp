#include "customer/mirdata.h"

#include <gtest/gtest.h>

#include "support/program_stage.h"
#include "ui/bench_desk.h"

namespace vantora::test {
namespace {

/// There is no way out without a date.
TEST(mirdata, EveryWayOutGivesThePickersDate) {
    enum leaving { by_enter, by_picking, by_closing };
    const struct {
        const char *proposed, *reserve;
        leaving by;
        const char* chosen;
    } cases[] = {{"03/04/2025", "01/01/2020", by_enter, "03/04/2025"},
                 {"", "01/01/2020", by_enter, "01/01/2020"},
                 {"31/02/2025", "01/01/2020", by_enter, "01/01/2020"},
                 {"03/04/2025", "", by_picking, "05/06/2025"},
                 {"03/04/2025", "", by_closing, "03/04/2025"}};
    for (const auto& one : cases) {
        program_stage<ui::test::prepared_user> stage;
        stage.provide(stage.app.mirdata);
        stage.app.data_proposta = one.proposed;
        stage.app.data_riserva = one.reserve;
        stage.front.actions = {[&] {
            mirdata& dialog = *stage.app.mirdata;
            if (one.by == by_enter) dialog.nuovadata.press_key(ui::key::enter, '\r');
            if (one.by == by_picking) dialog.nuovadata.choose({2025, 6, 5});
            if (one.by == by_closing) stage.desk.close(dialog);
        }};
        stage.desk.dispatch([&] { stage.app.mirdata->show_modal(); });
        EXPECT_FALSE(stage.app.mirdata.loaded());
        EXPECT_EQ(stage.app.data_scelta, one.chosen);
    }
}

}  // namespace
}  // namespace vantora::test
