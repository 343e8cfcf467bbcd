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

    void settle(int port, const std::string& rest) {
        drive.write_settings("server = 127.0.0.1\nporta = " + std::to_string(port) +
                             "\nmittente = Ditta <ordini@ditta.it>\n" + rest + "\n");
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

/// What stands in a message between one text and the next occurrence of another.
std::string between(const std::string& message, const std::string& from, const std::string& to,
                    const std::string& behind = "") {
    const std::size_t mark = message.find(behind);
    const std::size_t begin = message.find(from, mark == std::string::npos ? 0 : mark);
    if (mark == std::string::npos || begin == std::string::npos) return "(none)";
    return message.substr(begin + from.size(),
                          message.find(to, begin + from.size()) - begin - from.size());
}

TEST_F(mirxpdf_mail, ThePdfTravelsAsAnAttachment) {
    mail_server server({.offers = "AUTH PLAIN"});
    settle(server.port,
           "sicurezza = nessuna\nutente = ordini\npassword = seg=reta #1\n"
           "oggetto = {documento}: perch\xC3\xA9 no\ntesto = Gentile cliente,\ntesto =\ntesto = .\n"
           "testo = ecco {documento}");
    const auto result = drive.run({call_with_address("rossi@verdi.it, bianchi@neri.it")});
    server.close();
    ASSERT_EQ(result.exit_code, 0) << result.said;

    const QByteArray login = QByteArray("\0ordini\0seg=reta #1", 19).toBase64();
    EXPECT_TRUE(server.was_told(login.toStdString()));
    for (const char* told :
         {"MAIL FROM:<ordini@ditta.it>", "RCPT TO:<rossi@verdi.it>", "RCPT TO:<bianchi@neri.it>"}) {
        EXPECT_TRUE(server.was_told(told)) << told;
    }
    const std::string message = "\r\n" + server.message;
    const auto header = [&](const std::string& name) {
        return between(message, "\r\n" + name + ": ", "\r\n");
    };
    EXPECT_EQ(header("From"), "\"Ditta\" <ordini@ditta.it>");
    EXPECT_EQ(header("To"), "rossi@verdi.it, bianchi@neri.it");
    EXPECT_EQ(header("Subject"), "=?UTF-8?B?b3JjMTI6IHBlcmNow6kgbm8=?=");
    EXPECT_NE(header("Date"), "(none)");
    EXPECT_NE(header("Message-ID"), "(none)");
    EXPECT_EQ(header("Content-Disposition"), "attachment; filename=\"orc12.pdf\"");
    const auto part = [&](const std::string& type) {
        return between(message, "\r\n\r\n", "\r\n--", "Content-Type: " + type);
    };
    EXPECT_EQ(part("text/plain; charset=utf-8"), "Gentile cliente,\r\n\r\n.\r\necco orc12\r\n");
    EXPECT_TRUE(
        QByteArray::fromBase64(QByteArray::fromStdString(part("application/pdf"))).toStdString() ==
        bytes_of(drive.at("orc12.pdf")));
}

TEST_F(mirxpdf_mail, WithoutSettingsThePdfStaysAndTheUserIsTold) {
    expect_not_sent("rossi@verdi.it", "non è configurata");
    const std::pair<const char*, const char*> settings[] = {
        {"# server = smtp.esempio.it\n", "mirwin/mirwin/mirxpdf.conf"},
        {"server = smtp.esempio.it\nmittente = a@b.it\nporta = molte\n", "riga 3: la porta"},
        {"server = a/b@c\nmittente = a@b.it\n", "nome del server"}};
    for (const auto& [content, reason] : settings) {
        drive.write_settings(content);
        expect_not_sent("rossi@verdi.it", reason);
    }
    std::filesystem::remove(drive.at("mirwin/mirwin/mirxpdf.conf"));
    std::filesystem::create_directory(drive.at("mirwin/mirwin/mirxpdf.conf"));
    expect_not_sent("rossi@verdi.it", "non si può leggere");
}

TEST_F(mirxpdf_mail, NothingButAnAddressComesIntoAMessage) {
    mail_server server({});
    settle(server.port, "sicurezza = nessuna");
    for (const char* none : {"***", " ***", "", "   "}) {
        EXPECT_EQ(drive.run({call_with_address(none)}).exit_code, 0) << none;
    }
    for (const char* address :
         {"rossi", "@verdi.it", "rossi@", "rossi@verdi.it\r\nBcc: spia@altri.it",
          "rossi@verdi.it\nDATA", "rossi@verdi.it>", "a@b@c", "rossi@verdi.it;bianchi",
          "ross\xC3\xAC@verdi.it", ";", "\"rossi\"@verdi.it"}) {
        expect_not_sent(address, "indirizzo e-mail non valido");
    }
    server.close();
    EXPECT_EQ(server.connections, 0);
}

TEST_F(mirxpdf_mail, AServerThatOffersNoEncryptionIsToldNothing) {
    mail_server server({.offers = "AUTH PLAIN"});
    settle(server.port, "sicurezza = starttls\nutente = ordini\npassword = segreta");
    expect_not_sent("rossi@verdi.it", "non offre un collegamento cifrato");
    server.close();
    EXPECT_EQ(server.connections, 1);
    EXPECT_FALSE(server.was_told("AUTH") || server.was_told("MAIL"));
    EXPECT_EQ(server.message, "");
}

/// Behind an encrypted connection, with a certificate that nobody vouches for.
TEST_F(mirxpdf_mail, AServerWithAnUnknownCertificateIsToldNothing) {
    const scratch_folder folder;
    const auto said = folder.path() / "said";
    running_program(
        {"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
         "-nodes", "-keyout", "key.pem", "-out", "cert.pem", "-days", "2", "-subj", "/CN=127.0.0.1",
         "-addext", "subjectAltName=IP:127.0.0.1"},
        folder.path(), folder.path() / "made")
        .wait();
    const running_program service({"openssl", "s_server", "-accept", "127.0.0.1:0", "-cert",
                                   "cert.pem", "-key", "key.pem", "-www", "-naccept", "1"},
                                  folder.path(), said);
    std::string port = "(none)";
    for (int i = 0; i < 200 && (port.empty() || port == "(none)"); ++i) {
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
        port = between(bytes_of(said), "ACCEPT 127.0.0.1:", "\n");
    }
    ASSERT_NE(port, "(none)");
    settle(std::stoi(port), "utente = a@b.it\npassword = segreta");
    expect_not_sent("rossi@verdi.it", "certificato del server non è attendibile");
    service.wait();
    EXPECT_EQ(bytes_of(said).find("EHLO"), std::string::npos);
}

TEST_F(mirxpdf_mail, AServerThatRefusesOrEndsIsReported) {
    mail_server refusing({.refuses_receiver = "bianchi@neri.it"});
    settle(refusing.port, "sicurezza = nessuna");
    expect_not_sent("rossi@verdi.it bianchi@neri.it", "550");
    mail_server ending({.hangs_up = true});
    settle(ending.port, "sicurezza = nessuna");
    expect_not_sent("rossi@verdi.it", "invio tramite 127.0.0.1 non riuscito");
    ending.close();
    expect_not_sent("rossi@verdi.it", "non risponde");
}

}  // namespace
}  // namespace vantora::test
