// How amounts round is held by the totals, against a plain recomputation.

#include "store/values.h"

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

TEST(values, AmountsAndPricesShowNothingForZeroAndTheDecimalsOfTheCompany) {
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
}

TEST(values, QuantitiesShowDecimalsOnlyIfThereAreAny) {
    const std::pair<const char*, const char*> cases[] = {
        {"0", ""}, {"", ""}, {"1500", "1.500"}, {"2.5", "2,50"}, {"2,5", "2"}, {"-3", "-3"}};
    for (const auto& [text, shown] : cases) EXPECT_EQ(formato_quantita(text), shown) << text;
}

TEST(values, SettingsComeFromTheirSlotsWhateverStandsThere) {
    const std::pair<const char*, int> decimals[] = {{"2", 2}, {"3", 3}, {"5", 5}, {"6", 2},
                                                    {"1", 2}, {"", 2},  {"x", 2}, {"-4", 2}};
    for (const auto& [slot, expected] : decimals) {
        parametri parameters;
        parameters.parametri_valuta[valuta_slot::modo_decimali] = "0";
        parameters.parametri_valuta[valuta_slot::decimali_prezzo] = slot;
        const valuta currency(parameters);
        EXPECT_EQ(currency.decimali_prezzo, expected) << slot;
        EXPECT_FALSE(currency.centesimi);
    }
}

}  // namespace
}  // namespace vantora
