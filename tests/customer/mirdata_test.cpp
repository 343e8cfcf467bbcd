#include "customer/mirdata.h"

#include <gtest/gtest.h>

#include <sstream>

#include "store/drive.h"
#include "support/scratch_folder.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "ui/script/script_front_end.h"

namespace vantora {
namespace {

/// Opens the dialog with a proposal and a reserve, chooses by a command, and tells the choice.
std::string choose(const std::string& proposed, const std::string& reserve,
                   const std::string& command) {
    test::scratch_folder folder;
    drive files(folder.path());
    std::stringstream input(command + "\n");
    std::stringstream output;
    ui::local_clock time;
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::script::script_front_end front(input, output);
    ui::desk desk(front, time, paper, programs);
    ui::script::interpreter by(desk, time, paper, programs);
    ui::pixbuf_decoder pictures;
    program app(files, desk, pictures);
    front.begin(desk, by);
    app.mirdata.made_by(desk, [&app] { return std::make_unique<mirdata>(app); });
    app.data_proposta = proposed;
    app.data_riserva = reserve;
    desk.dispatch([&] { app.mirdata->show_modal(); });
    front.run();
    return app.data_scelta;
}

TEST(mirdata, ProposesTheDateOrItsReserve) {
    const std::string keep = "key mirdata.nuovadata Enter";
    EXPECT_EQ(choose("03/04/2025", "01/01/2020", keep), "03/04/2025");
    EXPECT_EQ(choose("", "01/01/2020", keep), "01/01/2020");
    EXPECT_EQ(choose("31/02/2025", "01/01/2020", keep), "01/01/2020");
}

TEST(mirdata, EveryWayOutGivesThePickersDate) {
    EXPECT_EQ(choose("03/04/2025", "", "date mirdata.nuovadata \"05/06/2025\""), "05/06/2025");
    EXPECT_EQ(choose("03/04/2025", "", "date mirdata.nuovadata \"03/04/2025\""), "03/04/2025");
    EXPECT_EQ(choose("03/04/2025", "", "close mirdata"), "03/04/2025") << "there is no cancel";
}

}  // namespace
}  // namespace vantora
