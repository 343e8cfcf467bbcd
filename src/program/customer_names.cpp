#include "program/customer_names.h"

#include <array>

namespace vantora {

namespace {

constexpr std::size_t stretch_length = 32;

}  // namespace

customer_names::customer_names(const channel<rec_cli>& customers, std::int16_t count)
    : customers_(customers), count_(count) {
    if (count <= 0) return;
    const auto stretches = (static_cast<std::size_t>(count) + stretch_length - 1) / stretch_length;
    stretches_.resize(stretches, known::no);
    names_.resize(stretches * stretch_length);
}

std::string_view customer_names::of(std::int16_t number) {
    if (number < 1 || number > count_) return {};
    const auto place = static_cast<std::size_t>(number - 1);
    known& state = stretches_[place / stretch_length];
    if (state == known::no) read_stretch(place / stretch_length);
    if (state == known::yes) {
        last_.intestazione1 = names_[place].full();
    } else {
        customers_.read(number, last_);
    }
    return last_.intestazione1.trimmed();
}

void customer_names::read_stretch(std::size_t stretch) {
    std::array<rec_cli, stretch_length> records;
    const std::size_t first = stretch * stretch_length;
    const bool read = customers_.read_block(static_cast<std::int64_t>(first) + 1, records);
    stretches_[stretch] = read ? known::yes : known::one_by_one;
    if (!read) return;
    for (std::size_t i = 0; i < stretch_length; ++i) {
        names_[first + i] = records[i].intestazione1;
    }
}

}  // namespace vantora
