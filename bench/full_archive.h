#pragma once

#include <string>

#include "store/archives.h"

namespace vantora::bench {

/// How much an archive for a bench holds.
struct archive_size {
    int orders = 0;
    int lines = 0;  ///< of each order
    int customers = 0;
    int articles = 0;
    int movements = 0;
};

/// Name of the customer at a place of the alphabet, from 1 on.
std::string customer_name(int place);

/// Fills an empty archive, counters and indexes included: customers whose records lie in another
/// order than their names, articles of a few families, and orders of any of them, a third of which
/// are fulfilled.
void fill_archive(archivi& files, const archive_size& size);

}  // namespace vantora::bench
