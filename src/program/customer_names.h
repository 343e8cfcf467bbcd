#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "store/channel.h"
#include "store/records/rec_cli.h"

namespace vantora {

/// The customers' names for one build of a list: neighbours are read together, and each stretch
/// of the file once.
class customer_names {
 public:
    /// `count`: customers in use, from the counters file.
    customer_names(const channel<rec_cli>& customers, std::int16_t count);

    /// First name line of customer `number`, without blanks around; empty for a number that is no
    /// customer. Where the customer can't be read it is the name that was looked up before.
    /// Valid until the next call.
    std::string_view of(std::int16_t number);

 private:
    enum class known : unsigned char { no, yes, one_by_one };

    void read_stretch(std::size_t stretch);

    const channel<rec_cli>& customers_;
    std::int16_t count_;
    std::vector<known> stretches_;
    std::vector<text<40>> names_;
    rec_cli last_;
};

}  // namespace vantora
