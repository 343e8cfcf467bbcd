#pragma once

#include <map>
#include <string>

#include "archive/company_files.h"
#include "store/money.h"
#include "store/suite_table.h"

namespace vantora::archive {

// What records say to a person, in Italian, on a terminal.

/// What words of records are made with: the names of those that they point to, and the company's
/// currency and VAT table.
class show_words {
 public:
    explicit show_words(company_files& company);

    [[nodiscard]] std::string customer(std::int16_t number) const;
    /// Number and code, with a blank behind; empty for none.
    [[nodiscard]] std::string article(std::int16_t number) const;

    // One line for a list.
    [[nodiscard]] std::string line(std::int64_t number, const rec_cli& one) const;
    [[nodiscard]] std::string line(std::int64_t number, const rec_art& one) const;
    [[nodiscard]] std::string line(std::int64_t number, const rec_mag& one) const;
    [[nodiscard]] std::string line(std::int64_t number, const rec_bol& one) const;
    [[nodiscard]] std::string line(std::int64_t number, const rec_tot& one) const;
    [[nodiscard]] std::string line(std::int64_t block, const rec_orc& head) const;
    [[nodiscard]] std::string line(std::int64_t block, const rec_prv& head) const;

    /// An order or a quote whole: head, lines in use, totals.
    template <class Row>
    [[nodiscard]] std::string whole(std::int64_t block, std::span<const Row> rows) const;

 private:
    template <class Row>
    [[nodiscard]] std::string head_line(const char* kind, std::int64_t block,
                                        const Row& head) const;
    template <class Row>
    [[nodiscard]] std::string row_line(std::size_t number, const Row& row) const;

    archivi& files_;
    tabella_iva vat_;
    valuta currency_;
};

/// A figure as a person reads it: "1.234,5".
std::string figure(double value);

}  // namespace vantora::archive
