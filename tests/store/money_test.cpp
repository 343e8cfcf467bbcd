// How amounts round is held by the totals, how many decimals a company has by the reports, both
// against a plain recomputation.

#include "store/money.h"

#include <gtest/gtest.h>

namespace vantora {
namespace {

valuta lire() {
    valuta currency;
    currency.centesimi = false;
    return currency;
}

valuta euro(int price_decimals = 2) {
    valuta currency;
    currency.decimali_prezzo = price_decimals;
    return currency;
}

TEST(values, TypedTextsAreItalian) {
    const std::pair<double, std::vector<const char*>> cases[] = {
        {0, {"abc", ""}}, {12.5, {"12,5"}},         {1, {"1..5"}},   {15, {"1.5"}},
        {5, {".5"}},      {-1000, {"-1.000"}},      {1.5, {"1.,5"}}, {1.2, {"1,2,3"}},
        {3, {"3."}},      {1234.56, {" 1.234,56 "}}};
    for (const auto& [value, texts] : cases) {
        for (const char* text : texts) EXPECT_EQ(testo_a_numero(text), value) << text;
    }
}

TEST(values, NothingIsShownForZeroAndElseTheDecimalsOfTheCompany) {
    EXPECT_EQ(formato_importo(0, lire()) + formato_importo(0, euro()), "");
    EXPECT_EQ(formato_prezzo(0, euro(5)), "");
    EXPECT_EQ(formato_importo(1234.5, euro()), "1.234,50");
    EXPECT_EQ(formato_importo(1234, lire()), "1.234");
    EXPECT_EQ(formato_importo(-0.5, euro()), "-0,50");
    const std::pair<int, const char*> cases[] = {
        {2, "1.234,57"}, {3, "1.234,568"}, {4, "1.234,5679"}, {5, "1.234,56789"}};
    for (const auto& [decimals, text] : cases) {
        EXPECT_EQ(formato_prezzo(1234.56789, euro(decimals)), text);
    }
    EXPECT_EQ(formato_prezzo(1234.4, lire()), "1.234");
    const std::pair<const char*, const char*> quantities[] = {
        {"0", ""}, {"", ""}, {"1500", "1.500"}, {"2.5", "2,50"}, {"2,5", "2"}, {"-3", "-3"}};
    for (const auto& [text, shown] : quantities) EXPECT_EQ(formato_quantita(text), shown);
}

}  // namespace
}  // namespace vantora
