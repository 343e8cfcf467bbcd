#pragma once

#include <vector>

#include "demo/articles.h"
#include "store/records/rec_cli.h"
#include "store/records/rec_index.h"

namespace vantora::demo {

// The sorted indexes: ascending by the key in capitals, by the characters' codes; equal keys in the
// order of their records. Deleted customers and articles are in them too.

std::vector<rec_src> index_by_name(const std::vector<rec_cli>& customers);
std::vector<rec_sra> index_by_code(const std::vector<article>& articles);
std::vector<rec_srb> index_by_bar_code(const std::vector<article>& articles);

}  // namespace vantora::demo
