#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "archive/given_numbers.h"
#include "archive/survey.h"

namespace vantora::archive {

/// What makes the orders of a file no ground to build on.
struct block_problems {
    int lost = 0;           ///< blocks without anything inside the count
    int mixed = 0;          ///< blocks with rows of another order
    int no_article = 0;     ///< rows of articles that there aren't
    int twice_changed = 0;  ///< orders that stand twice, but not byte for byte

    [[nodiscard]] bool any() const { return lost + mixed + no_article + twice_changed > 0; }
};

/// The counted orders one by one, then against each other. What is found is kept until it is told:
/// what their counter is worth comes first.
class order_check {
 public:
    /// `last_number`: the number given last, as the counters say.
    order_check(const survey& known, int last_number) : found_(known), last_number_(last_number) {}

    void look_at(int registrazione, order_rows used, const block_facts& facts);
    /// An order that is, byte for byte, an earlier one; `half`: some rows count as deleted.
    void tell_twin(int registrazione, order_rows used, int of, bool half);
    /// What the orders say together, of counted blocks 1 to n; then all of it.
    void tell_all(const std::vector<block_facts>& facts, findings& into);

    [[nodiscard]] const block_problems& problems() const { return problems_; }

 private:
    void tell(gravity how_bad, const char* kind, std::string what, std::string advice);
    void check_rows_agree(order_rows order, const block_facts& facts);
    void check_head(const rec_orc& head);
    void check_marks(const rec_orc& row, std::size_t number);
    void check_lines(order_rows order, bool controls);
    void check_fulfilled(const rec_orc& line, std::size_t number);
    void check_balance(const rec_orc& head, double open, bool has_quantity);
    void note_number(const rec_orc& head);
    [[nodiscard]] bool told_shifted(findings& into) const;
    void tell_repeated_numbers();
    void tell_changed_twins(const std::vector<block_facts>& facts);

    const survey& found_;
    int last_number_;
    findings told_;
    block_problems problems_;
    int first_mixed_ = 0;  ///< block
    int registrazione_ = 0;
    const rec_orc* head_ = nullptr;                 ///< of the order looked at
    std::map<std::string_view, int> last_told_;     ///< by kind: an order is told once of each
    std::unordered_map<std::string, int> numbers_;  ///< "2024/12" and its first block
    std::map<std::string, std::string> repeated_;   ///< and all blocks, where there are more
    given_numbers given_;
};

}  // namespace vantora::archive
