#pragma once

#include <string_view>

#include "store/archives.h"
#include "store/record_stretches.h"

namespace vantora {

/// The customers' names for one build of a list.
class customer_names {
 public:
    /// None are in use where their counter can't be read.
    explicit customer_names(const archivi& files) : names_(files.cli) {
        rec_tot counter;
        files.tot.read(contatori::clienti, counter);
        count_ = counter.quanti;
    }
    /// `count`: customers in use, from the counters file.
    customer_names(const channel<rec_cli>& customers, std::int16_t count)
        : names_(customers), count_(count) {}

    /// First name line of customer `number`, without blanks around; empty for a number that is no
    /// customer. Where the customer can't be read it is the name that was looked up before.
    /// Valid until the next call.
    std::string_view of(std::int16_t number) {
        if (number < 1 || number > count_) return {};
        return as_read(number);
    }

    /// The same for any record of the file, in use or not; for what is no record's number it is
    /// the name that was looked up before.
    std::string_view as_read(std::int16_t number) {
        return names_.of(number).intestazione1.trimmed();
    }

 private:
    struct name {
        name() = default;
        explicit name(const rec_cli& customer) : intestazione1(customer.intestazione1) {}

        text<40> intestazione1;
    };

    record_stretches<rec_cli, name> names_;
    std::int16_t count_ = 0;
};

}  // namespace vantora
