#pragma once

#include <memory>
#include <span>

#include "store/channel.h"
#include "store/records/order_block.h"
#include "store/records/rec_orc.h"

namespace vantora {

/// Reads the orders' rows for the lists of one screen, a block a call. A row that can't be read,
/// or that no file has, comes with the values of the row read before it.
class order_reader {
 public:
    explicit order_reader(const channel<rec_orc>& orders);

    /// Row 1 of a block, alone. Valid until the next call.
    const rec_orc& first_row(int registrazione);
    /// All rows of a block. Valid until the next call.
    std::span<const rec_orc> block(int registrazione);
    /// Whether row 1 of the block read last was really read.
    [[nodiscard]] bool first_row_read() const { return first_row_read_; }

 private:
    using blocco_ordine = std::array<rec_orc, righe_blocco>;

    bool read_at_once(int registrazione);

    const channel<rec_orc>& orders_;
    std::unique_ptr<blocco_ordine> rows_;
    rec_orc last_;  ///< the row read last
    bool first_row_read_ = false;
};

}  // namespace vantora
