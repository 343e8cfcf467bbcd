// Three stations, each a process of its own, work on one company, are stopped and ended in the
// midst of it, and every figure is as a clerk with paper would have it, or the station was told.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <deque>
#include <nlohmann/json.hpp>
#include <optional>
#include <random>
#include <set>
#include <thread>

#include "scripted/order_company.h"
#include "stations/trial_book.h"
#include "support/long_sessions.h"

namespace vantora::test {
namespace {

using nlohmann::json;

/// The program in a process of its own.
class process {
 public:
    explicit process(const std::filesystem::path& drive) {
        int in[2];
        int out[2];
        if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0) std::abort();
        pid_ = ::fork();
        if (pid_ == 0) {
            ::dup2(in[0], STDIN_FILENO);
            ::dup2(out[1], STDOUT_FILENO);
            ::execl(SCRIPT_PROGRAM, SCRIPT_PROGRAM, "--drive", drive.c_str(), "ordini001", nullptr);
            ::_exit(127);
        }
        ::close(in[0]);
        ::close(out[1]);
        to_ = in[1];
        from_ = ::fdopen(out[0], "r");
        ask("guards on");
    }
    process(const process&) = delete;
    process& operator=(const process&) = delete;
    ~process() {
        signal(SIGKILL);
        ::waitpid(pid_, nullptr, 0);
        ::close(to_);
        std::fclose(from_);
    }

    void signal(int which) const { ::kill(pid_, which); }
    void send(const std::string& command) const {
        const std::string line = command + "\n";
        [[maybe_unused]] const auto sent = ::write(to_, line.data(), line.size());
    }
    /// Empty if it has ended.
    std::optional<json> reply() {
        char* line = nullptr;
        std::size_t room = 0;
        const bool there = ::getline(&line, &room, from_) > 0;
        const std::string text(there ? line : "");
        std::free(line);
        if (!there || text.back() != '\n') return {};
        return json::parse(text);
    }
    json ask(const std::string& command) {
        send(command);
        json answer = reply().value_or(json{{"ok", false}, {"error", "the program ended"}});
        if (answer["ok"] == false) ADD_FAILURE() << command << ": " << answer;
        return answer;
    }

 private:
    pid_t pid_ = 0;
    int to_ = -1;
    std::FILE* from_ = nullptr;
};

std::string box_of(const json& reply) {
    return reply.contains("box") ? reply["box"]["text"].get<std::string>() : std::string();
}

/// One station with its user. What it is about to do to the archive is prepared, then begun while
/// others do something too, and at last it is seen what came of it.
class player {
 public:
    player(const std::filesystem::path& drive, std::mt19937& random, int& numbers)
        : drive_(drive), random_(random), numbers_(numbers), program_(std::in_place, drive) {}

    enum outcome { waits, done, refused, ended };
    std::optional<book_change> change;  ///< about to be made

    void prepare(const trial_book& book) {
        if (change) return;
        const int what = below(12);
        if (what < 3) return prepare_new(book);
        if (what < 8) return prepare_edit(book, what == 7);
        if (what < 11) return prepare_booking(book);
        prepare_compaction();
    }
    void begin() {
        why_not_.clear();
        program_->send(command_);
    }
    void stop() { program_->signal(SIGSTOP); }
    void wake() { program_->signal(SIGCONT); }
    /// Its last reply may be under way.
    void end() {
        program_->signal(SIGKILL);
        dead_ = true;
    }

