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

std::vector<int> marks(const righe_ordine& lines) {
    std::vector<int> all;
    for (int i = 1; i <= righe_ordine::massimo; ++i) {
        all.push_back(static_cast<int>(lines[i].quantita));
        EXPECT_EQ(lines[i].descrizione.trimmed(), "riga " + std::to_string(all.back()));
        EXPECT_EQ(lines[i].evaso, all.back());
    }
    return all;
}

/// The exchange sort as the users of the system know it: after each exchange it looks at the same
/// line once more, from the start.
std::vector<int> sorted_step_by_step(const righe_ordine& lines) {
    std::vector<std::pair<std::string, int>> order(201);
    for (int i = 1; i <= 200; ++i) {
        std::string code(lines[i].codice.trimmed());
        order[static_cast<std::size_t>(i)] = {code, static_cast<int>(lines[i].quantita)};
    }
    const auto greater = [](const std::string& left, const std::string& right) {
        const std::string l = left.empty() ? "\xFF" : left;
        const std::string r = right.empty() ? "\xFF" : right;
        return std::vector<unsigned char>(l.begin(), l.end()) >
               std::vector<unsigned char>(r.begin(), r.end());
    };
    std::size_t i = 1;
    while (i <= 199) {
        bool exchanged = false;
        for (std::size_t j = i + 1; j <= 200; ++j) {
            if (greater(order[i].first, order[j].first)) {
                order[0] = order[i];
                order[i] = order[j];
                order[j] = order[0];
                exchanged = true;
                break;
            }
        }
        if (!exchanged) ++i;
    }
    std::vector<int> result;
    for (i = 1; i <= 200; ++i) result.push_back(order[i].second);
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
        ASSERT_EQ(marks(*lines), expected) << "round " << round;
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
            const int above = i < at ? i : i - 1;
            const int below = i < at ? i : i + 1;
            if (i == at) {
                EXPECT_EQ(inserted[i].quantita, 0);
                EXPECT_EQ(inserted[i].codice.trimmed(), "");
                EXPECT_EQ(inserted[i].descrizione.trimmed(), "");
                EXPECT_EQ(inserted[i].evaso, at);
            } else {
                EXPECT_EQ(inserted[i].quantita, above) << at << ' ' << i;
                EXPECT_EQ(inserted[i].evaso, above);
            }
            if (i == 200) {
                EXPECT_EQ(removed[i].quantita, 0);
                EXPECT_EQ(removed[i].evaso, 200);
            } else {
                EXPECT_EQ(removed[i].quantita, below) << at << ' ' << i;
                EXPECT_EQ(removed[i].evaso, below);
            }
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
