#include "mail_server.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

namespace vantora::test {

namespace {

class line_socket {
 public:
    explicit line_socket(int connection) : connection_(connection) {}

    bool line(std::string& into) {
        std::size_t end = 0;
        while ((end = pending_.find("\r\n")) == std::string::npos) {
            char part[4096];
            const ssize_t got = ::recv(connection_, part, sizeof part, 0);
            if (got <= 0) return false;
            pending_.append(part, static_cast<std::size_t>(got));
        }
        into = pending_.substr(0, end);
        pending_.erase(0, end + 2);
        return true;
    }
    void say(const std::string& text) const {
        const std::string line = text + "\r\n";
        ::send(connection_, line.data(), line.size(), MSG_NOSIGNAL);
    }

 private:
    int connection_;
    std::string pending_;
};

}  // namespace

mail_server::mail_server(manners how)
    : how_(std::move(how)), listener_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in place{};
    place.sin_family = AF_INET;
    place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof place;
    auto* address = reinterpret_cast<sockaddr*>(&place);
    if (::bind(listener_, address, size) != 0 || ::listen(listener_, 4) != 0 ||
        ::getsockname(listener_, address, &size) != 0) {
        throw std::runtime_error("no port on this machine");
    }
    port_ = ntohs(place.sin_port);
    service_ = std::thread([this] { serve(); });
}

mail_server::~mail_server() {
    close();
}

void mail_server::close() {
    if (!service_.joinable()) return;
    ::shutdown(listener_, SHUT_RDWR);
    service_.join();
    ::close(listener_);
}

bool mail_server::was_told(const std::string& beginning) const {
    return std::ranges::any_of(
        commands, [&](const std::string& command) { return command.starts_with(beginning); });
}

void mail_server::serve() {
    while (true) {
        const int connection = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (connection < 0) return;
        ++connections;
        talk(connection);
        ::close(connection);
    }
}

void mail_server::talk(int connection) {
    line_socket with(connection);
    with.say("220 prova");
    for (std::string command; with.line(command);) {
        commands.push_back(command);
        if (command.starts_with("EHLO")) {
            if (!how_.offers.empty()) with.say("250-prova");
            with.say("250 " + (how_.offers.empty() ? "prova" : how_.offers));
        } else if (command == "AUTH PLAIN") {
            with.say("334 ");
            if (!with.line(command)) return;
            commands.push_back(command);
            with.say("235 bene");
        } else if (!how_.refuses_receiver.empty() &&
                   command.starts_with("RCPT TO:<" + how_.refuses_receiver)) {
            with.say("550 casella sconosciuta");
        } else if (command == "DATA") {
            with.say("354 avanti");
            for (std::string line; with.line(line) && line != ".";) {
                if (how_.hangs_up) return;
                message += (line.starts_with("..") ? line.substr(1) : line) + "\r\n";
            }
            with.say("250 preso");
        } else if (command == "QUIT") {
            with.say("221 ciao");
            return;
        } else if (command.starts_with("MAIL") || command.starts_with("RCPT")) {
            with.say("250 bene");
        } else {
            with.say("502 non so");
        }
    }
}

}  // namespace vantora::test
