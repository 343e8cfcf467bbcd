#pragma once

#include "store/archives.h"

namespace vantora {

/// An order, or a quote, as a screen saw it in its block. Another station that compacts the archive
/// moves blocks; before the order is written over, these signs tell whether the block is still its
/// own.
struct ordine_visto {
    ordine_visto() = default;
    ordine_visto(int block, const rec_orc& row)
        : registrazione(block),
          numero(row.numero),
          data(row.data),
          cliente(row.cliente),
          data_reg(row.data_reg) {}
    ordine_visto(int block, const rec_prv& row)
        : registrazione(block), numero(row.numero), data(row.data), cliente(row.cliente) {}

    /// Whether it is known when the order was saved first.
    [[nodiscard]] bool dated() const;

    int registrazione = 0;
    bool letto = true;  ///< false: it couldn't be read, what stands here is another one's
    text<10> numero;
    text<8> data;
    i16le cliente;
    f64le data_reg;  ///< stays with an order for good, unlike the others; 0: none
};

/// Whether both are the same order, wherever they were seen. The date of the first save tells
/// orders apart, whatever became of their heads; without one the heads do.
bool same_order(const ordine_visto& one, const ordine_visto& other);

/// What became of the archive's orders since their counter, which is now `now`, stood as `then`.
/// REQUIRES: no other station compacts now.
class orders_since {
 public:
    orders_since(const rec_tot& now, const rec_tot& then, const channel<rec_orc>& orders);

    /// Whether what is there now, read anew from the block where the order was seen, is another
    /// one, or the block counts no longer. The date of the first save tells orders apart, whatever
    /// became of their heads; without one a changed head is another order's once other stations
    /// were at work. Two orders can have been saved in the same second: of these, the one seen was
    /// moved if it stands, head and all, in a block before.
    [[nodiscard]] bool took_away(const ordine_visto& seen, const ordine_visto& there) const;
    [[nodiscard]] bool took_away(const ordine_visto& seen, const rec_orc& row) const {
        return took_away(seen, ordine_visto(seen.registrazione, row));
    }

 private:
    [[nodiscard]] bool stands_before(const ordine_visto& seen) const;

    rec_tot now_;
    const channel<rec_orc>& orders_;
    bool others_at_work_;
};

}  // namespace vantora
