#include <gtest/gtest.h>

#include <QByteArray>
#include <chrono>
#include <thread>

#include "mail_server.h"
#include "run_of_program.h"

namespace vantora::test {
namespace {

class mirxpdf_mail : public testing::Test {
 protected:
    void SetUp() override { drive.write_print_file({{text_at(20, 30, "Ordine")}}); }

    static std::string settings_for(const mail_server& server, const std::string& rest) {
        return "server = 127.0.0.1\nporta = " + std::to_string(server.port()) +
               "\nmittente = Ditta <ordini@ditta.it>\n" + rest + "\n";
    }
    /// The PDF stays whatever becomes of the mail.
    void expect_not_sent(const std::string& address, const std::string& reason) {
        const auto result = drive.run({call_with_address(address)});
        EXPECT_EQ(result.exit_code, 3) << result.said;
        EXPECT_NE(result.said.find(reason), std::string::npos) << result.said;
        EXPECT_TRUE(bytes_of(drive.at("orc12.pdf")).starts_with("%PDF-")) << reason;
        std::filesystem::remove(drive.at("orc12.pdf"));
    }

    pdf_drive drive;
};

std::string header_of(const std::string& message, const std::string& name) {
    const std::size_t begin = message.find("\r\n" + name + ": ");
    if (begin == std::string::npos) return "(none)";
    const std::size_t value = begin + name.size() + 4;
    return message.substr(value, message.find("\r\n", value) - value);
}

/// The lines of a part of the message, by its kind.
std::string part_of(const std::string& message, const std::string& type) {
    const std::size_t at = message.find("Content-Type: " + type);
    const std::size_t begin = message.find("\r\n\r\n", at);
    if (at == std::string::npos || begin == std::string::npos) return "(none)";
    return message.substr(begin + 4, message.find("\r\n--", begin) - begin - 4);
}

TEST_F(mirxpdf_mail, ThePdfTravelsAsAnAttachment) {
    mail_server server({.offers = "AUTH PLAIN"});
    drive.write_settings(settings_for(
        server,
        "sicurezza = nessuna\nutente = ordini\npassword = seg=reta #1\n"
        "oggetto = {documento}: perch\xC3\xA9 no\ntesto = Gentile cliente,\ntesto =\ntesto = .\n"
        "testo = ecco {documento}"));
    const auto result = drive.run({call_with_address("rossi@verdi.it, bianchi@neri.it")});
    server.close();
    ASSERT_EQ(result.exit_code, 0) << result.said;

    const QByteArray login = QByteArray("\0ordini\0seg=reta #1", 19).toBase64();
    EXPECT_TRUE(server.was_told(login.toStdString()));
    EXPECT_TRUE(server.was_told("MAIL FROM:<ordini@ditta.it>"));
    EXPECT_TRUE(server.was_told("RCPT TO:<rossi@verdi.it>"));
    EXPECT_TRUE(server.was_told("RCPT TO:<bianchi@neri.it>"));

    const std::string message = "\r\n" + server.message;
    EXPECT_EQ(header_of(message, "From"), "\"Ditta\" <ordini@ditta.it>");
    EXPECT_EQ(header_of(message, "To"), "rossi@verdi.it, bianchi@neri.it");
    EXPECT_EQ(header_of(message, "Subject"), "=?UTF-8?B?b3JjMTI6IHBlcmNow6kgbm8=?=");
    EXPECT_NE(header_of(message, "Date"), "(none)");
    EXPECT_NE(header_of(message, "Message-ID"), "(none)");
    EXPECT_EQ(header_of(message, "Content-Disposition"), "attachment; filename=\"orc12.pdf\"");
    EXPECT_EQ(part_of(message, "text/plain; charset=utf-8"),
              "Gentile cliente,\r\n\r\n.\r\necco orc12\r\n");
    const std::string coded = part_of(message, "application/pdf");
    EXPECT_TRUE(QByteArray::fromBase64(QByteArray::fromStdString(coded)).toStdString() ==
                bytes_of(drive.at("orc12.pdf")));
}

TEST_F(mirxpdf_mail, WithoutSettingsThePdfStaysAndTheUserIsTold) {
    expect_not_sent("rossi@verdi.it", "non è configurata");
    drive.write_settings("# server = smtp.esempio.it\n");
    expect_not_sent("rossi@verdi.it", "mirwin/mirwin/mirxpdf.conf");
    drive.write_settings("server = smtp.esempio.it\nmittente = a@b.it\nporta = molte\n");
    expect_not_sent("rossi@verdi.it", "riga 3: la porta");
    std::filesystem::remove(drive.at("mirwin/mirwin/mirxpdf.conf"));
    std::filesystem::create_directory(drive.at("mirwin/mirwin/mirxpdf.conf"));
    expect_not_sent("rossi@verdi.it", "non si può leggere");
}

TEST_F(mirxpdf_mail, NoAddressMeansNoMail) {
    mail_server server({});
    drive.write_settings(settings_for(server, "sicurezza = nessuna"));
    for (const char* none : {"***", " ***", "", "   "}) {
        EXPECT_EQ(drive.run({call_with_address(none)}).exit_code, 0) << none;
    }
    server.close();
    EXPECT_EQ(server.connections, 0);
}

TEST_F(mirxpdf_mail, AServerThatOffersNoEncryptionIsToldNothing) {
    mail_server server({.offers = "AUTH PLAIN"});
    const std::string login = "\nutente = ordini\npassword = segreta";
    drive.write_settings(settings_for(server, "sicurezza = starttls" + login));
    expect_not_sent("rossi@verdi.it", "non offre un collegamento cifrato");
    server.close();
    EXPECT_EQ(server.connections, 1);
    EXPECT_FALSE(server.was_told("AUTH"));
    EXPECT_FALSE(server.was_told("MAIL"));
    EXPECT_EQ(server.message, "");
}

/// A server behind an encrypted connection, with a certificate that nobody vouches for.
class unknown_server {
 public:
    unknown_server()
        : made_(running_program({"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt",
                                 "ec_paramgen_curve:prime256v1", "-nodes", "-keyout", "key.pem",
                                 "-out", "cert.pem", "-days", "2", "-subj", "/CN=127.0.0.1",
                                 "-addext", "subjectAltName=IP:127.0.0.1"},
                                folder_.path(), folder_.path() / "made")
                    .wait()),
          service_({"openssl", "s_server", "-accept", "127.0.0.1:0", "-cert", "cert.pem", "-key",
                    "key.pem", "-www", "-naccept", "1"},
                   folder_.path(), folder_.path() / "said") {}

