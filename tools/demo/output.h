#pragma once

#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "store/channel.h"
#include "store/file_port.h"

namespace vantora::demo {

/// A company couldn't be made; the text tells the user why, in UTF-8.
class demo_error : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Puts whole files into one folder of the suite. Every failure is a `demo_error`.
class folder_writer {
 public:
    /// `folder` is a path of the suite without a closing backslash. REQUIRES: it exists.
    folder_writer(file_port& files, std::string folder);

    /// A text file of these lines (UTF-8), in the code page, lines ended by CR LF.
    void write_lines(std::string_view name, const std::vector<std::string>& lines);

    void write_bytes(std::string_view name, std::span<const std::byte> bytes);

    /// One of thousands: no other spelling of its name is looked for.
    void write_one_of_many(std::string_view name, std::string_view bytes);

    template <class Record>
    void write_records(std::string_view name, const std::vector<Record>& records) {
        write_bytes(name, std::as_bytes(std::span(records)));
    }

    /// A record file that grows block by block.
    template <class Record>
    channel<Record> create_records(std::string_view name) {
        return channel<Record>(create(name));
    }

    /// REQUIRES: called with the answer of a write to the file of this name.
    static void check_written(bool written, std::string_view name);

 private:
    std::unique_ptr<file> create(std::string_view name);

    file_port& files_;
    std::string folder_;
};

}  // namespace vantora::demo
