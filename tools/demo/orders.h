#pragma once

#include <cstdint>
#include <vector>

#include "demo/articles.h"
#include "demo/deliveries.h"
#include "demo/output.h"
#include "store/records/rec_bol.h"
#include "store/records/rec_cli.h"
#include "store/records/rec_mag.h"

namespace vantora::demo {

/// Writes "vantora.orc": `count` orders through two years, the old ones mostly fulfilled, the late
/// ones mostly open, some deleted. Each order moves the stock of its articles as it was saved,
/// committed, delivered or deleted; each delivery leaves the text file of its transport document.
deliveries write_orders(folder_writer& into, int count, std::uint64_t seed,
                        const std::vector<rec_cli>& customers, std::vector<article>& articles);

/// Writes "vantora.prv": `count` quotes, some deleted.
void write_quotes(folder_writer& into, int count, std::uint64_t seed,
                  const std::vector<rec_cli>& customers, const std::vector<article>& articles);

}  // namespace vantora::demo
