#include "program/order_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace vantora {
namespace {

/// A line that can be told from every other one.
riga_ordine line_with(const std::string& code, int mark) {
    riga_ordine line;
    line.codice = code;
    line.descrizione = "riga " + std::to_string(mark);
    line.articolo = line.sc1 = line.iva = static_cast<std::int16_t>(mark);
    line.quantita = line.prezzo = line.evaso = line.peso = mark;
    return line;
}

std::string told(const riga_ordine& line) {
    std::string text = std::string(line.codice.trimmed()) + "|";
    text += std::string(line.descrizione.trimmed()) + "|" + std::string(line.um.trimmed());
    for (const double one : {double{line.quantita}, line.prezzo, line.evaso, line.peso,
                             double(line.articolo), double(line.sc1), double(line.iva)}) {
        text += " " + std::to_string(one);
    }
    return text;
}

riga_ordine emptied(const riga_ordine& line) {
    riga_ordine blank;
    blank.evaso = line.evaso;
    blank.peso = line.peso;
    return blank;
}

/// The exchange sort as the users of the system know it: after each exchange it looks at the same
/// line once more, from the start.
void sort_step_by_step(std::vector<riga_ordine>& lines) {
    const auto key = [](const riga_ordine& line) {
        const std::string code(line.codice.trimmed());
        return code.empty() ? std::string("\xFF") : code;
    };
    for (std::size_t i = 0; i < 199; ++i) {
        for (std::size_t j = i + 1; j < 200; ++j) {
            if (key(lines[i]).compare(key(lines[j])) <= 0) continue;
            std::swap(lines[i], lines[j]);
            j = i;
        }
    }
}

TEST(righe_ordine, SessionsLeaveLinesWhereStepsByHandLeaveThem) {
    const char* codes[] = {"", "", "", "A", "AB", "ABC", "B1", "b1", "0009", "\xC0", "\xFF", "Z"};
    std::mt19937 random(20240506);
    for (int round = 0; round < 40; ++round) {
        righe_ordine lines;
        std::vector<riga_ordine> plain;
        const std::size_t used = 1 + random() % std::size(codes);
        for (int i = 1; i <= 200; ++i) {
            const bool blank_end = round % 3 == 0 && i > 40;
            lines[i] = line_with(blank_end ? "" : codes[random() % used], i);
            plain.push_back(lines[i]);
        }
        for (int step = 0; step < 6; ++step) {
            const int at = std::min(200, 1 + static_cast<int>(random() % 210));
            const auto place = plain.begin() + at - 1;
            switch (random() % 4) {
                case 0:
                    lines.insert(at);
                    // The new line is the old one emptied.
                    plain.insert(place, emptied(*place));
                    plain.pop_back();
                    break;
                case 1:
                    lines.remove(at);
                    plain.erase(place);
                    plain.push_back(emptied(at == 200 ? lines[200] : plain.back()));
                    break;
                case 2:
                    lines.sort_by_code();
                    sort_step_by_step(plain);
                    break;
                default:
                    if (random() % 8 != 0) break;
                    lines.clear();
                    for (auto& one : plain) {
                        one = emptied(one);
                        one.peso = 0;
                    }
            }
            for (int i = 1; i <= 200; ++i) {
                ASSERT_EQ(told(lines[i]), told(plain[static_cast<std::size_t>(i - 1)]))
                    << round << " " << step << " line " << i;
            }
        }
    }
    righe_ordine lines;
    for (const int number : {-1, 0, 201, 32767}) {
        EXPECT_THROW(lines[number].iva = 1, ui::subscript_error) << number;
    }
}

}  // namespace
}  // namespace vantora
