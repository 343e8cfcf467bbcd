#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "store/records/rec_art.h"
#include "store/records/rec_prx.h"

namespace vantora::demo {

/// An article while the company is made. Money is counted in cents, quantities in tenths of the
/// unit: whole numbers, so that no machine rounds them differently.
struct article {
    rec_art record;  ///< its stock figures in tenths, its value unloaded in tenths times cents
    long long prezzo1_cents = 0;
    long long prezzo2_cents = 0;
    std::vector<std::string> long_text;  ///< in the code page; empty: none

    [[nodiscard]] bool deleted() const { return record.eliminato != 0; }
    [[nodiscard]] bool sold_by_measure() const { return record.um.full() == "MT"; }
};

/// The articles with their opening stock. Some are deleted, never the first; some have no bar code.
std::vector<article> make_articles(int count, std::uint64_t seed);

/// The record of an article as it is stored.
rec_art stored(const article& one);

/// The record of an article's long text. REQUIRES: it has one.
rec_prx stored_long_text(const article& one);

}  // namespace vantora::demo
