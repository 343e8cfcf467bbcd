#pragma once

#include <cstdint>
#include <filesystem>

#include "demo/output.h"

namespace vantora::demo {

/// The most records of a file. An archive numbers 767 more: there is room to work.
inline constexpr int massimo_record = 32000;

/// A company to be made up. REQUIRES: the counts are 0 to `massimo_record`, the number 0 to 999.
struct demo_request {
    int numero_azienda = 0;
    int orders = 400;
    int articles = 900;
    int customers = 350;
    std::uint64_t seed = 1;
};

/// Makes the whole company under `drive`, the folder that stands for the suite's drive. The same
/// request gives the same bytes everywhere. General files of the suite that are there already
/// stay as they are. The company's folder appears in one step when all is written: an interrupted
/// run leaves none.
/// Throws `demo_error`, having changed nothing, if the company exists or the request has orders
/// without customers; and if a file can't be written, without leaving the company's folder.
void make_company(const demo_request& request, const std::filesystem::path& drive);

}  // namespace vantora::demo
