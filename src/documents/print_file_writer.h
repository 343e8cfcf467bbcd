#pragma once

#include <memory>
#include <string>

#include "documents/print_file.h"
#include "store/file_port.h"

namespace vantora {

/// Writes a print file. Failures are passed over: a file that can't be created or filled takes
/// nothing from what goes to the printer.
class print_file_writer {
 public:
    /// Empties the file and writes its first line, `marca_verticale` or `marca_orizzontale`.
    print_file_writer(file_port& files, std::string_view mark);
    print_file_writer(const print_file_writer&) = delete;
    print_file_writer& operator=(const print_file_writer&) = delete;
    /// Hands the rest to the file and closes it.
    ~print_file_writer();

    /// Writes one record with the lines that its kind has.
    void write(const record_di_stampa& record);
    /// Ends the page.
    void end_page();

 private:
    void line(std::string_view text);
    void number(double value);
    void hand_over();

    std::unique_ptr<file> file_;
    std::string pending_;  ///< lines on their way to the file
    std::int64_t written_ = 0;
};

}  // namespace vantora
