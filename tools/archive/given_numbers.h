#pragma once

#include <algorithm>
#include <map>
#include <string>

#include "archive/finding.h"
#include "archive/words.h"

namespace vantora::archive {

/// The highest number given to documents of a kind in each year.
class given_numbers {
 public:
    void add(const std::string& year, int number) {
        int& highest = highest_[year];
        highest = std::max(highest, number);
    }
    void last_was_in(const std::string& year) { latest_ = year; }

    /// The counter's last number is below that of the year in which the last was given.
    void tell_last(int last, const char* kind, const char* counter, const char* next,
                   findings& into) const {
        const auto highest = highest_.find(latest_);
        if (highest == highest_.end() || last >= highest->second) return;
        into.push_back({gravity::warning, kind, counter,
                        "l'ultimo numero è " + std::to_string(last) + ", ma nel " +
                            words_of(latest_) + " si è arrivati a " +
                            std::to_string(highest->second),
                        std::string("Nel prossimo ") + next +
                            " scrivere il numero giusto: quello proposto c'è già."});
    }

 private:
    std::map<std::string, int> highest_;
    std::string latest_;
};

}  // namespace vantora::archive
