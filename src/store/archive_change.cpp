#include "store/archive_change.h"

#include <thread>

#include "errors/run_time_errors.h"
#include "text/code_page.h"

namespace vantora {

archive_change::archive_change(archivi& files, faults then) : files_(files), then_(then) {
    // Whoever lets events run during a change could come here again.
    require(!files.changing, files.tot.name());
    if (!may_write() || !lock()) return;
    changing_ = files.changing = true;
    follow_archives(files);
    keep_archives_exact(files, true);
}

/// Takes the lock on the counters file that is in its place.
bool archive_change::lock() {
    constexpr int attempts_max = 5;
    for (int attempt = 0; attempt < attempts_max && wait_for_lock(); ++attempt) {
        const file_place place = files_.tot.follow();
        if (place == file_place::same) return true;
        let_go();
        if (place == file_place::removed) break;
    }
    if (may_write()) give_up(change_outcome::removed, files_.tot.name());
    return false;
}

bool archive_change::wait_for_lock() {
    using clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds pause{5};
    const auto tot = files_.tot.shared_file();
    auto answer = tot ? tot->try_lock() : lock_answer::refused;
    if (answer == lock_answer::busy) {
        // The program may end while the user is asked, and with it the archives.
        const auto show = files_.station_awaited;
        const auto wait_on = files_.wait_on;
        const auto patience = files_.patience;
        const auto began = clock::now();
        auto patient_until = began + patience;
        while (answer == lock_answer::busy) {
            if (show) show(tot->locked_by().value_or(""));
            std::this_thread::sleep_for(pause);
            answer = tot->try_lock();
            if (answer != lock_answer::busy || clock::now() < patient_until) continue;
            const auto so_far = clock::now() - began;
            if (!wait_on || !wait_on(std::chrono::duration_cast<std::chrono::seconds>(so_far))) {
                break;
            }
            patient_until = clock::now() + patience;
        }
        if (show) show({});
    }
    if (answer == lock_answer::busy) give_up(change_outcome::not_awaited);
    if (answer == lock_answer::refused) give_up(change_outcome::refused, files_.tot.name());
    if (answer == lock_answer::held) locked_ = tot;
    return may_write();
}

void archive_change::reads(channel<rec_tot>& counters, int number, rec_tot& into) {
    look_for(counters);
    if (may_write()) require(counters.read(number, into) && into.quanti >= 0, counters.name());
}

void archive_change::give_up(change_outcome::what why, std::string_view file) {
    if (may_write()) outcome_ = {why, std::string(file.empty() ? "?" : file)};
}

bool archive_change::note(bool done, std::string_view file) {
    if (done) return true;
    if (then_ == faults::end_the_program) throw device_error(file);
    return remember(file);
}

bool archive_change::remember(std::string_view file) {
    const std::string_view name = file.empty() ? "?" : file;
    std::string& names = outcome_.files;
    if (names.find(name) == std::string::npos) {
        if (!names.empty()) names += ", ";
        names += name;
    }
    return false;
}

void archive_change::take_back(bool stock_too) {
    written_ = false;
    stock_stays_moved_ = !stock_too;
}

change_outcome archive_change::finish() {
    let_go();
    if (may_write() && !none_refused()) {
        outcome_.how = stock_stays_moved_ ? change_outcome::stock_moved
                       : written_         ? change_outcome::in_part
                                          : change_outcome::nothing_stored;
    }
    record(false);
    return outcome_;
}

archive_change::~archive_change() {
    const bool interrupted = std::uncaught_exceptions() > exceptions_;
    let_go();
    record(interrupted);
}

namespace {

std::string words_for(const change_outcome& outcome) {
    switch (outcome.how) {
        case change_outcome::done:
            return "fatto";
        case change_outcome::in_part:
            return "in parte, errore su " + outcome.files;
        case change_outcome::nothing_stored:
            return "niente, errore su " + outcome.files;
        case change_outcome::stock_moved:
            return "niente, ma quantità già cambiate; errore su "_cp + outcome.files;
        case change_outcome::refused:
        case change_outcome::removed:
        case change_outcome::full:
            return "non cominciato, non va " + outcome.files;
        case change_outcome::not_awaited:
            return "non cominciato, un'altra postazione al lavoro";
        case change_outcome::order_moved:
            return "non cominciato, un'altra postazione ha compattato";
        case change_outcome::to_be_asked:
            break;
    }
    return {};
}

}  // namespace

/// A change that only looked isn't worth a line.
void archive_change::record(bool interrupted) noexcept {
    const std::string what = std::exchange(what_, {});
    if (what.empty() || !files_.book) return;
    if (!written_ &&
        (outcome_.how == change_outcome::done || outcome_.how == change_outcome::to_be_asked)) {
        return;
    }
    try {
        files_.book(what, which_, interrupted ? "interrotto" : words_for(outcome_));
    } catch (...) {
        // The work goes on without its book.
        return;
    }
}

void archive_change::let_go() {
    if (changing_) keep_archives_exact(files_, false);
    if (locked_) locked_->unlock();
    locked_ = nullptr;
    if (changing_) changing_ = files_.changing = false;
}

}  // namespace vantora
