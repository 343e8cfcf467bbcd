#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

namespace vantora::mirxpdf {

/// How a connection to the mail server is kept from others' eyes.
enum class sicurezza { tls, starttls, nessuna };

/// The settings of mirxpdf.conf, in UTF-8. `{documento}` in subject and text stands for the
/// document's name.
struct mail_settings {
    std::string server;  ///< empty: e-mail isn't set up
    int porta = 0;
    mirxpdf::sicurezza sicurezza = sicurezza::tls;
    std::string utente;  ///< empty: no login
    std::string password;
    std::string mittente;  ///< "ordini@ditta.it" or "Ditta <ordini@ditta.it>"
    std::string oggetto = "Documento {documento}";
    std::string testo;  ///< lines ended by LF
};

/// Bytes of mirxpdf.conf: subjects and texts made from it stay of a size that any server takes.
inline constexpr std::size_t settings_size_max = 64 * 1024;

/// What is wrong with the settings, for the user, in UTF-8.
struct settings_error {
    std::string what;
};

/// Reads the content of mirxpdf.conf: `chiave = valore` lines, comments behind a "#" at the
/// beginning of a line. Several `testo` lines follow each other. What isn't set gets its default:
/// the port by the security, the sender from the user. The first wrong line is an error, and so is
/// a server without a sender.
std::variant<mail_settings, settings_error> read_mail_settings(std::string_view content);

}  // namespace vantora::mirxpdf
