#pragma once

#include <QByteArray>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "mirxpdf/mail_settings.h"

namespace vantora::mirxpdf {

/// Someone who sends or gets mail, in UTF-8.
struct mailbox {
    std::string name;  ///< may be empty
    std::string address;

    bool operator==(const mailbox&) const = default;
};

/// Reads "ordini@ditta.it" or "Ditta <ordini@ditta.it>". Empty if that is no address that could
/// stand in a message: control characters, blanks or marks inside it, nothing around its "@".
std::optional<mailbox> read_mailbox(std::string_view text);

/// Reads addresses with blanks or ";" between them. Empty if one of them is none, or none is there.
std::vector<mailbox> read_addressees(std::string_view text);

/// A text as a header line carries it: as it is, or in encoded words if it isn't plain ASCII.
std::string header_text(std::string_view utf8);

/// Sends subject and text of the settings, with the PDF, if it isn't empty, as an attachment, by
/// SMTP and waits until the server has taken it. The answer is
/// why it couldn't be sent, for the user; empty if it was. The server's certificate is checked, and
/// with `starttls` nothing is told to a server that doesn't offer it.
/// REQUIRES: `settings` has a server.
std::optional<std::string> send_pdf(const mail_settings& settings,
                                    const std::vector<mailbox>& addressees,
                                    const std::string& file_name, const QByteArray& pdf);

}  // namespace vantora::mirxpdf
