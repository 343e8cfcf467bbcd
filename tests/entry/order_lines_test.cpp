#include "program/order_lines.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

namespace vantora {
namespace {

/// A line that can be told from every other one, whatever its code.
riga_ordine line_with(const std::string& code, int mark) {
    riga_ordine line;
    line.codice = code;
    line.descrizione = "riga " + std::to_string(mark);
    line.quantita = mark;
    line.evaso = mark;
    line.peso = mark;
    return line;
}

bool is_line(const riga_ordine& line, int mark) {
    return line.quantita == mark && line.evaso == mark && line.peso == mark &&
           line.descrizione.trimmed() == "riga " + std::to_string(mark);
}

/// The exchange sort as the users of the system know it: after each exchange it looks at the same
/// line once more, from the start. Where each line went.
std::vector<int> sorted_step_by_step(const righe_ordine& lines) {
    std::vector<std::pair<std::string, int>> order(201);
    for (int i = 1; i <= 200; ++i) {
        const std::string code(lines[i].codice.trimmed());
        order[static_cast<std::size_t>(i)] = {code.empty() ? "\xFF" : code, i};
    }
    for (std::size_t i = 1; i <= 199; ++i) {
        for (std::size_t j = i + 1; j <= 200; ++j) {
            if (order[i].first.compare(order[j].first) <= 0) continue;
            std::swap(order[i], order[j]);
            j = i;
        }
    }
    std::vector<int> result;
    for (std::size_t i = 1; i <= 200; ++i) result.push_back(order[i].second);
    return result;
}

TEST(righe_ordine, SortLeavesLinesWhereTheExchangesLeaveThem) {
    const char* codes[] = {"", "", "", "A", "AB", "ABC", "B1", "b1", "0009", "\xC0", "\xFF", "Z"};
    std::mt19937 random(20240506);
    for (int round = 0; round < 60; ++round) {
        const auto lines = std::make_unique<righe_ordine>();
        const std::size_t used = 1 + random() % std::size(codes);
        for (int i = 1; i <= righe_ordine::massimo; ++i) {
            const bool blank_end = round % 3 == 0 && i > 40;
            (*lines)[i] = line_with(blank_end ? "" : codes[random() % used], i);
        }
        const auto expected = sorted_step_by_step(*lines);
        lines->sort_by_code();
        for (int i = 1; i <= 200; ++i) {
            ASSERT_TRUE(is_line((*lines)[i], expected[static_cast<std::size_t>(i - 1)])) << round;
        }
    }
}

TEST(righe_ordine, InsertAndRemoveShiftWholeLinesAndKeepWhatWasFulfilled) {
    for (const int at : {1, 57, 199, 200}) {
        righe_ordine inserted;
        for (int i = 1; i <= 200; ++i) inserted[i] = line_with("C", i);
        righe_ordine removed = inserted;
        inserted.insert(at);
        removed.remove(at);
        for (int i = 1; i <= 200; ++i) {
            EXPECT_TRUE(i == at || is_line(inserted[i], i < at ? i : i - 1)) << at << ' ' << i;
            EXPECT_TRUE(i == 200 || is_line(removed[i], i < at ? i : i + 1)) << at << ' ' << i;
        }
        for (const auto& [blank, evaso] : {std::pair{&inserted[at], at}, {&removed[200], 200}}) {
            EXPECT_EQ(blank->quantita, 0);
            EXPECT_EQ(blank->codice.trimmed(), "");
            EXPECT_EQ(blank->descrizione.trimmed(), "");
            EXPECT_EQ(blank->evaso, evaso);
        }
    }
}

TEST(righe_ordine, NumbersOutsideTheOrderAreASubscriptError) {
    righe_ordine lines;
    for (const int number : {-1, 0, 201, 32767}) {
        EXPECT_THROW(lines[number].iva = 1, ui::subscript_error) << number;
    }
}

}  // namespace
}  // namespace vantora
