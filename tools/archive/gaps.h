#pragma once

#include <string>
#include <vector>

#include "archive/company_files.h"

namespace vantora::archive {

/// Something of a company that can't be had, in words.
struct gap {
    std::string file;
    std::string what;
};

using gaps = std::vector<gap>;

/// What is missing, cut short, unreadable or uncounted, told before anything is read out: what is
/// shown or written of such an archive looks whole and isn't.
gaps gaps_of(company_files& company);

/// The same as lines for a person.
std::string in_lines(const gaps& all);

/// So many records couldn't be read.
template <class Record>
void add_unread(const channel<Record>& file, int records, gaps& into) {
    if (records == 0) return;
    into.push_back({file.name(), std::to_string(records) + " registrazioni illeggibili"});
}

}  // namespace vantora::archive
