#pragma once

#include <filesystem>
#include <functional>
#include <iosfwd>

namespace vantora::archive {

/// Sets `ordinato_clienti` right where it isn't what the open orders add up to: shows what it will
/// change, asks, copies "vantora.art" beside itself, writes those articles and no others. An
/// article that another program changed meanwhile keeps that change. `confirmed` answers the
/// question. 0 when all is right afterwards, 1 when the user refused, 3 when a file can't be read,
/// copied or written.
int repair_ordered_quantities(const std::filesystem::path& root, int numero_azienda,
                              const std::function<bool()>& confirmed, std::ostream& out);

}  // namespace vantora::archive
