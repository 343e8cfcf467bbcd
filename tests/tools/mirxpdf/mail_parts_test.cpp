#include <gtest/gtest.h>

#include <QByteArray>
#include <QString>

#include "mirxpdf/mail.h"

namespace vantora::mirxpdf {
namespace {

mail_settings settings_of(std::string_view content) {
    return std::get<mail_settings>(read_mail_settings(content));
}

TEST(mail_settings, KeysAreReadWithTheirDefaults) {
    const auto few = settings_of("server=smtp.ditta.it\nutente = ordini@ditta.it\n");
    EXPECT_EQ(few.server, "smtp.ditta.it");
    EXPECT_EQ(few.porta, 465);
    EXPECT_EQ(few.sicurezza, sicurezza::tls);
    EXPECT_EQ(few.mittente, "ordini@ditta.it");
    EXPECT_NE(few.testo.find("{documento}"), std::string::npos);
    EXPECT_EQ(settings_of("sicurezza = starttls").porta, 587);
    EXPECT_EQ(settings_of("sicurezza = nessuna").porta, 25);

    const auto all = settings_of(
        "\xEF\xBB\xBF# commento\r\n\r\n  server = a.it \r\nporta\t= 2525\r\nsicurezza = starttls"
        "\r\nutente = u\r\npassword =  due parole = # \r\nmittente = Ditta <a@b.it>\r\n"
        "oggetto = Ciao\r\ntesto = uno\r\ntesto =\r\ntesto = tre");
    EXPECT_EQ(all.server, "a.it");
    EXPECT_EQ(all.porta, 2525);
    EXPECT_EQ(all.password, "due parole = #");
    EXPECT_EQ(all.mittente + all.oggetto, "Ditta <a@b.it>Ciao");
    EXPECT_EQ(all.testo, "uno\n\ntre\n");
    EXPECT_EQ(settings_of("").server, "");
}

TEST(mail_settings, TheFirstWrongLineIsTold) {
    const std::pair<const char*, const char*> cases[] = {
        {"server = a.it\nservre = b.it\nporta = x", "riga 2: chiave sconosciuta"},
        {"\nserver", "riga 2: manca il segno ="},
        {"porta = 0", "riga 1: la porta va da 1 a 65535"},
        {"porta = 65536", "riga 1: la porta va da 1 a 65535"},
        {"porta = 25x", "riga 1: la porta va da 1 a 65535"},
        {"porta =", "riga 1: la porta va da 1 a 65535"},
        {"sicurezza = forse", "riga 1: la sicurezza è tls, starttls oppure nessuna"},
        {"oggetto = a\rBcc: b@c.it", "riga 1: il valore contiene caratteri di controllo"},
        {"server = a.it\nutente = ordini", "manca il mittente"},
    };
    for (const auto& [content, what] : cases) {
        const auto read = read_mail_settings(content);
        const auto* error = std::get_if<settings_error>(&read);
        ASSERT_TRUE(error) << content;
        EXPECT_EQ(error->what, what);
    }
}

TEST(mail_address, SendersMayHaveANameAndNothingElse) {
    const std::pair<const char*, std::optional<mailbox>> cases[] = {
        {"a@b.it", mailbox{"", "a@b.it"}},
        {" Ditta & C. <a@b.it> ", mailbox{"Ditta & C.", "a@b.it"}},
        {"<a@b.it>", mailbox{"", "a@b.it"}},
        {"Ditta a@b.it", {}},
        {"Ditta <a@b.it", {}},
        {"Ditta <a@b.it> x", {}},
        {"Dit\nta <a@b.it>", {}},
        {"", {}},
    };
    for (const auto& [text, read] : cases) EXPECT_TRUE(read_mailbox(text) == read) << text;
}

TEST(mail_header, EncodedWordsGiveTheTextBackAndCutNoCharacter) {
    EXPECT_EQ(header_text("Ordine 12"), "Ordine 12");
    std::string euros = "x";
    for (int i = 0; i < 100; ++i) euros += "\xE2\x82\xAC";
    for (const std::string& text :
         {std::string("Perch\xC3\xA9"), std::string(300, 'x'), std::string("=?finto?="), euros}) {
        QByteArray back;
        std::string coded = header_text(text);
        while (!coded.empty()) {
            const std::size_t end = std::min(coded.find("\r\n "), coded.size());
            const std::string word = coded.substr(0, end);
            coded.erase(0, end + 3);
            EXPECT_LE(word.size(), 75U);
            ASSERT_TRUE(word.starts_with("=?UTF-8?B?") && word.ends_with("?=")) << word;
            const auto part = QByteArray::fromBase64(
                QByteArray::fromStdString(word.substr(10, word.size() - 12)));
            EXPECT_EQ(QString::fromUtf8(part).toUtf8(), part);
            back += part;
        }
        EXPECT_EQ(back.toStdString(), text);
    }
}

}  // namespace
}  // namespace vantora::mirxpdf
