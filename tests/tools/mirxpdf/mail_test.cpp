#include <gtest/gtest.h>

#include "mail_server.h"
#include "mirxpdf/mail_settings.h"
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
QByteArray between(const QByteArray& message, const QByteArray& from, const QByteArray& to,
                   const QByteArray& behind = "") {
    const auto begin = message.indexOf(from, std::max<qsizetype>(message.indexOf(behind), 0));
    if (begin < 0 || !message.contains(behind)) return "(none)";
    const auto text = begin + from.size();
    return message.mid(text, message.indexOf(to, text) - text);
}

TEST_F(mirxpdf_mail, ThePdfTravelsAsAnAttachment) {
    mail_server server({.offers = "AUTH PLAIN"});
    settle(server.port,
           "sicurezza = nessuna\nutente = ordini\npassword = seg=reta #1\n"
           "oggetto = {documento}: conferma del Suo ordine, la qualit\xC3\xA0\n"
           "testo = Gentile cliente,\ntesto =\ntesto = .\ntesto = ecco {documento}");
    const auto result = drive.run({call_with_address("rossi@verdi.it, bianchi@neri.it")});
    server.close();
    ASSERT_EQ(result.exit_code, 0) << result.said;

    const QByteArray login = QByteArray("\0ordini\0seg=reta #1", 19).toBase64();
    const QByteArray told = server.commands.join('|');
    for (const QByteArray& one :
         {login, QByteArray("MAIL FROM:<ordini@ditta.it>"),
          QByteArray("RCPT TO:<rossi@verdi.it>|RCPT TO:<bianchi@neri.it>")}) {
        EXPECT_TRUE(told.contains(one)) << one.toStdString();
    }
    const QByteArray message = "\r\n" + server.message;
    const auto header = [&](const QByteArray& name) {
        return between(message, "\r\n" + name + ": ", "\r\n");
    };
    EXPECT_EQ(header("From"), "\"Ditta\" <ordini@ditta.it>");
    EXPECT_EQ(header("To"), "rossi@verdi.it, bianchi@neri.it");
    // In two words, of which neither has a cut character.
    const QByteArray subject = QByteArray("orc12: conferma del Suo ordine, la qualit").toBase64();
    EXPECT_TRUE(message.contains("=?UTF-8?B?" + subject + "?=\r\n =?UTF-8?B?w6A=?=\r\n"));
    EXPECT_NE(header("Date"), "(none)");
    EXPECT_NE(header("Message-ID"), "(none)");
    EXPECT_EQ(header("Content-Disposition"), "attachment; filename=\"orc12.pdf\"");
    const auto part = [&](const QByteArray& type) {
        return between(message, "\r\n\r\n", "\r\n--", "Content-Type: " + type);
    };
    EXPECT_EQ(part("text/plain; charset=utf-8"), "Gentile cliente,\r\n\r\n.\r\necco orc12\r\n");
    EXPECT_TRUE(QByteArray::fromBase64(part("application/pdf")).toStdString() ==
                bytes_of(drive.at("orc12.pdf")));
}

TEST_F(mirxpdf_mail, WithoutSettingsThePdfStaysAndTheUserIsTold) {
    expect_not_sent("rossi@verdi.it", "non è configurata");
    const std::pair<const char*, const char*> settings[] = {
        {"# server = smtp.esempio.it\n", "mirwin/mirwin/mirxpdf.conf"},
        {"server = a.it\nservre = b.it\nporta = x", "riga 2: chiave sconosciuta"},
        {"\nserver", "riga 2: manca il segno ="},
        {"porta = 65536", "riga 1: la porta va da 1 a 65535"},
        {"\n\nporta = 25x", "riga 3: la porta va da 1 a 65535"},
        {"sicurezza = forse", "riga 1: la sicurezza è tls, starttls oppure nessuna"},
        {"oggetto = a\rBcc: b@c.it", "riga 1: il valore contiene caratteri di controllo"},
        {"server = a.it\nutente = ordini", "manca il mittente"},
        {"server = a/b@c\nmittente = a@b.it\n", "nome del server"},
        {"server = a.it\nmittente = Ditta <a@b.it\n", "mittente non è un indirizzo"},
        {"server = 127.0.0.1\nporta = 1\nutente = a@b.it\npassword = x",
         "tutti possono leggere la password"}};
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
    const QByteArray told = server.commands.join('|');
    EXPECT_FALSE(told.contains("AUTH") || told.contains("MAIL")) << told.toStdString();
    EXPECT_EQ(server.message, "");
}

/// Behind an encrypted connection, with a certificate that nobody vouches for.
TEST_F(mirxpdf_mail, AServerWithAnUnknownCertificateIsToldNothing) {
    running_program(
        {"openssl", "req", "-x509", "-newkey", "ec", "-pkeyopt", "ec_paramgen_curve:P-256",
         "-nodes", "-keyout", "key.pem", "-out", "cert.pem", "-days", "2", "-subj", "/CN=127.0.0.1",
         "-addext", "subjectAltName=IP:127.0.0.1"},
        drive.root())
        .wait();
    running_program service({"openssl", "s_server", "-accept", "127.0.0.1:0", "-cert", "cert.pem",
                             "-key", "key.pem", "-www", "-naccept", "1"},
                            drive.root());
    const QByteArray ready = "ACCEPT 127.0.0.1:";
    QByteArray line;
    while (!line.startsWith(ready) && (service.canReadLine() || service.waitForReadyRead(10'000))) {
        line = service.readLine();
    }
    ASSERT_TRUE(line.startsWith(ready));
    settle(line.mid(ready.size()).trimmed().toInt(), "utente = a@b.it\npassword = segreta");
    expect_not_sent("rossi@verdi.it", "certificato del server non è attendibile");
    service.wait();
    EXPECT_FALSE(service.readAll().contains("EHLO"));
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

mirxpdf::mail_settings settings_of(std::string_view content) {
    return std::get<mirxpdf::mail_settings>(mirxpdf::read_mail_settings(content));
}

TEST(mail_settings, KeysAreReadWithTheirDefaults) {
    const auto few = settings_of("server=smtp.ditta.it\nutente = ordini@ditta.it\n");
    EXPECT_EQ(few.porta, 465);
    EXPECT_EQ(few.sicurezza, mirxpdf::sicurezza::tls);
    EXPECT_EQ(few.mittente, "ordini@ditta.it");
    EXPECT_EQ(settings_of("sicurezza = starttls").porta, 587);
    EXPECT_EQ(settings_of("sicurezza = nessuna").porta, 25);

    const auto all = settings_of(
        "\xEF\xBB\xBF# commento\r\n\r\n  server = a.it \r\nporta\t= 2525\r\nsicurezza = starttls"
        "\r\nmittente = Ditta <a@b.it>\r\npassword =  due parole = # ");
    EXPECT_EQ(all.server, "a.it");
    EXPECT_EQ(all.porta, 2525);
    EXPECT_EQ(all.password, "due parole = #");
}

}  // namespace
}  // namespace vantora::test