    /// 0 if it doesn't come up.
    [[nodiscard]] int port() const {
        constexpr std::string_view mark = "ACCEPT 127.0.0.1:";
        for (int i = 0; i < 200; ++i) {
            const std::string said = bytes_of(folder_.path() / "said");
            const std::size_t at = said.find(mark);
            if (at != std::string::npos && said.find('\n', at) != std::string::npos) {
                return std::stoi(said.substr(at + mark.size()));
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        return 0;
    }
    /// All that it heard until its connection ended.
    [[nodiscard]] std::string heard() const {
        (void)service_.wait();
        return bytes_of(folder_.path() / "said");
    }

 private:
    scratch_folder folder_;
    int made_;
    running_program service_;
};

TEST_F(mirxpdf_mail, AServerWithAnUnknownCertificateIsToldNothing) {
    const unknown_server server;
    const int port = server.port();
    ASSERT_NE(port, 0);
    drive.write_settings("server = 127.0.0.1\nporta = " + std::to_string(port) +
                         "\nutente = a@b.it\npassword = segreta\n");
    expect_not_sent("rossi@verdi.it", "certificato del server non è attendibile");
    EXPECT_EQ(server.heard().find("EHLO"), std::string::npos);
}

TEST_F(mirxpdf_mail, AServerThatRefusesOrEndsIsReported) {
    {
        const mail_server server({.refuses_receiver = "bianchi@neri.it"});
        drive.write_settings(settings_for(server, "sicurezza = nessuna"));
        expect_not_sent("rossi@verdi.it bianchi@neri.it", "550");
    }
    int closed_port = 0;
    {
        const mail_server server({.hangs_up = true});
        drive.write_settings(settings_for(server, "sicurezza = nessuna"));
        expect_not_sent("rossi@verdi.it", "invio tramite 127.0.0.1 non riuscito");
        closed_port = server.port();
    }
    drive.write_settings("server = 127.0.0.1\nsicurezza = nessuna\nmittente = a@b.it\nporta = " +
                         std::to_string(closed_port) + "\n");
    expect_not_sent("rossi@verdi.it", "non risponde");
    drive.write_settings("server = a/b@c\nmittente = a@b.it\n");
    expect_not_sent("rossi@verdi.it", "nome del server");
}

TEST_F(mirxpdf_mail, NothingButAnAddressComesIntoTheMessage) {
    mail_server server({});
    drive.write_settings(settings_for(server, "sicurezza = nessuna"));
    for (const char* address :
         {"rossi", "@verdi.it", "rossi@", "rossi@verdi.it\r\nBcc: spia@altri.it",
          "rossi@verdi.it\nDATA", "rossi@verdi.it>", "a@b@c", "rossi@verdi.it;bianchi",
          "ross\xC3\xAC@verdi.it", ";", "\"rossi\"@verdi.it"}) {
        expect_not_sent(address, "indirizzo e-mail non valido");
    }
    server.close();
    EXPECT_EQ(server.connections, 0);
}

}  // namespace
}  // namespace vantora::test
