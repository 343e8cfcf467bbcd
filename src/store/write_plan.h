#pragma once

#include <string>
#include <string_view>

#include "store/channel.h"
#include "store/records/rec_tot.h"

namespace vantora {

/// What is looked at before the first write of a save, an edit, a deletion, a booking or an
/// unloading, so that it doesn't end half way: counters that make sense, files that can be written,
/// room on the disk. Nothing that another program could see changes meanwhile.
///
///     write_plan plan;
///     plan.counts(files.tot, contatori::ordini, counter);
///     plan.writes(files.orc, block_record(counter.quanti + 1, 1), righe_blocco);
///     if (!plan.possible()) ... name plan.obstacle() and write nothing
class write_plan {
 public:
    /// Counter `number` is read into `into`: it has to be readable, and not negative.
    void reads(const channel<rec_tot>& counters, int number, rec_tot& into) {
        note(counters.read(number, into) && into.quanti >= 0, counters.name());
    }

    /// The same for a counter that will be written, too.
    void counts(channel<rec_tot>& counters, int number, rec_tot& into) {
        reads(counters, number, into);
        writes(counters, number, 1);
    }

    /// `count` records from `first` on will be written.
    template <class Record>
    void writes(channel<Record>& records, std::int64_t first, std::int64_t count) {
        note(records.writable() && records.reserve(first, count), records.name());
    }

    /// Some records of the file will be written over.
    template <class Record>
    void changes(const channel<Record>& records) {
        note(records.writable(), records.name());
    }

    [[nodiscard]] bool possible() const { return obstacle_.empty(); }
    /// The first file that stands in the way: "vantora.orc". Empty if there is none.
    [[nodiscard]] const std::string& obstacle() const { return obstacle_; }

 private:
    void note(bool fine, std::string_view file) {
        if (!fine && obstacle_.empty()) obstacle_ = file.empty() ? "?" : file;
    }

    std::string obstacle_;
};

/// The files that refused a read, a write or a flush on the way all the same.
class write_faults {
 public:
    /// Takes the outcome of one read, write or flush; returns it.
    template <class Record>
    bool note(bool done, const channel<Record>& records) {
        return note(done, records.name());
    }
    bool note(bool done, std::string_view file) {
        const std::string_view name = file.empty() ? "?" : file;
        if (!done && names_.find(name) == std::string::npos) {
            if (!names_.empty()) names_ += ", ";
            names_ += name;
        }
        return done;
    }

    [[nodiscard]] bool none() const { return names_.empty(); }
    /// "vantora.orc, vantora.art", in the order of the first faults.
    [[nodiscard]] const std::string& names() const { return names_; }

 private:
    std::string names_;
};

}  // namespace vantora
