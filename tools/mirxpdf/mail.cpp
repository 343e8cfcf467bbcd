#include "mirxpdf/mail.h"

#include <curl/curl.h>
#include <sys/socket.h>

#include <QDateTime>
#include <QUrl>
#include <QUuid>
#include <algorithm>
#include <array>
#include <chrono>
#include <map>
#include <memory>

namespace vantora::mirxpdf {

namespace {

template <auto Function>
struct release {
    template <class Handle>
    void operator()(Handle* handle) const {
        Function(handle);
    }
};
using session = std::unique_ptr<CURL, release<curl_easy_cleanup>>;
using address_of_server = std::unique_ptr<CURLU, release<curl_url_cleanup>>;
using message = std::unique_ptr<curl_mime, release<curl_mime_free>>;

using text_list = std::unique_ptr<curl_slist, release<curl_slist_free_all>>;

void add(text_list& to, const std::string& text) {
    if (curl_slist* longer = curl_slist_append(to.get(), text.c_str())) {
        to.release();
        to.reset(longer);
    }
}

constexpr long patience_to_connect = 30;  // seconds
constexpr long patience_for_bytes = 30;   // seconds without any byte
constexpr std::chrono::seconds patience_in_all{patience_for_bytes + 2};

/// When the server last said something, or took something of the mail. One that stalled is taken
/// leave of, and would stall once more.
struct pace {
    std::chrono::steady_clock::time_point since = std::chrono::steady_clock::now();
    bool heard = false;
};

int listen(CURL*, curl_infotype what, char*, std::size_t, void* to) {
    auto& last = *static_cast<pace*>(to);
    last.heard |= what == CURLINFO_HEADER_IN;
    // Until then there are the stations of connecting.
    const bool moves = !last.heard || what == CURLINFO_HEADER_IN || what == CURLINFO_DATA_OUT;
    if (moves) last.since = std::chrono::steady_clock::now();
    return 0;
}

/// Breaks off if not 0.
int keep_pace(void* of, curl_off_t, curl_off_t, curl_off_t, curl_off_t) {
    const auto silent = std::chrono::steady_clock::now() - static_cast<pace*>(of)->since;
    return silent > patience_in_all ? 1 : 0;
}

std::string named(std::string text, const std::string& document) {
    constexpr std::string_view place = "{documento}";
    for (std::size_t at = 0; (at = text.find(place, at)) != std::string::npos;) {
        text.replace(at, place.size(), document);
        at += document.size();
    }
    return text;
}

std::string stem_of(const std::string& file_name) {
    return file_name.substr(0, file_name.rfind('.'));
}

std::string shown(const mailbox& one) {
    if (one.name.empty()) return one.address;
    std::string name = header_text(one.name);
    if (name == one.name) {
        std::erase_if(name, [](char character) { return character == '"' || character == '\\'; });
        name = '"' + name + '"';
    }
    return name + " <" + one.address + ">";
}

std::string attachment_line(const std::string& file_name) {
    std::string plain = file_name;
    std::ranges::replace_if(
        plain, [](unsigned char c) { return c < 32 || c > 126 || c == '"' || c == '\\'; }, '_');
    std::string line = "Content-Disposition: attachment; filename=\"" + plain + '"';
    if (plain != file_name) {
        const auto coded = QUrl::toPercentEncoding(QString::fromStdString(file_name));
        line += "; filename*=UTF-8''" + coded.toStdString();
    }
    return line;
}

void add_headers(text_list& to, const mail_settings& settings, const mailbox& sender,
                 const std::vector<mailbox>& addressees, const std::string& document) {
    std::string everyone;
    for (const mailbox& one : addressees) everyone += (everyone.empty() ? "" : ", ") + shown(one);
    add(to, "Date: " + QDateTime::currentDateTime().toString(Qt::RFC2822Date).toStdString());
    add(to, "From: " + shown(sender));
    add(to, "To: " + everyone);
    add(to, "Subject: " + header_text(named(settings.oggetto, document)));
    add(to, "Message-ID: <" + QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString() +
                sender.address.substr(sender.address.find('@')) + ">");
}

std::string with_mail_line_ends(const std::string& text) {
    std::string made;
    for (const char character : text)
        made += character == '\n' ? "\r\n" : std::string(1, character);
    return made;
}

message make_message(CURL* of, const mail_settings& settings, const std::string& file_name,
                     const QByteArray& pdf) {
    message made(curl_mime_init(of));
    const std::string text = with_mail_line_ends(named(settings.testo, stem_of(file_name)));
    curl_mimepart* part = curl_mime_addpart(made.get());
    curl_mime_data(part, text.data(), text.size());
    curl_mime_type(part, "text/plain; charset=utf-8");
    curl_mime_encoder(part, "quoted-printable");
    if (pdf.isEmpty()) return made;

    part = curl_mime_addpart(made.get());
    curl_mime_data(part, pdf.data(), static_cast<std::size_t>(pdf.size()));
    curl_mime_type(part, "application/pdf");
    curl_mime_encoder(part, "base64");
    text_list headers;
    add(headers, attachment_line(file_name));
    curl_mime_headers(part, headers.release(), 1);
    return made;
}

/// Null if the server's name can't be one.
address_of_server server_address(const mail_settings& settings) {
    address_of_server made(curl_url());
    const char* scheme = settings.sicurezza == sicurezza::tls ? "smtps" : "smtp";
    const std::string port = std::to_string(settings.porta);
    if (curl_url_set(made.get(), CURLUPART_SCHEME, scheme, 0) != CURLUE_OK ||
        curl_url_set(made.get(), CURLUPART_HOST, settings.server.c_str(), 0) != CURLUE_OK ||
        curl_url_set(made.get(), CURLUPART_PORT, port.c_str(), 0) != CURLUE_OK) {
        return nullptr;
    }
    return made;
}

void set_up(CURL* to, const mail_settings& settings, CURLU* server) {
    curl_easy_setopt(to, CURLOPT_CURLU, server);
    curl_easy_setopt(to, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    // Mail never takes the way of a proxy for web pages.
    curl_easy_setopt(to, CURLOPT_PROXY, "");
    const bool clear = settings.sicurezza == sicurezza::nessuna;
    curl_easy_setopt(to, CURLOPT_USE_SSL,
                     static_cast<long>(clear ? CURLUSESSL_NONE : CURLUSESSL_ALL));
    curl_easy_setopt(to, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(to, CURLOPT_SSL_VERIFYHOST, 2L);
    if (!settings.utente.empty()) {
        curl_easy_setopt(to, CURLOPT_USERNAME, settings.utente.c_str());
        curl_easy_setopt(to, CURLOPT_PASSWORD, settings.password.c_str());
    }
    curl_easy_setopt(to, CURLOPT_CONNECTTIMEOUT, patience_to_connect);
    curl_easy_setopt(to, CURLOPT_SERVER_RESPONSE_TIMEOUT, patience_for_bytes);
    curl_easy_setopt(to, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(to, CURLOPT_LOW_SPEED_TIME, patience_for_bytes);
}

/// What it means to the user, and in brackets the library's own words for whoever helps.
std::string explained(CURLcode code, std::string_view details) {
    static const std::map<CURLcode, std::string_view> meanings = {
        {CURLE_COULDNT_RESOLVE_HOST, "il server non si trova"},
        {CURLE_COULDNT_CONNECT, "il server non risponde"},
        {CURLE_OPERATION_TIMEDOUT, "il server non risponde"},
        {CURLE_USE_SSL_FAILED, "il server non offre un collegamento cifrato"},
        {CURLE_PEER_FAILED_VERIFICATION, "il certificato del server non è attendibile"},
        {CURLE_LOGIN_DENIED, "nome o password non sono accettati"},
    };
    if (details.empty()) details = curl_easy_strerror(code);
    details = details.substr(0, details.find_last_not_of(" .") + 1);
    const auto meaning = meanings.find(code);
    if (meaning == meanings.end()) return std::string(details);
    return std::string(meaning->second).append(" (").append(details).append(")");
}

}  // namespace

std::optional<std::string> send_pdf(const mail_settings& settings,
                                    const std::vector<mailbox>& addressees,
                                    const std::string& file_name, const QByteArray& pdf) {
    const auto sender = read_mailbox(settings.mittente);
    if (!sender) return "il mittente non è un indirizzo valido: " + settings.mittente;
    const address_of_server server = server_address(settings);
    if (!server) return "il nome del server non è valido: " + settings.server;

    // Freed after the session that uses them.
    text_list headers;
    text_list receivers;
    message mail;
    pace last;
    std::array<char, CURL_ERROR_SIZE> reason{};
    const session connection(curl_easy_init());
    if (!connection) return "la posta non si avvia";
    CURL* const curl = connection.get();
    set_up(curl, settings, server.get());
    curl_easy_setopt(curl, CURLOPT_ERRORBUFFER, reason.data());

    add_headers(headers, settings, *sender, addressees, stem_of(file_name));
    for (const mailbox& one : addressees) add(receivers, one.address);
    mail = make_message(curl, settings, file_name, pdf);
    curl_easy_setopt(curl, CURLOPT_MAIL_FROM, sender->address.c_str());
    curl_easy_setopt(curl, CURLOPT_MAIL_RCPT, receivers.get());
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers.get());
    curl_easy_setopt(curl, CURLOPT_MIMEPOST, mail.get());

    curl_easy_setopt(curl, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(curl, CURLOPT_XFERINFODATA, &last);
    curl_easy_setopt(curl, CURLOPT_XFERINFOFUNCTION, keep_pace);
    curl_easy_setopt(curl, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(curl, CURLOPT_DEBUGDATA, &last);
    curl_easy_setopt(curl, CURLOPT_DEBUGFUNCTION, listen);

    const CURLcode done = curl_easy_perform(curl);
    // The server has the mail or hasn't: how it answers the leave, nobody waits for.
    curl_socket_t socket = CURL_SOCKET_BAD;
    curl_easy_getinfo(curl, CURLINFO_ACTIVESOCKET, &socket);
    if (socket != CURL_SOCKET_BAD) ::shutdown(socket, SHUT_RD);
    if (done == CURLE_OK) return {};
    return explained(done, reason.data());
}

}  // namespace vantora::mirxpdf
