#include "orders/order_lines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "orders/stored_lines.h"
#include "scripted/small_company.h"

namespace vantora::test {
namespace {

using plain_lines = std::vector<riga_ordine>;

std::string told(const riga_ordine& line) {
    std::string text = std::string(line.codice.full()) + "|" +
                       std::string(line.descrizione.full()) + "|" + std::string(line.um.full());
    for (const double one :
         {line.quantita, line.prezzo, line.evaso, line.peso, double(line.articolo),
          double(line.sc1), double(line.sc2), double(line.iva)}) {
        text += " " + std::to_string(one);
    }
    return text;
}

riga_ordine emptied(const riga_ordine& line) {
    riga_ordine blank;
    blank.evaso = line.evaso;
    return blank;
}

/// The exchange sort as the users of the system know it: after each exchange it looks at the same
/// line once more, from the start.
void sort_step_by_step(plain_lines& lines) {
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

std::size_t lines_used(const plain_lines& lines) {
    std::size_t last = lines.size();
    while (last > 0 && lines[last - 1].descrizione.trimmed().empty() &&
           lines[last - 1].codice.trimmed().empty() && lines[last - 1].prezzo == 0) {
        --last;
    }
    return last;
}

/// Step by step, one read for every row.
template <class Row>
void import_plainly(plain_lines& lines, std::size_t from, const channel<Row>& rows,
                    const channel<rec_art>& articles, int block) {
    for (int k = 1; k <= righe_blocco && from < lines.size(); ++k, ++from) {
        const Row row = stored(rows, block_record(block, k));
        riga_ordine& line = lines[from];
        line.articolo = std::max<std::int16_t>(row.articolo, 0);
        const rec_art article = row.articolo < 1 ? rec_art{} : stored(articles, row.articolo);
        line.codice = row.articolo < 1 ? "" : article.codice.full();
        line.peso = article.peso;
        line.descrizione =
            std::string(row.descrizione.full()) + std::string(row.descrizione2.full());
        line.um = row.um.full();
        line.quantita = row.quantita;
        line.prezzo = row.prezzo;
        line.sc1 = row.sc1;
        line.sc2 = row.sc2;
        line.iva = row.prezzo == 0 ? std::int16_t{0} : std::int16_t{row.iva};
    }
}

template <class Row>
void write_noise(channel<Row>& file, int block, std::size_t used, std::mt19937& random) {
    std::vector<Row> rows(righe_blocco);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        Row& row = rows[i];
        row.descrizione = "";
        row.descrizione2 = "";
        row.um = "";
        if (i >= used) continue;
        row.articolo = static_cast<std::int16_t>(static_cast<int>(random() % 14) - 3);
        row.descrizione = random() % 3 ? "" : "testo " + std::to_string(random() % 100);
        row.descrizione2 = random() % 3 ? "" : "coda";
        row.um = random() % 2 ? "PZ" : "KG";
        row.quantita = static_cast<int>(random() % 20) - 4;
        row.prezzo = static_cast<int>(random() % 3);
        row.sc1 = static_cast<std::int16_t>(random() % 90);
        row.sc2 = static_cast<std::int16_t>(random() % 90);
        row.iva = static_cast<std::int16_t>(random() % 24);
    }
    file.write_block(block_record(block, 1), rows);
}

TEST(righe_ordine, SessionsLeaveLinesWhereStepsByHandLeaveThem) {
    small_company company;
    std::vector<rec_art> articles;
    for (const char* code : {"A", "AB", "ABC", "B1", "b1", "0009", "\xC0", "\xFF", "Z"}) {
        articles.push_back(article(code, "", 1));
    }
    company.articles(articles);
    std::mt19937 random(11);
    for (int session = 0; session < 40; ++session) {
        for (const int block : {1, 2}) {
            write_noise(company.files.prv, block, random() % 200, random);
            write_noise(company.files.orc, block, session % 3 == 0 ? 40 : 200, random);
        }
        righe_ordine lines;
        plain_lines plain(200);
        for (int i = 1; i <= 200; ++i) lines[i].evaso = lines[i].peso = i;
        for (int i = 1; i <= 200; ++i) plain[static_cast<std::size_t>(i - 1)] = lines[i];
        for (int step = 0; step < 8; ++step) {
            const int at = std::min(200, 1 + static_cast<int>(random() % 210));
            const int block = static_cast<int>(random() % 3) + 1;
            const auto place = plain.begin() + at - 1;
            const riga_ordine last = plain.back();
            switch (step == 0 ? 4 : random() % 6) {
                case 0:
                    lines.insert(at);
                    // The new line is the old one emptied.
                    plain.insert(place, emptied(*place));
                    plain.pop_back();
                    break;
                case 1:
                    lines.remove(at);
                    plain.erase(place);
                    plain.push_back(emptied(last));
                    break;
                case 2:
                    lines.sort_by_code();
                    sort_step_by_step(plain);
                    break;
                case 3:
                    if (random() % 4 != 0) break;
                    lines.clear();
                    for (auto& one : plain) one = emptied(one);
                    break;
                case 4:
                    import_rows(lines, 1, company.files.orc, company.files.art, block);
                    import_plainly(plain, 0, company.files.orc, company.files.art, block);
                    break;
                default:
                    import_rows(lines, last_used_line(lines) + 1, company.files.prv,
                                company.files.art, block);
                    import_plainly(plain, lines_used(plain), company.files.prv, company.files.art,
                                   block);
            }
            for (int i = 1; i <= 200; ++i) {
                ASSERT_EQ(told(lines[i]), told(plain[static_cast<std::size_t>(i - 1)]))
                    << session << " " << step << " line " << i;
            }
        }
    }
    righe_ordine lines;
    for (const int number : {-1, 0, 201, 32767}) {
        EXPECT_THROW(lines[number].iva = 1, subscript_error) << number;
    }
}

}  // namespace
}  // namespace vantora::test
