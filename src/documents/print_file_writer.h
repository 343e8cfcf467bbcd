#pragma once

#include <memory>
#include <string>

#include "documents/print_file.h"
#include "store/file_port.h"

namespace vantora {

/// Writes a print file. Failures are passed over: a file that can't be created or filled takes
/// nothing from what goes to the printer. After the first failure nothing more is written, and the
/// file is left empty where the system allows it, so that nobody takes it for a document.
class print_file_writer {
 public:
    /// Puts a new file in the place of the old one, which whoever has it open keeps, and writes its
    /// first line, `marca_verticale` or `marca_orizzontale`.
    print_file_writer(file_port& files, std::string_view mark);
    print_file_writer(const print_file_writer&) = delete;
    print_file_writer& operator=(const print_file_writer&) = delete;
    /// Hands the rest to the file and closes it.
    ~print_file_writer();

    /// Writes one record with the lines that its kind has.
    void write(const record_di_stampa& record);
    /// The same for a record whose texts lie elsewhere.
    void write_view(const vista_di_record& record, forma_stile form = forma_stile::numeri);
    /// Ends the page.
    void end_page();

    /// Hands the rest to the file and closes it; nothing may be written afterwards. True if the
    /// file holds everything that was written: only then may another program be given it.
    [[nodiscard]] bool finish();

 private:
    void line(std::string_view text);
    void number(double value);
    void hand_over();

    file_port& files_;
    std::unique_ptr<file> file_;  ///< null once a failure has left it empty
    std::string pending_;         ///< lines that wait for others
    std::int64_t written_ = 0;
    bool whole_;
};

}  // namespace vantora
