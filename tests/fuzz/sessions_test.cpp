// Whatever a user does on whatever files, the program neither hangs nor goes wrong: it works on, or
// it ends with one of its own run-time errors. Files that were sound are so afterwards, unless
// reads were refused and the user was told.

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "archive/check.h"
#include "demo/demo_company.h"
#include "entry/save_order.h"
#include "register/compattazione.h"
#include "register/mirorc.h"
#include "store/archive_change.h"
#include "store/suite_paths.h"
#include "support/file_bytes.h"
#include "support/long_sessions.h"
#include "support/program_stage.h"
#include "ui/controls.h"

namespace vantora {
namespace {

namespace fs = std::filesystem;

constexpr const char* company = "mirwin/mirwin/miraz0.001";

/// The choices of one session, until they are used up.
class choices {
 public:
    choices(unsigned seed, int count) : random_(seed), left_(count) {}

    [[nodiscard]] bool over() const { return left_ == 0; }
    std::size_t below(std::size_t limit) {
        if (over() || limit == 0) return 0;
        --left_;
        return random_() % limit;
    }

 private:
    std::mt19937 random_;
    int left_;
};

constexpr std::string_view typed_texts[] = {
    "",  "1", "0",    "12",  "1,5", "1.234,56",    "31/12/2024",
    "a", "s", "tubo", "010", "  ",  "riga libera", "12/31/2024"};
constexpr std::string_view odd_texts[] = {
    "-3",     "1E308",        "99999",
    "-32769", "\xFF\x81\x80", "una descrizione pi\xF9 lunga dei cinquanta caratteri di un campo"};

/// What a session meets beside its user.
enum class company_life { calm, damaged, reads_refused, files_replaced };

/// Another station, which now and then compacts the archive or takes an order; never while the
/// program keeps it out. Or a tool that puts files in the place of others.
class other_station {
 public:
    other_station(const std::filesystem::path& root, company_life life)
        : drive_(root), replaces_(life == company_life::files_replaced) {
        apri_archivi(files_, drive_, 1);
        files_.patience = {};
    }
    void act(choices& by) {
        if (replaces_ && by.below(4) != 0) return replace_a_file(by);
        if (by.below(2) == 0) return take_order();
        compatta_archivio(files_, by.below(2) == 0, [](int, int) {});
    }
    void put_back() {
        for (const auto& [aside, place] : std::exchange(removed_, {})) fs::rename(aside, place);
    }
    /// Nothing was written into files that had lost their places.
    [[nodiscard]] bool lost_nothing() const {
        return std::ranges::all_of(
            replaced_, [](const auto& one) { return test::bytes_of(one.first) == one.second; });
    }

 private:
    void replace_a_file(choices& by) {
        if (!removed_.empty()) return put_back();
        const archive_change alone(files_);
        if (!alone.may_write()) return;
        constexpr const char* extensions[] = {"tot", "orc", "art", "mag", "bol"};
        const fs::path place = drive_.locate(company_path(1, extensions[by.below(5)]));
        const fs::path aside = outside_.path() / std::to_string(replaced_.size());
        if (by.below(3) == 0) {
            fs::rename(place, aside);
            removed_.emplace_back(aside, place);
            return;
        }
        fs::create_hard_link(place, aside);
        replaced_.emplace_back(aside, test::bytes_of(aside));
        const fs::path fresh = place.string() + ".new";
        fs::copy_file(place, fresh);
        fs::rename(fresh, place);
    }
    void take_order() {
        righe_ordine lines;
        lines[1].articolo = 2;
        lines[1].quantita = 3;
        const testata_registrata head{"77", "01/02/2024", "03/02/2024", 1, {}, true};
        salva_nuovo_ordine(files_, head, 45323 + ++orders_, lines, 12);
    }

    drive drive_;
    bool replaces_;
    archivi files_;
    int orders_ = 0;
    test::scratch_folder outside_;
    std::vector<std::pair<fs::path, std::string>> replaced_;  ///< with what they held
    std::vector<std::pair<fs::path, fs::path>> removed_;      ///< with their places
};

/// Does one thing after the other on whatever screen is active, until the choices are over.
class restless_user final : public ui::front_end {
 public:
    restless_user(choices& by, other_station& other) : choices_(by), other_(other) {}
    ui::desk* desk = nullptr;
    std::size_t acts = 0;
    bool told_of_faults = false;

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
    template <class Range>
    auto& one_of(const Range& range) {
        return range[choices_.below(std::size(range))];
    }
    int any(int limit) { return static_cast<int>(choices_.below(static_cast<std::size_t>(limit))); }

    void act() {
        ++acts;
        if (choices_.below(60) == 1) other_.act(choices_);
        if (desk->open_box()) {
            told_of_faults |= desk->open_box()->text.find("rrore su ") != std::string::npos;
            constexpr ui::answer answers[] = {ui::answer::ok, ui::answer::yes, ui::answer::no};
            desk->answer_box(one_of(answers));
            return;
        }
        ui::form* here = desk->active();
        if (!here) return desk->stop();
        ui::control& one = *one_of(here->controls());
        if (desk->obstacle(one)) return;
        // The register's exit would end most runs early.
        if (one.address() == "bottone(0)" && choices_.below(8) != 1) return;
        desk->dispatch([&] { work(one); });
    }

