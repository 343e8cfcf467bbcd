// Whatever a user does on whatever files, the program neither hangs nor goes wrong: it works on, or
// it ends with one of its own run-time errors. Files that were sound are so afterwards.

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>

#include "app/start.h"
#include "archive/check.h"
#include "demo/company.h"
#include "fuzz/fuzz_driver.h"
#include "register/mirorc.h"
#include "store/drive.h"
#include "support/scratch_folder.h"
#include "ui/controls.h"
#include "ui/pictures/pixbuf_decoder.h"
#include "ui/script/bench_ports.h"

namespace {

using namespace vantora;

constexpr const char* company = "mirwin/mirwin/miraz0.001";

/// The choices of one run, byte by byte.
class choices {
 public:
    choices(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    [[nodiscard]] bool over() const { return at_ >= size_; }
    std::size_t below(std::size_t limit) { return over() || limit == 0 ? 0 : data_[at_++] % limit; }

 private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t at_ = 0;
};

constexpr std::string_view usual_texts[] = {
    "",           "1", "0", "12",   "1,5", "1.234,56", "31/12/2024",
    "12/31/2024", "a", "s", "tubo", "010", "  ",       "riga libera"};
constexpr std::string_view odd_texts[] = {
    "-3",
    "1E308",
    "99999",
    "-32769",
    "1/1/",
    "\xFF\x81\x80",
    "una descrizione che \xE8 pi\xF9 lunga dei cinquanta caratteri di un campo, e di molto"};

/// Does one thing after the other on whatever screen is active, until the choices are over.
class restless_user final : public ui::front_end {
 public:
    restless_user(choices& by) : choices_(by) {}
    ui::desk* desk = nullptr;

    void run_until(const std::function<bool()>& done) override {
        while (!done()) {
            if (choices_.over()) return desk->stop();
            act();
        }
    }
    void let_events_run() override {
        if (choices_.below(4) == 1) act();
    }

 private:
    void act() {
        if (desk->open_box()) {
            constexpr ui::answer answers[] = {ui::answer::ok, ui::answer::yes, ui::answer::no};
            desk->answer_box(answers[choices_.below(3)]);
            return;
        }
        ui::form* here = desk->active();
        if (!here) return desk->stop();
        ui::control& one = *here->controls()[choices_.below(here->controls().size())];
        if (desk->obstacle(one)) return;
        // The register's exit would end most runs early.
        if (one.address() == "bottone(0)" && choices_.below(8) != 1) return;
        desk->dispatch([&] { work(one); });
    }

    void work(ui::control& one) {
        switch (one.kind()) {
            case ui::control_kind::button:
                return static_cast<ui::button&>(one).click();
            case ui::control_kind::label:
                return static_cast<ui::label&>(one).click();
            case ui::control_kind::picture:
                return static_cast<ui::picture&>(one).click();
            case ui::control_kind::check_box:
                return static_cast<ui::check_box&>(one).toggle();
            case ui::control_kind::option_button:
                return static_cast<ui::option_button&>(one).choose();
            case ui::control_kind::list_box:
            case ui::control_kind::drop_down: {
                auto& list = static_cast<ui::list_control&>(one);
                list.pick(static_cast<int>(choices_.below(static_cast<std::size_t>(list.count()))));
                return;
            }
            case ui::control_kind::scroll_bar: {
                auto& bar = static_cast<ui::scroll_bar&>(one);
                bar.drag(bar.minimum() + static_cast<int>(choices_.below(250)));
                return;
            }
            case ui::control_kind::date_picker:
                static_cast<ui::date_picker&>(one).choose(
                    {2024, 2, static_cast<int>(choices_.below(32))});
                return;
            case ui::control_kind::grid: {
                auto& table = static_cast<ui::grid&>(one);
                const auto row = choices_.below(static_cast<std::size_t>(table.rows()));
                const auto col = choices_.below(static_cast<std::size_t>(table.cols()));
                table.click_cell(static_cast<int>(row), static_cast<int>(col));
                return;
            }
            case ui::control_kind::text_box:
                return type_into(static_cast<ui::text_box&>(one));
            case ui::control_kind::progress_bar:
                return;
        }
    }

