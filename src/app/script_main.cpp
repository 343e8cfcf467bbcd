#include <iostream>
#include <optional>

#include "app/options.h"
#include "app/start.h"
#include "store/drive.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "ui/script/script_front_end.h"

int main(int count, char** arguments) {
    using namespace vantora;
    take_file_limits_as_errors();
    program_options options{"vantora-script", "Vantora Ordini, guidato dai comandi in ingresso"};
    if (const auto code = options.read(count, arguments)) return *code;

    std::ios::sync_with_stdio(false);
    drive files(options.drive);
    ui::local_clock time;
    if (options.clock) time.stop_at(*options.clock);
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::script::script_front_end front(std::cin, std::cout);
    ui::desk desk(front, time, paper, programs);
    ui::script::interpreter commands(desk, time, paper, programs);
    ui::pixbuf_decoder pictures;
    program app(files, desk, pictures);
    app.book = book_for(options, true);
    std::optional<drive> person;
    if (!options.data.empty()) app.person = &person.emplace(options.data);

    front.begin(desk, commands);
    desk.dispatch([&] { start(app, options.argument); });
    front.run();
    return exit_code(desk);
}