    template <class Control>
    static Control& as(ui::control& one) {
        return static_cast<Control&>(one);
    }

    void work(ui::control& one) {
        using enum ui::control_kind;
        switch (one.kind()) {
            case button:
            case check_box:
            case option_button:
                return one.press_key(ui::key::blank, ' ');
            case label:
                return as<ui::label>(one).click();
            case picture:
                return as<ui::picture>(one).click();
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
            case grid:
                return click_cell(as<ui::grid>(one));
            case text_box:
                return type_into(as<ui::text_box>(one));
            case progress_bar:
                return;
        }
    }

    void click_cell(ui::grid& table) {
        const int row = any(table.rows());
        table.click_cell(row, any(table.cols()));
    }
    void type_into(ui::text_box& box) {
        box.set_focus();
        if (choices_.below(40) == 1) {
            box.set_text(one_of(odd_texts));
        } else if (choices_.below(3) != 0) {
            box.set_text(one_of(typed_texts));
        }
        constexpr std::pair<int, std::optional<char>> keys[] = {{ui::key::enter, '\r'},
                                                                {ui::key::f1, {}},
                                                                {ui::key::backspace, '\b'},
                                                                {ui::key::up, {}},
                                                                {ui::key::down, {}},
                                                                {ui::key::sign, '.'},
                                                                {'7', '7'}};
        const auto& [code, character] = one_of(keys);
        if (ui::control* focus = desk->focus()) focus->press_key(code, character);
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

/// Overwrites some bytes of the company's files, or cuts one off; mostly of counters and orders.
void damage(const std::filesystem::path& folder, choices& by) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        files.push_back(entry.path());
    }
    std::ranges::sort(files);
    files.insert(files.end(), files.size() / 2, folder / "vantora.tot");
    files.insert(files.end(), files.size() / 2, folder / "vantora.orc");
    for (auto count = by.below(5) + 1; count > 0; --count) {
        const auto& path = files[by.below(files.size())];
        std::string content = test::bytes_of(path);
        const auto at = content.empty() ? 0 : by.below(content.size());
        if (by.below(8) == 1) {
            content.resize(at);
        } else {
            std::string bytes(by.below(9), ' ');
            for (char& one : bytes) one = static_cast<char>(by.below(256));
            content.replace(at, bytes.size(), bytes);
        }
        test::put(path, content);
    }
}

/// Other places of the files can't be read with everything that is done.
bool refused(const std::string& path, std::int64_t offset, std::size_t act) {
    const auto place = path + std::to_string(offset) + "/" + std::to_string(act);
    return path.find("vantora.") != path.npos && std::hash<std::string>()(place) % 50 == 0;
}

void work_restlessly(unsigned seed, company_life life) {
    const bool damaged = life == company_life::damaged;
    choices by(seed, 1500);
    const test::scratch_folder folder;
    std::filesystem::copy(model_company(), folder.path(), std::filesystem::copy_options::recursive);
    if (damaged) damage(folder.path() / company, by);
    const auto orders = folder.path() / company / "vantora.orc";
    const auto size_before = std::filesystem::file_size(orders);

    other_station other(folder.path(), life);
    test::program_on_drive<restless_user> at(folder.path(), by, other);
    at.front.desk = &at.desk;
    at.run();
    if (life == company_life::reads_refused) {
        at.faults.read_fails = [&](const std::string& path, std::int64_t offset, std::size_t) {
            return refused(path, offset, at.front.acts);
        };
    }
    at.front.run_until([&] { return at.desk.ended().has_value(); });
    other.put_back();
    EXPECT_TRUE(other.lost_nothing());
    const std::string& last_words = at.desk.ended()->message;
    EXPECT_TRUE(last_words.empty() || last_words.starts_with("Errore di run-time '")) << last_words;
    EXPECT_GE(std::filesystem::file_size(orders), size_before);
    archive::company_files checked(folder.path(), 1);
    const auto findings = archive::check_archive(checked);
    // What a hand can type is none; only here does one save the same order twice within a second.
    const bool sound = std::ranges::all_of(findings.groups(), [](const auto& one) {
        const archive::finding& first = one.kept.front();
        return first.how_bad != archive::gravity::error || first.kind == "order-doubled" ||
               first.kind.ends_with("-date");
    });
    const bool told = at.front.told_of_faults || !last_words.empty();
    EXPECT_TRUE(damaged || sound || (life == company_life::reads_refused && told))
        << findings.in_lines();
}

TEST(any_session, EndsWellAndLeavesSoundFilesSound) {
    const unsigned seeds = test::long_sessions() ? 200 : 40;
    for (unsigned seed = 0; seed < seeds && !testing::Test::HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        work_restlessly(seed, company_life(seed % 4));
    }
}

}  // namespace
}  // namespace vantora
