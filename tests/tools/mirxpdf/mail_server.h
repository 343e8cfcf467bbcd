#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace vantora::test {

/// A mail server on this machine, as small as one can be: it takes one connection after the other,
/// in clear, and remembers what it was told.
class mail_server {
 public:
    struct manners {
        std::string offers = {};            ///< in its answer to the greeting, such as "AUTH PLAIN"
        std::string refuses_receiver = {};  ///< an address that it doesn't take
        bool hangs_up = false;              ///< in the middle of a message
    };

    explicit mail_server(manners how)
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
        port = ntohs(place.sin_port);
        service_ = std::thread([this] { serve(); });
    }
    mail_server(const mail_server&) = delete;
    mail_server& operator=(const mail_server&) = delete;
    ~mail_server() { close(); }

    /// Ends the service. What it was told may be looked at from here on.
    void close() {
        if (!service_.joinable()) return;
        ::shutdown(listener_, SHUT_RDWR);
        service_.join();
        ::close(listener_);
    }

    int port = 0;
    int connections = 0;
    std::vector<std::string> commands;  ///< without their line ends
    std::string message;                ///< lines ended by CR LF

    /// True if a command began so.
    [[nodiscard]] bool was_told(const std::string& beginning) const {
        return std::ranges::any_of(
            commands, [&](const std::string& command) { return command.starts_with(beginning); });
    }

 private:
    void serve() {
        while ((connection_ = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC)) >= 0) {
            ++connections;
            pending_.clear();
            talk();
            ::close(connection_);
        }
    }

    bool hear(std::string& line) {
        std::size_t end = 0;
        while ((end = pending_.find("\r\n")) == std::string::npos) {
            char part[4096];
            const ssize_t got = ::recv(connection_, part, sizeof part, 0);
            if (got <= 0) return false;
            pending_.append(part, static_cast<std::size_t>(got));
        }
        line = pending_.substr(0, end);
        pending_.erase(0, end + 2);
        return true;
    }
    void say(const std::string& text) const {
        const std::string line = text + "\r\n";
        ::send(connection_, line.data(), line.size(), MSG_NOSIGNAL);
    }

    void talk() {
        say("220 prova");
        for (std::string command; hear(command);) {
            commands.push_back(command);
            if (command.starts_with("EHLO")) {
                say("250-prova\r\n250 " + how_.offers);
            } else if (command == "AUTH PLAIN") {
                say("334 ");
                if (!hear(command)) return;
                commands.push_back(command);
                say("235 bene");
            } else if (!how_.refuses_receiver.empty() &&
                       command.starts_with("RCPT TO:<" + how_.refuses_receiver)) {
                say("550 casella sconosciuta");
            } else if (command == "DATA") {
                say("354 avanti");
                for (std::string line; hear(line) && line != ".";) {
                    if (how_.hangs_up) return;
                    message += (line.starts_with("..") ? line.substr(1) : line) + "\r\n";
                }
                say("250 preso");
            } else {
                say(command == "QUIT" ? "221 ciao" : "250 bene");
            }
        }
    }

    manners how_;
    int listener_ = -1;
    int connection_ = -1;
    std::string pending_;
    std::thread service_;
};

}  // namespace vantora::test