    void type_into(ui::text_box& box) {
        box.set_focus();
        if (choices_.below(40) == 1) {
            box.set_text(odd_texts[choices_.below(std::size(odd_texts))]);
        } else if (choices_.below(3) != 0) {
            box.set_text(usual_texts[choices_.below(std::size(usual_texts))]);
        }
        constexpr std::pair<int, std::optional<char>> keys[] = {{ui::key::enter, '\r'},
                                                                {ui::key::f1, {}},
                                                                {ui::key::backspace, '\b'},
                                                                {ui::key::up, {}},
                                                                {ui::key::down, {}},
                                                                {ui::key::sign, '.'},
                                                                {'7', '7'}};
        if (ui::control* focus = desk->focus()) {
            const auto& [code, character] = keys[choices_.below(std::size(keys))];
            focus->press_key(code, character);
        }
    }

    choices& choices_;
};

/// A small company with all its files, made once.
const std::filesystem::path& model_company() {
    static const test::scratch_folder folder;
    if (std::filesystem::is_empty(folder.path())) {
        demo::make_company({.numero_azienda = 1, .orders = 3, .articles = 12, .customers = 6},
                           folder.path());
    }
    return folder.path();
}

/// Overwrites some bytes of the company's files, mostly of counters and orders, or cuts one off.
/// False if all stay whole.
bool damage(const std::filesystem::path& drive, choices& by) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(drive / company)) {
        files.push_back(entry.path());
    }
    std::ranges::sort(files);
    const auto damages = by.below(6);
    for (auto count = damages; count > 0; --count) {
        const std::filesystem::path paths[] = {files[by.below(files.size())],
                                               drive / company / "vantora.tot",
                                               drive / company / "vantora.orc"};
        const auto& path = paths[by.below(std::size(paths))];
        const auto size = std::filesystem::file_size(path);
        const auto at = size == 0 ? 0 : (by.below(256) * 256 + by.below(256)) % size;
        if (by.below(8) == 1) {
            std::filesystem::resize_file(path, at);
            continue;
        }
        std::fstream file(path, std::ios::binary | std::ios::in | std::ios::out);
        file.seekp(static_cast<std::streamoff>(at));
        for (auto bytes = by.below(9); bytes > 0; --bytes) {
            file.put(static_cast<char>(by.below(256)));
        }
    }
    return damages > 0;
}

}  // namespace

std::vector<std::string> fuzz_seeds() {
    std::mt19937 random(17);
    std::vector<std::string> seeds;
    for (int i = 0; i < 40; ++i) {
        // The first ones leave the files whole.
        std::string seed(1, static_cast<char>(i < 20 ? 0 : random()));
        for (int k = 0; k < 1500; ++k) seed.push_back(static_cast<char>(random()));
        seeds.push_back(seed);
    }
    return seeds;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    choices by(data, size);
    test::scratch_folder folder;
    std::filesystem::copy(model_company(), folder.path(), std::filesystem::copy_options::recursive);
    const bool damaged = damage(folder.path(), by);
    const auto orders = folder.path() / company / "vantora.orc";
    const auto size_before = std::filesystem::file_size(orders);

    drive files(folder.path());
    restless_user user(by);
    ui::local_clock time;
    time.stop_at({{2024, 5, 6}, 10, 20, 30});
    ui::script::recording_printer paper;
    ui::script::recording_launcher programs;
    ui::desk desk(user, time, paper, programs);
    user.desk = &desk;
    ui::pixbuf_decoder pictures;
    program app(files, desk, pictures);
    desk.dispatch([&] { start(app, "ordini001"); });
    user.run_until([&] { return desk.ended().has_value(); });
    require(desk.ended()->message.empty() ||
            desk.ended()->message.starts_with("Errore di run-time '"));
    require(std::filesystem::file_size(orders) >= size_before);
    archive::company_files checked(folder.path(), 1);
    const auto findings = archive::check_archive(checked);
    require(damaged || archive::is_sound(findings));
    return 0;
}
