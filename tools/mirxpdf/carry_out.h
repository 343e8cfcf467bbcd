#pragma once

#include <optional>
#include <string>

#include "mirxpdf/notices.h"
#include "mirxpdf/request.h"
#include "store/file_port.h"

namespace vantora::mirxpdf {

// What came of a call: the program's exit codes.
inline constexpr int all_done = 0;
inline constexpr int no_pdf = 1;
inline constexpr int wrong_arguments = 2;
inline constexpr int not_sent = 3;  ///< the PDF is made

/// Makes the PDF of a print file and puts it in its place, mails it if there is an address, and
/// tells the user. Without a whole new PDF an older one stays. `print_file`: its content, empty if
/// it couldn't be read. REQUIRES: a QApplication.
int carry_out(const pdf_request& request, const std::optional<std::string>& print_file,
              file_port& files, const notices& tell);

/// A mail without a document, for what runs at night.
struct notice {
    std::string addressee;  ///< in the code page
    std::string subject;    ///< these in UTF-8
    std::string text;
};

/// Sends it through the settings of the documents' mail.
int send_notice(const notice& one, file_port& files, const notices& tell);

}  // namespace vantora::mirxpdf
