#include <gtest/gtest.h>

#include "mirxpdf/mail_settings.h"

namespace vantora::mirxpdf {
namespace {

mail_settings settings_of(std::string_view content) {
    return std::get<mail_settings>(read_mail_settings(content));
}

TEST(mail_settings, KeysAreReadWithTheirDefaults) {
    const auto few = settings_of("server=smtp.ditta.it\nutente = ordini@ditta.it\n");
    EXPECT_EQ(few.porta, 465);
    EXPECT_EQ(few.sicurezza, sicurezza::tls);
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

TEST(mail_settings, TheFirstWrongLineIsTold) {
    const std::pair<const char*, const char*> cases[] = {
        {"server = a.it\nservre = b.it\nporta = x", "riga 2: chiave sconosciuta"},
        {"\nserver", "riga 2: manca il segno ="},
        {"porta = 65536", "riga 1: la porta va da 1 a 65535"},
        {"porta = 25x", "riga 1: la porta va da 1 a 65535"},
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

}  // namespace
}  // namespace vantora::mirxpdf
