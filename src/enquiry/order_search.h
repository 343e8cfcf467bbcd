#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "enquiry/all_records.h"

namespace vantora {

/// A row of an order that holds a text looked for.
struct riga_trovata {
    std::int16_t registrazione = 0;
    int riga = 1;         ///< of the order's block, from 1
    std::string trovato;  ///< the text that holds it; empty if customer or article do
};

/// Looks for a text in the orders of a company, without regard to case and accents. One pass over
/// the blocks, each in one read, many at once; customers and articles are searched before, in one
/// pass over each, so that a row says by its numbers whether theirs match.
class order_search {
 public:
    order_search(const archivi& files, std::string_view wanted);

    /// Calls `found` for each row, the newest order first, and `goes_on` behind each order with how
    /// many blocks are passed, until that answers false.
    void run(const std::function<void(const rec_orc& head, riga_trovata)>& found,
             const std::function<bool(int passed)>& goes_on) const;

    [[nodiscard]] bool looks_for_something() const { return !wanted_.empty(); }

 private:
    template <class Record, class Texts>
    std::vector<bool> matching(const channel<Record>& records, int count, Texts texts) const;
    /// Whether a text, in its parts, holds what is wanted.
    [[nodiscard]] bool holds(std::initializer_list<std::string_view> parts) const;
    void look_into(const ordine_letto& order,
                   const std::function<void(const rec_orc& head, riga_trovata)>& found) const;
    /// What of an order's head rows holds the text; empty if nothing does.
    [[nodiscard]] std::string in_head(std::span<const rec_orc> block) const;
    /// What of a line does.
    [[nodiscard]] std::optional<std::string> in_line(const rec_orc& row) const;

    const archivi& files_;
    std::string wanted_;
    std::vector<bool> customers_;  ///< by number, from 0
    std::vector<bool> articles_;
    mutable std::string plain_;  ///< of the text at hand
};

}  // namespace vantora
