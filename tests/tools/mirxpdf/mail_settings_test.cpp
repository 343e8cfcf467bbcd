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

}  // namespace
}  // namespace vantora::mirxpdf
