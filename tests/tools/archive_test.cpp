#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <sstream>

#include "archive/check.h"
#include "archive/repair.h"
#include "demo_folder.h"
#include "store/suite_paths.h"

namespace vantora::archive {
namespace {

using test::demo_folder;

/// Changes record `number` of a file as another program would.
template <class Record>
void change(const demo_folder& company, const char* extension, std::int64_t number,
            const std::function<void(Record&)>& by) {
    drive files(company.drive());
    channel<Record> records(files.open_records(file_azienda(7, extension)));
    Record record;
    records.read(number, record);
    by(record);
    records.write(number, record);
}

/// What is worse than a note, one line each.
std::vector<std::string> faults_of(const demo_folder& folder) {
    company_files company(folder.drive(), 7);
    std::vector<std::string> lines;
    for (const finding& one : check_archive(company)) {
        if (one.how_bad != gravity::note) lines.push_back(in_one_line(one));
    }
    return lines;
}

/// The record of the first open, or fulfilled, order of a company with an article in its row 1.
std::int64_t open_order(const demo_folder& company, bool open = true) {
    const auto rows = test::records_of<rec_orc>(company.file("orc"));
    for (std::size_t i = 0; i < rows.size(); i += righe_blocco) {
        const rec_orc& row = rows[i];
        if (row.annullato != 1 && (row.evaso_flag != 1) == open && row.articolo >= 1) {
            return static_cast<std::int64_t>(i) + 1;
        }
    }
    return 0;
}

struct damage {
    std::vector<std::string> told;  ///< a part of each line, in order
    std::function<void(const demo_folder&)> make;
};

/// The damage that a wrong value does in one record.
template <class Record, class Field, class Value>
auto wrong(const char* extension, std::int64_t number, Field Record::*field, Value value) {
    return [=](const demo_folder& company) {
        change<Record>(company, extension, number, [&](Record& one) { one.*field = value; });
    };
}

const damage damages[] = {
    {{"length isn't a whole number of records", "the counter says"},
     [](auto& c) {
         const auto size = std::filesystem::file_size(c.file("orc"));
         std::filesystem::resize_file(c.file("orc"), size - 10);
     }},
    {{"the counter says 5000 records, the file holds 4000"},
     wrong("tot", contatori::ordini, &rec_tot::quanti, std::int16_t{25})},
    {{"the counter says 4000 records, the file holds 3800"},
     [](auto& c) { std::filesystem::resize_file(c.file("orc"), 19 * 200 * sizeof(rec_orc)); }},
    {{"vantora.cli: the file isn't there"},
     [](auto& c) { std::filesystem::remove(c.file("cli")); }},
    {{"row 1: a quantity or the price is no number"},
     [](auto& c) { wrong("orc", open_order(c), &rec_orc::quantita, std::nan(""))(c); }},
    {{"the count of quotes is negative"},
     wrong("tot", contatori::preventivi, &rec_tot::quanti, std::int16_t{-5})},
    {{"the last number of the orders is 32700"},
     wrong("tot", contatori::ordini, &rec_tot::ultimo_numero, std::int16_t{32700})},
    {{"entry 5: it isn't in the order", "entry 5: its key isn't that of article"},
     wrong("sra", 5, &rec_sra::chiave, "!")},
    {{"stands twice", "isn't in the index"},
     [](auto& c) {
         const auto first = test::records_of<rec_src>(c.file("src"))[0];
         change<rec_src>(c, "src", 2, [&](rec_src& e) { e = first; });
     }},
    {{"from row 200 on its rows belong to another order"},
     wrong("orc", 200, &rec_orc::numero, "altro")},
    {{"there is no customer 9999", "row 151: there is no article 9999"},
     [](auto& c) {
         const std::int64_t first = open_order(c);
         for (std::int64_t row = first; row < first + 200; ++row) {
             wrong("orc", row, &rec_orc::cliente, std::int16_t{9999})(c);
         }
         wrong("orc", first + 150, &rec_orc::articolo, std::int16_t{9999})(c);
     }},
    {{"the open orders add up to"}, wrong("art", 9, &rec_art::ordinato_clienti, 1e6)},
    {{"giacenza is no number"}, wrong("art", 2, &rec_art::giacenza, std::nan(""))},
    {{"2 warehouse movements lie behind the counter"},
     [](auto& c) {
         std::ofstream(c.file("mag"), std::ios::binary | std::ios::app)
             << std::string(2 * sizeof(rec_mag), ' ');
     }},
    {{"orders print blank"}, [](auto& c) { std::filesystem::resize_file(c.file("lyo"), 100); }},
    {{"the company's parameters aren't there"},
     [](auto& c) { std::filesystem::remove(c.file("gnr")); }},
};

TEST(archive_check, FindsEachDamageAndNothingElseAndWritesNothing) {
    constexpr int sizes[][3] = {{120, 150, 90}, {0, 10, 0}, {0, 0, 10}, {1, 1, 1}, {20, 0, 3}};
    for (const auto& [orders, articles, customers] : sizes) {
        const demo_folder sound(
            {.numero_azienda = 7, .orders = orders, .articles = articles, .customers = customers});
        EXPECT_EQ(faults_of(sound), std::vector<std::string>{}) << orders;
    }
    const demo_folder emptied(test::small_company);
    wrong("orc", open_order(emptied, false), &rec_orc::quantita, 0.0)(emptied);
    EXPECT_EQ(faults_of(emptied), std::vector<std::string>{}) << "what was fulfilled has left";
    for (const damage& one : damages) {
        SCOPED_TRACE(one.told[0]);
        const demo_folder company(
            {.numero_azienda = 7, .orders = 20, .articles = 30, .customers = 20});
        one.make(company);
        const auto before = test::files_under(company.drive());
        const auto faults = faults_of(company);
        ASSERT_EQ(faults.size(), one.told.size());
        for (std::size_t i = 0; i < faults.size(); ++i) {
            EXPECT_NE(faults[i].find(one.told[i]), std::string::npos) << faults[i];
        }
        EXPECT_EQ(test::files_under(company.drive()), before);
    }
}

TEST(archive_repair, SetsTheWrongFiguresRightAndLeavesACopyOfTheFile) {
    const demo_folder company(test::small_company);
    change<rec_art>(company, "art", 3, [](rec_art& a) { a.ordinato_clienti = std::nan(""); });
    const std::string wrong = test::bytes_of(company.file("art"));
    std::ostringstream said;
    const auto repair = [&](bool confirmed) {
        return repair_ordered_quantities(
            company.drive(), 7, [confirmed] { return confirmed; }, said);
    };
    EXPECT_EQ(repair(false), 1);
    EXPECT_EQ(test::bytes_of(company.file("art")), wrong);
    EXPECT_EQ(repair(true), 0);
    // Added up anew, a figure may differ from the one moved step by step in its last digit.
    EXPECT_EQ(faults_of(company), std::vector<std::string>{});
    const std::string now = test::bytes_of(company.file("art"));
    auto expected = wrong;
    constexpr auto size = sizeof(rec_art);
    expected.replace(2 * size, size, now, 2 * size, size);
    EXPECT_EQ(now, expected);
    EXPECT_EQ(test::bytes_of(company.file("art").string() + ".copy1"), wrong);
    std::filesystem::resize_file(company.file("orc"), 119 * 200 * sizeof(rec_orc));
    EXPECT_EQ(repair(true), 3) << "an order is missing";
    EXPECT_EQ(test::bytes_of(company.file("art")), now);
}

}  // namespace
}  // namespace vantora::archive
