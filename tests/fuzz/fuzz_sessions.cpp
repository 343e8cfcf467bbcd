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
#include "entry/save_order.h"
#include "fuzz/fuzz_driver.h"
#include "register/compattazione.h"
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

/// The last ones are odd, and rarely typed.
constexpr std::string_view typed_texts[] = {
    "",
    "1",
    "0",
    "12",
    "1,5",
    "1.234,56",
    "31/12/2024",
    "12/31/2024",
    "a",
    "s",
    "tubo",
    "010",
    "  ",
    "riga libera",
    "-3",
    "1E308",
    "99999",
    "-32769",
    "\xFF\x81\x80",
    "una descrizione che \xE8 pi\xF9 lunga dei cinquanta caratteri di un campo, e di molto"};
constexpr std::size_t usual_texts = 14;

/// Another station, which now and then compacts the archive or takes an order; never while the
/// program keeps it out.
class other_station {
 public:
    explicit other_station(const std::filesystem::path& root) : drive_(root) {
        apri_archivi(files_, drive_, 1);
    }
    void act(choices& by) {
        constexpr std::chrono::milliseconds at_once{0};
        if (by.below(2) == 0) return take_order();
        const instance_lock alone(files_.tot, instance_lock::kind::compaction, at_once);
        rec_tot counter;
        if (alone.result() != instance_lock::outcome::held) return;
        if (!files_.tot.read(contatori::ordini, counter)) return;
        compatta_archivio(files_, counter, by.below(2) == 0, [](int) {});
    }

 private:
    void take_order() {
        if (files_.tot.shared_file()->locked_elsewhere(program_lock::counters)) return;
        righe_ordine lines;
        lines[1].articolo = 2;
        lines[1].quantita = 3;
        const testata_registrata head{"77", "01/02/2024", "03/02/2024", 1, {}, true};
        salva_nuovo_ordine(files_, head, 45323, lines, 12);
    }

    drive drive_;
    archivi files_;
};

/// Does one thing after the other on whatever screen is active, until the choices are over.
class restless_user final : public ui::front_end {
 public:
    restless_user(choices& by, other_station& other) : choices_(by), other_(other) {}
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
        if (choices_.below(60) == 1) other_.act(choices_);
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

    template <class Control>
    static Control& as(ui::control& one) {
        return static_cast<Control&>(one);
    }
    int any(int limit) { return static_cast<int>(choices_.below(static_cast<std::size_t>(limit))); }

    void work(ui::control& one) {
        using enum ui::control_kind;
        switch (one.kind()) {
            case button:
                return as<ui::button>(one).click();
            case label:
                return as<ui::label>(one).click();
            case picture:
                return as<ui::picture>(one).click();
            case check_box:
                return as<ui::check_box>(one).toggle();
            case option_button:
                return as<ui::option_button>(one).choose();
            case list_box:
            case drop_down:
                as<ui::list_control>(one).pick(any(as<ui::list_control>(one).count()));
                return;
            case scroll_bar:
                as<ui::scroll_bar>(one).drag(as<ui::scroll_bar>(one).minimum() + any(250));
                return;
            case date_picker:
                as<ui::date_picker>(one).choose({2024, 2, any(32)});
                return;
            case grid: {
                auto& table = as<ui::grid>(one);
                const int row = any(table.rows());
                table.click_cell(row, any(table.cols()));
                return;
            }
            case text_box:
                return type_into(as<ui::text_box>(one));
            case progress_bar:
                return;
        }
    }

    void type_into(ui::text_box& box) {
        box.set_focus();
        const std::size_t texts = choices_.below(40) == 1 ? std::size(typed_texts) : usual_texts;
        if (choices_.below(3) != 0) box.set_text(typed_texts[choices_.below(texts)]);
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
    other_station& other_;
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
    files.insert(files.end(), files.size() / 2, drive / company / "vantora.tot");
    files.insert(files.end(), files.size() / 3, drive / company / "vantora.orc");
    const auto damages = by.below(6);
    for (auto count = damages; count > 0; --count) {
        const auto& path = files[by.below(files.size())];
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
    other_station other(folder.path());
    restless_user user(by, other);
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
