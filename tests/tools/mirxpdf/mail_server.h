#pragma once

#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>
#include <atomic>
#include <future>
#include <memory>

namespace vantora::test {

/// A mail server on this machine, as small as one can be: it takes one connection after the other,
/// in clear, and remembers what it was told.
class mail_server {
 public:
    struct manners {
        QByteArray offers = {};            ///< in its answer to the greeting, such as "AUTH PLAIN"
        QByteArray refuses_receiver = {};  ///< an address that it doesn't take
        bool hangs_up = false;             ///< in the middle of a message
    };

    explicit mail_server(manners how)
        : how_(std::move(how)), service_(QThread::create([this] { serve(); })) {
        service_->start();
        port = port_.get_future().get();
    }
    mail_server(const mail_server&) = delete;
    mail_server& operator=(const mail_server&) = delete;
    ~mail_server() { close(); }

    /// Ends the service. What it was told may be looked at from here on.
    void close() {
        ending_ = true;
        service_->wait();
    }

    int port = 0;
    int connections = 0;
    QByteArrayList commands;  ///< without their line ends
    QByteArray message;       ///< lines ended by CR LF

 private:
    void serve() {
        QTcpServer listener;
        listener.listen(QHostAddress::LocalHost);
        port_.set_value(listener.serverPort());
        while (!ending_) {
            if (!listener.waitForNewConnection(20)) continue;
            ++connections;
            const std::unique_ptr<QTcpSocket> client(listener.nextPendingConnection());
            talk(*client);
        }
    }

    static bool hear(QTcpSocket& from, QByteArray& line) {
        while (!from.canReadLine() && from.waitForReadyRead(-1)) {
        }
        line = from.readLine();
        const bool any = !line.isEmpty();
        line.chop(2);
        return any;
    }
    QByteArray answer_to(const QByteArray& command) const {
        if (command.startsWith("EHLO")) return "250-prova\r\n250 " + how_.offers;
        if (command == "AUTH PLAIN") return "334 ";
        if (command.startsWith("RCPT") && !how_.refuses_receiver.isEmpty() &&
            command.contains(how_.refuses_receiver)) {
            return "550 casella sconosciuta";
        }
        if (command.startsWith("MAIL") || command.startsWith("RCPT")) return "250 bene";
        if (command == "DATA") return "354 avanti";
        return command == "QUIT" ? "221 ciao" : "235 bene";
    }
    void talk(QTcpSocket& with) {
        const auto say = [&](const QByteArray& text) {
            with.write(text + "\r\n");
            with.waitForBytesWritten();
        };
        say("220 prova");
        for (QByteArray line; hear(with, line);) {
            commands << line;
            say(answer_to(line));
            if (line != "DATA") continue;
            while (hear(with, line) && line != ".") {
                if (how_.hangs_up) return;
                message += (line.startsWith("..") ? line.mid(1) : line) + "\r\n";
            }
            say("250 preso");
        }
    }

    const manners how_;
    std::atomic<bool> ending_ = false;
    std::promise<int> port_;
    std::unique_ptr<QThread> service_;
};

}  // namespace vantora::test
