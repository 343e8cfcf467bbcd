#pragma once

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

    explicit mail_server(manners how);
    mail_server(const mail_server&) = delete;
    mail_server& operator=(const mail_server&) = delete;
    ~mail_server();

    [[nodiscard]] int port() const { return port_; }
    /// Ends the service. What it was told may be looked at from here on.
    void close();

    int connections = 0;
    std::vector<std::string> commands;  ///< without their line ends
    std::string message;                ///< lines ended by CR LF

    /// True if a command began so.
    [[nodiscard]] bool was_told(const std::string& beginning) const;

 private:
    void serve();
    void talk(int connection);

    manners how_;
    int listener_ = -1;
    int port_ = 0;
    std::thread service_;
};

}  // namespace vantora::test