    outcome settle() {
        std::optional<json> reply = program_->reply();
        bool asked_to_print = false;
        while (reply && reply->contains("box")) {
            const std::string text = box_of(*reply);
            if (text.find("insufficiente") != std::string::npos) return leave_open(text);
            if (text.starts_with("Stampare il documento")) return go_on_to_document();
            const bool prints = text.starts_with("Stampa") || text == "Iniziare la stampa?";
            asked_to_print |= prints;
            const bool yes = !prints && below(3) != 0;
            // A number given out twice may give way to the next one.
            const std::string other_number = "Registrarlo con il numero ";
            if (yes && text.starts_with(other_number)) {
                change->numero = std::stoi(text.substr(other_number.size()));
            }
            const std::string buttons = (*reply)["box"]["buttons"];
            if (buttons == "ok" || (buttons == "yesno" && !prints && !yes)) why_not_ = text;
            // Nobody wants a copy before a compaction.
            program_->send(buttons == "ok"       ? "answer ok"
                           : buttons == "choice" ? "answer 2"
                           : yes                 ? "answer yes"
                                                 : "answer no");
            reply = program_->reply();
        }
        if (!reply) return ended;
        EXPECT_FALSE(reply->contains("fatal")) << *reply;
        const std::string screen = reply->value("screen", "");
        if (change->how == book_change::book && screen == "mirorca") {
            if (!dead_) prepare_unloading();
            return done;
        }
        home_ = screen == "mirorc";
        const bool prints = change->how == book_change::add || change->how == book_change::edit ||
                            change->how == book_change::document;
        if (prints ? asked_to_print : home_ && why_not_.empty()) return done;
        EXPECT_NE(why_not_, "") << "neither done nor told, on " << screen;
        return refused;
    }
    /// Behind a round: what comes next.
    void go_on(outcome from) {
        if (from == waits && !dead_) return;
        change = std::exchange(next_, {});
        if (dead_ || !(home_ || change)) restart();
    }
    void restart() {
        program_.reset();
        program_.emplace(drive_);
        change.reset();
        home_ = true;
        dead_ = false;
    }

 private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
    /// What a control shows.
    std::string shown(const std::string& control) {
        return program_->ask("get " + control)["value"].value("text", "");
    }

    void prepare_new(const trial_book& book) {
        program_->ask("click mirorc.bottone(2)");
        const int cliente = 1 + below(2);
        program_->ask("scroll mirorcx.HScroll1 " + std::to_string(cliente));
        const std::string numero = std::to_string(++numbers_);
        // Some orders are taken in the same second.
        char clock[40];
        const int second = numbers_ / 3;
        std::snprintf(clock, sizeof clock, "clock \"2024-05-06 10:%02d:%02d\"", second / 60 % 60,
                      second % 60);
        program_->ask(clock);
        program_->ask("set mirorcx.Text3(0) \"" + numero + "\"");
        program_->ask("click mirorcx.bottone");
        change.emplace();
        if (below(3) == 0) {
            import(book);
        } else {
            for (std::size_t i = 0; i < 3; ++i) {
                if (below(3) != 0) type_line("mirorcs", i);
            }
        }
        const bool impegno = below(2) == 0;
        if (impegno) program_->ask("click mirorcs.impegno");
        for (book_row& row : change->order) {
            row.numero = numero;
            row.cliente = cliente;
            row.impegno = impegno;
        }
        command_ = "click mirorcs.comando(1)";
    }
    void import(const trial_book& book) {
        program_->ask("click mirorcs.comando(5)");
        const json rows = program_->ask("rows mirpref.elenco")["value"];
        const std::size_t row = 1 + static_cast<std::size_t>(below(int(rows.size()) - 1));
        const std::size_t from = book.find(rows[row][0]);
        if (from == book.orders.size()) return void(program_->ask("click mirpref.bottone"));
        program_->ask("cell mirpref.elenco " + std::to_string(row) + " 0");
        for (std::size_t i = 0; i < change->order.size(); ++i) {
            change->order[i].articolo = book.orders[from][i].articolo;
            change->order[i].quantita = book.orders[from][i].quantita;
        }
    }
    void type_line(const std::string& screen, std::size_t i) {
        const std::string index = "(" + std::to_string(i) + ")";
        const int article = below(3);
        const int quantity = 1 + below(9);
        program_->ask("focus " + screen + ".artic" + index);
        program_->ask("pick " + screen + ".List1 " + std::to_string(article));
        program_->ask("set " + screen + ".quantita" + index + " \"" + std::to_string(quantity) +
                      "\"");
        change->order[i].articolo = article + 1;
        change->order[i].quantita = quantity;
    }

    void prepare_edit(const trial_book& book, bool deletes) {
        if (book.orders.empty()) return;
        const int row = 1 + below(int(book.orders.size()));
        const json listed = program_->ask("rows mirorc.elenco");
        if (row >= int(listed["value"].size())) return;
        const json opened = program_->ask("cell mirorc.elenco " + std::to_string(row) + " 0");
        if (opened.contains("box")) {
            program_->ask("answer ok");
            return;
        }
        if (opened["screen"] != "mirorcz") return;
        const std::size_t which = book.find(shown("mirorcm.Text3(0)"));
        ASSERT_LT(which, book.orders.size()) << "an order that isn't there was opened";
        change.emplace().order = book.orders[which];
        change->how = deletes ? book_change::remove : book_change::edit;
        for (book_row& one : change->order) {
            one.impegno = change->order[0].impegno;
            one.chiuso = change->order[0].chiuso;
        }
        if (deletes) {
            program_->ask("click mirorcz.comando(6)");
            command_ = "answer yes";
            return;
        }
        for (std::size_t i = 0; i < 3; ++i) {
            if (below(2) == 0) type_line("mirorcz", i);
        }
        command_ = "click mirorcz.comando(1)";
    }

