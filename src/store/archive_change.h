#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

#include "store/archives.h"

namespace vantora {

/// What came of a change of the archive.
struct change_outcome {
    enum what {
        done,
        in_part,         ///< `files` refused on the way, the rest is stored
        nothing_stored,  ///< `files` refused on the way, and nothing is left of the change
        stock_moved,     ///< the same, but stock moved for it and couldn't be put back
        // It didn't begin, nothing was written:
        refused,      ///< `files` can't be read, written or locked, or has no room
        removed,      ///< `files` isn't in its place any more
        full,         ///< `files` has as many records as its counter can count
        not_awaited,  ///< another station is at work, and the user didn't want to wait on
        to_be_asked,  ///< others changed something that the user is to be asked about first
        order_moved,  ///< a compaction elsewhere put another order into a block to be changed
    };

    what how = done;
    std::string files;  ///< "vantora.orc, vantora.art", in the order of the first faults

    [[nodiscard]] bool begun() const { return how < refused; }
    /// All of it or a part.
    [[nodiscard]] bool stored() const { return how <= in_part; }
};

/// One change of the archive, the only way to write its records: it keeps other instances out,
/// looks before it writes so that it doesn't end half way, notes what refuses, and says at the end
/// what came of it. Other instances wait; other programs of the suite, and readers, aren't stopped.
///
///     archive_change change(files);
///     rec_tot counter;
///     change.counts(files.tot, contatori::ordini, counter, files.orc);
///     change.writes(files.orc, block_record(counter.quanti + 1, 1), righe_blocco);
///     if (!change.may_write()) return change.finish();
///     change.write(files.orc, ...);
///     change.flush(files.orc);
///     return change.finish();
///
/// The user is never asked anything while it lasts. In an instance they don't nest.
class archive_change {
 public:
    enum class faults {
        are_noted,        ///< what refuses is passed over
        end_the_program,  ///< a read or write that fails is a run-time error
    };

    /// Waits until no other station is at work, and goes along with files that were replaced. The
    /// user sees that and may give up; a lock that stays busy is never overrun.
    explicit archive_change(archivi& files, faults then = faults::are_noted);
    archive_change(const archive_change&) = delete;
    archive_change& operator=(const archive_change&) = delete;
    ~archive_change();

    /// What the book of what was done calls it: "ordine nuovo", "12", in the code page. A change
    /// without a name isn't in it.
    void recorded_as(std::string what, std::string which = {}) {
        what_ = std::move(what);
        which_ = std::move(which);
    }

    // Looking: once something stands in the way, nothing more is looked at ----------------------

    /// Counter `number` is read into `into`: it has to be readable, and not negative.
    void reads(channel<rec_tot>& counters, int number, rec_tot& into);

    /// The same for a counter of `records` that will rise by `more`.
    template <class Record>
    void counts(channel<rec_tot>& counters, int number, rec_tot& into,
                const channel<Record>& records, int more = 1) {
        reads(counters, number, into);
        writes(counters, number, 1);
        if (into.quanti > most_counted - more) give_up(change_outcome::full, records.name());
    }

    /// `count` records from `first` on will be written.
    template <class Record>
    void writes(channel<Record>& records, std::int64_t first, std::int64_t count) {
        changes(records);
        require(!may_write() || records.reserve(first, count), records.name());
    }

    /// Some records of the file will be written over.
    template <class Record>
    void changes(channel<Record>& records) {
        look_for(records);
        require(records.writable(), records.name());
    }

    /// Gives up unless a condition of the change itself holds.
    void require(bool fine, std::string_view file) {
        if (!fine) give_up(change_outcome::refused, file);
    }
    void give_up(change_outcome::what why, std::string_view file = {});

    /// False: nothing is to be written.
    [[nodiscard]] bool may_write() const { return outcome_.begun(); }

    /// It isn't begun since another station is at work.
    [[nodiscard]] bool others_at_work() const {
        return outcome_.how == change_outcome::not_awaited;
    }

    // Writing -----------------------------------------------------------------------------------

    template <class Record>
    bool read(const channel<Record>& from, std::int64_t number, Record& into) {
        return note(from.read(number, into), from.name());
    }
    template <class Record>
    bool read_block(const channel<Record>& from, std::int64_t first, std::span<Record> into) {
        return note(from.read_block(first, into), from.name());
    }
    template <class Record>
    bool write(channel<Record>& to, std::int64_t number, const Record& record) {
        return write_block(to, number, std::span(&record, 1));
    }
    template <class Record>
    bool write_block(channel<Record>& to, std::int64_t first, std::span<const Record> records) {
        return wrote(note(to.write_block(first, records), to.name()));
    }
    /// Never ends the program.
    template <class Record>
    bool flush(channel<Record>& of) {
        return of.flush() || remember(of.name());
    }
    /// Takes the outcome of any other step; returns it.
    bool note(bool done, std::string_view file);

    /// The same of a write that went another way.
    bool note_write(bool done, std::string_view file) { return wrote(note(done, file)); }

    /// Nothing refused so far.
    [[nodiscard]] bool none_refused() const { return outcome_.files.empty(); }
    /// What was written so far doesn't count: nothing is left of it but, perhaps, moved stock.
    void take_back(bool stock_too);

    /// Lets other stations in, and says what came of it.
    change_outcome finish();

 private:
    static constexpr int most_counted = 32767;

    bool lock();
    bool wait_for_lock();
    template <class Record>
    void look_for(channel<Record>& records) {
        if (may_write() && records.follow() == file_place::removed) {
            give_up(change_outcome::removed, records.name());
        }
    }
    bool wrote(bool done) {
        written_ |= done;
        return done;
    }
    bool remember(std::string_view file);  ///< false
    void let_go();
    void record(bool interrupted) noexcept;

    archivi& files_;
    std::string what_;  ///< empty once it was recorded
    std::string which_;
    int exceptions_ = std::uncaught_exceptions();
    std::shared_ptr<file> locked_;  ///< null if there is nothing to let go
    bool changing_ = false;
    faults then_;
    bool written_ = false;
    bool stock_stays_moved_ = false;
    change_outcome outcome_;
};

}  // namespace vantora
