#include "reports/order_reader.h"

namespace vantora {

order_reader::order_reader(const channel<rec_orc>& orders)
    : orders_(orders), rows_(std::make_unique<blocco_ordine>()) {}

const rec_orc& order_reader::first_row(int registrazione) {
    first_row_read_ = orders_.read(block_record(registrazione, 1), last_);
    return last_;
}

std::span<const rec_orc> order_reader::block(int registrazione) {
    first_row_read_ = orders_.read_block(block_record(registrazione, 1), *rows_);
    if (first_row_read_) {
        last_ = rows_->back();
        return *rows_;
    }
    // What a part of the block keeps from being read at once may spare its other rows.
    std::int64_t number = block_record(registrazione, 1);
    for (rec_orc& row : *rows_) {
        const bool read = orders_.read(number, last_);
        if (&row == &rows_->front()) first_row_read_ = read;
        row = last_;
        ++number;
    }
    return *rows_;
}

}  // namespace vantora