    void prepare_compaction() {
        change.emplace().how = book_change::compact;
        change->evasi = below(2) == 0;
        program_->ask("click mirorc.srtt(0)");
        program_->ask(change->evasi ? "answer yes" : "answer no");
        command_ = "answer yes";
    }

    void prepare_booking(const trial_book& book) {
        change.emplace().how = book_change::book;
        change->cliente = 1 + below(2);
        program_->ask("click mirorc.bottone(8)");
        program_->ask("scroll mirorcc.HScroll1 " + std::to_string(change->cliente));
        change->numero = std::stoi(shown("mirorcc.Text3(0)"));
        program_->ask("click mirorcc.bottone");
        const json rows = program_->ask("rows mirorcr.elenco")["value"];
        for (std::size_t r = 1; r < rows.size() && !rows[r][7].get<std::string>().empty(); ++r) {
            const std::size_t record = std::stoul(rows[r][7].get<std::string>()) - 1;
            const book_row& row = book.orders.at(record / 200).at(record % 200);
            auto& listed = change->listed;
            if (listed.empty() || listed.back() != row.numero) listed.push_back(row.numero);
            const bool twice = std::ranges::any_of(
                change->leaving, [&](const auto& one) { return one.articolo == row.articolo; });
            if (twice || below(3) == 0) continue;
            change->leaving.push_back(
                {row.numero, record % 200, row.articolo, row.quantita - row.evaso});
            const std::string cell = "cell mirorcr.elenco " + std::to_string(r);
            if (below(3) != 0) {
                program_->ask(cell + " 5");
                continue;
            }
            change->leaving.back().quantity = 1 + below(3);
            program_->ask(cell + " 6");
            program_->ask("set mirorcr.quantita \"" +
                          std::to_string(int(change->leaving.back().quantity)) + "\"");
            program_->ask("key mirorcr.quantita Enter");
        }
        command_ = "click mirorcr.bottone(1)";
    }
    /// The rows as they were booked: another station may have changed them since they were listed.
    void prepare_unloading() {
        const json lines = program_->ask("rows mirorca.elenco")["value"];
        next_ = *change;
        next_->how = book_change::unload;
        std::set<int> articles;
        for (std::size_t i = 0; i < next_->leaving.size(); ++i) {
            next_->leaving[i].articolo = std::stoi(lines[i][0].get<std::string>());
            articles.insert(next_->leaving[i].articolo);
        }
        home_ = false;
        // A question about an article is to be one about its row.
        if (articles.size() < next_->leaving.size()) next_.reset();
        command_ = "click mirorca.comando(1)";
    }
    /// A question about stock, which waits for another round.
    outcome leave_open(const std::string& question) {
        command_ = "answer yes";
        if (below(2) != 0) return waits;
        command_ = "answer no";
        std::erase_if(change->leaving, [&](const auto& row) {
            return question.find(" A" + std::to_string(row.articolo) + " ") != std::string::npos;
        });
        return waits;
    }
    /// The goods have left.
    outcome go_on_to_document() {
        next_ = *change;
        next_->how = book_change::document;
        command_ = "answer yes";
        return done;
    }

    std::filesystem::path drive_;
    std::mt19937& random_;
    int& numbers_;  ///< of orders, given so far
    std::optional<process> program_;
    std::string command_;  ///< makes the change
    std::optional<book_change> next_;
    std::string why_not_;
    bool home_ = true;  ///< at the register
    bool dead_ = false;
};

std::string text_of(const book_change& change) {
    constexpr const char* names[] = {"add",    "edit",     "remove", "book",
                                     "unload", "document", "compact"};
    std::string text = names[change.how];
    for (const book_row& row : change.order) {
        text += " " + row.numero + ":" + std::to_string(row.articolo) + "x" +
                std::to_string(row.quantita) + "-" + std::to_string(row.evaso);
    }
    for (const auto& one : change.leaving) {
        text +=
            " " + one.numero + "." + std::to_string(one.row) + "x" + std::to_string(one.quantity);
    }
    return text + "\n";
}

class trial {
 public:
    explicit trial(unsigned seed) : random_(seed) {
        for (const int block : {1, 2, 3, 4}) {
            company_.order(block, 1 + block % 2, {{1, 5}, {2, 3}, {3, 8}});
        }
        book_ = trial_book::of(company_.files);
        for (int i = 0; i < 3; ++i) players_.emplace_back(company_.drive(), random_, numbers_);
    }

