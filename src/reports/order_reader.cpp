#include "reports/order_reader.h"

#include <cstring>

namespace vantora {

order_reader::order_reader(const channel<rec_orc>& orders)
    : orders_(orders), rows_(std::make_unique<blocco_ordine>()) {}

const rec_orc& order_reader::first_row(int registrazione) {
    first_row_read_ = orders_.read(block_record(registrazione, 1), last_);
    return last_;
}

/// Right into the rows: what is left of them where it fails is read anew.
bool order_reader::read_at_once(int registrazione) {
    const auto& file = orders_.shared_file();
    const std::int64_t first = block_record(registrazione, 1);
    if (!file || first < 1) return false;
    const auto bytes = std::as_writable_bytes(std::span(*rows_));
    const auto had = file->read((first - 1) * channel<rec_orc>::record_length, bytes);
    if (!had) return false;
    if (*had < bytes.size()) std::memset(bytes.data() + *had, 0, bytes.size() - *had);
    return true;
}

std::span<const rec_orc> order_reader::block(int registrazione) {
    first_row_read_ = read_at_once(registrazione);
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