    void play_round() {
        std::vector<player*> active;
        for (player& one : players_) {
            one.prepare(book_);
            if (one.change && below(4) != 0) active.push_back(&one);
        }
        if (active.empty()) return;
        for (player* one : active) one->begin();
        player* const stopped =
            long_sessions() && below(20) == 0 ? stop_one_inside(active) : nullptr;
        if (!stopped) disturb(*active[below(active.size())]);

        std::vector<book_change> changes;
        const book_change* broken = nullptr;
        std::vector<player::outcome> outcomes;
        std::string text;
        for (player* one : active) {
            if (one == stopped) one->wake();
            const auto from = outcomes.emplace_back(one->settle());
            const book_change& wanted = *one->change;
            if (from == player::done) changes.push_back(wanted);
            if (from == player::ended) broken = &*one->change;
            text += std::to_string(from) + " " + text_of(wanted);
        }
        const trial_book before = book_;
        const trial_book now = trial_book::of(company_.files);
        ASSERT_TRUE(book_.goes_on(now, changes, broken)) << before.text() << text << "gives\n"
                                                         << now.text();
        for (std::size_t i = 0; i < active.size(); ++i) active[i]->go_on(outcomes[i]);
        mend_what_was_broken_off();
        if (below(8) == 0) goods_come_in();
    }

 private:
    std::size_t below(std::size_t limit) { return random_() % limit; }
    void disturb(player& one) {
        const std::size_t how = below(3);
        if (how == 0) return;
        std::this_thread::sleep_for(std::chrono::microseconds(below(8000)));
        if (how == 1) return one.end();
        one.stop();
        std::this_thread::sleep_for(std::chrono::microseconds(below(40'000)));
        one.wake();
    }
    /// Stops a station that has the archive locked, and makes it the last one. It stays so until
    /// the others are through, be it that they don't want to wait any longer.
    player* stop_one_inside(std::vector<player*>& active) {
        const auto locked = [this] { return company_.files.tot.shared_file()->locked_by(); };
        const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
        while (std::chrono::steady_clock::now() < until) {
            player* const one = active[below(active.size())];
            if (!locked()) continue;
            one->stop();
            std::this_thread::sleep_for(std::chrono::milliseconds(40));
            if (locked()) {
                std::erase(active, one);
                active.push_back(one);
                return one;
            }
            one->wake();
        }
        return nullptr;
    }
    /// A compaction that was ended leaves orders twice: the later ones go, while nobody works.
    void mend_what_was_broken_off() {
        std::set<std::string> seen;
        for (std::size_t i = 0; i < book_.orders.size(); ++i) {
            if (seen.insert(book_.orders[i][0].numero).second) continue;
            if (seen.insert("").second) {
                for (player& one : players_) one.restart();
            }
            const std::string numero = std::to_string(++numbers_);
            company_.change_rows(int(i) + 1, [&](rec_orc& row) {
                row.annullato = 1;
                row.numero = numero;
            });
        }
        book_ = trial_book::of(company_.files);
    }
    void goods_come_in() {
        for (const int article : {1, 2, 3}) {
            change_stored(company_.files.art, article,
                          [](rec_art& one) { one.giacenza = one.giacenza + 20; });
        }
        book_ = trial_book::of(company_.files);
    }

    std::mt19937 random_;
    order_company company_;
    trial_book book_;
    int numbers_ = 100;
    std::deque<player> players_;
};

TEST(trial, OfThreeStationsLeavesEveryFigureRightOrTellsThem) {
    std::signal(SIGPIPE, SIG_IGN);
    const unsigned seed = first_seed();
    trial one(seed);
    for (int round = 0; round < (long_sessions() ? 300 : 15) && !HasFailure(); ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", round " + std::to_string(round));
        one.play_round();
    }
}

}  // namespace
}  // namespace vantora::test
