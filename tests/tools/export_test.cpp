#include <gtest/gtest.h>

#include <charconv>
#include <map>
#include <nlohmann/json.hpp>
#include <random>
#include <sstream>

#include "archive/csv_text.h"
#include "archive/export_csv.h"
#include "archive/export_sqlite.h"
#include "archive/show.h"
#include "demo_folder.h"
#include "text/code_page.h"

namespace vantora::archive {
namespace {

using test::demo_folder;
using rows = std::vector<std::vector<std::string>>;

/// The rows of a CSV file, head row first.
rows parsed(const std::string& bytes, char separator) {
    rows all(1, {""});
    bool quoted = false;
    for (std::size_t i = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0; i < bytes.size(); ++i) {
        const char one = bytes[i];
        if (quoted && one == '"' && i + 1 < bytes.size() && bytes[i + 1] == '"') {
            all.back().back() += bytes[++i];
        } else if (one == '"') {
            quoted = !quoted;
        } else if (!quoted && one == separator) {
            all.back().emplace_back();
        } else if (!quoted && one == '\r') {
            continue;
        } else if (!quoted && one == '\n') {
            all.emplace_back(1, "");
        } else {
            all.back().back() += one;
        }
    }
    all.pop_back();
    return all;
}

/// Where a plain reader finds the columns of a table: its file, the length of a record, and for
/// each column its offset and kind: a text's width, i a 16-bit number, d a double, c and a
/// references to customers and articles, t a date, j a description with where it goes on.
struct plain_table {
    const char* name;
    const char* extension;
    std::size_t length;
    const char* columns;
    std::size_t rows_of_a_block = 1;
    std::size_t keys = 1;  ///< 2: by block and row
};

constexpr plain_table plain_tables[] = {
    {"clienti", "cli", 752,
     "0,40 40,40 80,40 120,40 160,5 165,40 205,40 245,40 285,40 325,5 330,15 345,15 360,15 375,11 "
     "386,16 402,40 442,40 482,32 522,36 584,i 588,i 590,i 626,2 628,1 629,1 633,37 673,37 712,i "
     "714,36 750,i"},
    {"articoli", "art", 327,
     "0,15 15,40 55,13 68,2 70,3 73,i 75,d 83,d 123,d 139,d 147,d 179,d 195,d 203,4 207,4 211,4 "
     "295,d 325,i"},
    {"movimenti", "mag", 94, "0,t 8,40 48,i 50,12 62,- 70,a 72,c 74,d 82,d 90,i"},
    {"ordini", "orc", 284,
     "0,10 10,t 18,c 232,t 240,i 242,1 249,- 282,i 20,40 60,40 100,40 304,40 344,40 384,40 588,40 "
     "628,40 872,40 912,40 952,40 668,40 0,- 0,- 0,- 0,-",
     200},
    {"righe_ordini", "orc", 284, "140,a 142,j257 182,2 184,d 192,d 200,d 243,i 245,i 247,i", 200,
     2},
    {"preventivi", "prv", 284, "0,10 10,t 18,c 20,40 60,40 100,40 282,i", 200},
    {"righe_preventivi", "prv", 284, "140,a 142,j242 182,d 190,d 198,2 200,i 202,i 204,i", 200, 2},
};

template <class Number>
Number number_at(const std::string& bytes, std::size_t at) {
    Number value;
    std::memcpy(&value, bytes.data() + at, sizeof value);
    return value;
}

std::string plain_text_at(const std::string& bytes, std::size_t at, std::size_t width) {
    std::string text = bytes.substr(at, width);
    const auto pads = [](char one) { return one == ' ' || one == '\0'; };
    while (!text.empty() && pads(text.back())) text.pop_back();
    while (!text.empty() && pads(text.front())) text.erase(0, 1);
    std::string shown;
    for (const char one : text) {
        const bool control = static_cast<unsigned char>(one) < 32 || one == 127;
        shown += control ? "\uFFFD" : to_utf8({&one, 1});
    }
    return shown;
}

std::string plain_cell_at(const std::string& bytes, std::size_t at, const std::string& kind,
                          std::pair<int, int> counts) {
    if (kind == "d") {
        char digits[400];
        const auto end = std::to_chars(digits, digits + sizeof digits, number_at<double>(bytes, at),
                                       std::chars_format::fixed);
        return {digits, end.ptr};
    }
    if (kind == "t") {
        const std::string day = bytes.substr(at, 8);
        return day.substr(0, 4) + "-" + day.substr(4, 2) + "-" + day.substr(6, 2);
    }
    if (kind[0] == 'j') {
        const auto rest = at - 142 + static_cast<std::size_t>(std::stoi(kind.substr(1)));
        return plain_text_at(bytes.substr(at, 40) + bytes.substr(rest, 10), 0, 50);
    }
    if (kind != "i" && kind != "a" && kind != "c") {
        return plain_text_at(bytes, at, static_cast<std::size_t>(std::stoi(kind)));
    }
    const int number = number_at<std::int16_t>(bytes, at);
    const int count = kind == "c" ? counts.first : counts.second;
    return kind != "i" && (number < 1 || number > count) ? "" : std::to_string(number);
}

/// A company whose texts hold what spreadsheets and files trip over.
void scramble(const demo_folder& company, std::mt19937& dice) {
    constexpr const char* traps[] = {"=1+1",  "-5",   "@x",      "'it", "007",
                                     "1E5",   "3-4",  "a;b\"c",  "x,y", "80134560000142",
                                     "1 mar", "a\tb", "\x80uro", "(7)", "12"};
    for (const auto& [extension, length] :
         {std::pair{"cli", std::size_t{752}}, std::pair{"art", std::size_t{327}}}) {
        std::string bytes = test::bytes_of(company.file(extension));
        for (std::size_t at = 0; at < bytes.size(); at += length) {
            std::string text = traps[dice() % std::size(traps)];
            text.resize(15, dice() % 2 == 0 ? ' ' : '\0');
            bytes.replace(at, 15, text);
        }
        std::ofstream(company.file(extension), std::ios::binary) << bytes;
    }
    std::string movements = test::bytes_of(company.file("mag"));
    const std::int16_t nobody = 31000;
    std::memcpy(movements.data() + 70, &nobody, sizeof nobody);
    const double large = 1e5;
    std::memcpy(movements.data() + 74, &large, sizeof large);
    std::ofstream(company.file("mag"), std::ios::binary) << movements;
}

/// How many rows a table has: of lines, those with an article, a figure or words.
std::size_t plain_count(const std::string& bytes, const plain_table& table) {
    if (table.keys == 1) return bytes.size() / table.length / table.rows_of_a_block;
    const std::string columns = table.columns;
    const auto more = static_cast<std::size_t>(std::stoi(columns.substr(columns.find('j') + 1)));
    const std::size_t figures = more == 257 ? 184 : 182;
    std::size_t count = 0;
    for (std::size_t at = 0; at < bytes.size(); at += table.length) {
        const bool words =
            !plain_text_at(bytes.substr(at + 142, 40) + bytes.substr(at + more, 10), 0, 50).empty();
        count += words || number_at<std::int16_t>(bytes, at + 140) > 0 ||
                         number_at<double>(bytes, at + figures) != 0 ||
                         number_at<double>(bytes, at + figures + 8) != 0
                     ? 1
                     : 0;
    }
    return count;
}

/// The lines of the documents, from the text files beside their records.
void expect_documents_with_lines(const demo_folder& company, const std::filesystem::path& plain) {
    const rows csv = parsed(test::bytes_of(plain / "righe_ddt.csv"), ',');
    const rows heads = parsed(test::bytes_of(plain / "ddt.csv"), ',');
    std::size_t row = 1;
    for (std::size_t document = 1; document < heads.size(); ++document) {
        const auto file = company.file("bol").parent_path() / ("b" + heads[document][3]);
        std::ifstream text(file);
        std::vector<std::string> lines;
        for (std::string line; std::getline(text, line);) {
            lines.push_back(plain_text_at(line, 0, line.find('\r')));
        }
        EXPECT_EQ(heads[document][7], lines.empty() ? "0" : "1");
        for (std::size_t at = 10; at + 20 <= lines.size(); at += 10) {
            if (std::stoi(lines[at]) < 1 && lines[at + 3].empty() &&
                std::stod(lines[at + 8]) == 0) {
                continue;
            }
            ASSERT_LT(row, csv.size());
            EXPECT_EQ(csv[row][0], heads[document][0]);
            EXPECT_EQ(csv[row][1], std::to_string(at / 10));
            for (const std::size_t words : {2, 3, 4})
                EXPECT_EQ(csv[row][words + 1], lines[at + words]);
            for (const std::size_t number : {5, 6, 7, 8, 9}) {
                EXPECT_EQ(std::stod(csv[row][number + 1]), std::stod(lines[at + number]));
            }
            ++row;
        }
    }
    EXPECT_EQ(row, csv.size());
}

rows of_database(sqlite3* opened, const std::string& table) {
    rows all;
    sqlite3_stmt* query = nullptr;
    sqlite3_prepare_v2(opened, ("SELECT * FROM " + table + " ORDER BY 1, 2").c_str(), -1, &query,
                       nullptr);
    while (sqlite3_step(query) == SQLITE_ROW) {
        all.emplace_back();
        for (int i = 0; i < sqlite3_column_count(query); ++i) {
            if (sqlite3_column_type(query, i) == SQLITE_FLOAT) {
                all.back().push_back(digits_of(sqlite3_column_double(query, i)));
                continue;
            }
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(query, i));
            all.back().emplace_back(text ? text : "");
        }
    }
    sqlite3_finalize(query);
    return all;
}

TEST(archive_export, EveryFormHoldsWhatAPlainReaderFinds) {
    std::mt19937 dice(7);
    for (const int size : {3, 40}) {
        const demo_folder folder({.numero_azienda = 7,
                                  .orders = size,
                                  .articles = size + 5,
                                  .customers = size + 2,
                                  .seed = static_cast<std::uint32_t>(size)});
        scramble(folder, dice);
        company_files company(folder.drive(), 7);
        ASSERT_EQ(gaps_of(company).size(), 0U);
        const test::scratch_folder out;
        csv_folder plain(out.path() / "plain", true);
        EXPECT_EQ(export_tables(company, plain, false, {}).lost_references, 1);
        ASSERT_TRUE(plain.finish());
        csv_folder sheet(out.path() / "sheet", false);
        export_tables(company, sheet, false, {});
        ASSERT_TRUE(sheet.finish());
        sqlite_file database(out.path() / "all.db");
        export_tables(company, database, false, {});
        ASSERT_TRUE(database.finish());
        sqlite3* opened = nullptr;
        ASSERT_EQ(sqlite3_open((out.path() / "all.db").c_str(), &opened), SQLITE_OK);
        EXPECT_EQ(of_database(opened, "pragma_foreign_key_check").size(), 0U);
        expect_documents_with_lines(folder, out.path() / "plain");
        for (const plain_table& table : plain_tables) {
            SCOPED_TRACE(table.name);
            const std::string file = std::string(table.name) + ".csv";
            const rows csv = parsed(test::bytes_of(out.path() / "plain" / file), ',');
            const rows in_sheet = parsed(test::bytes_of(out.path() / "sheet" / file), ';');
            const rows stored = of_database(opened, table.name);
            const std::string bytes = test::bytes_of(folder.file(table.extension));
            ASSERT_EQ(csv.size(), stored.size() + 1);
            ASSERT_EQ(csv.size(), in_sheet.size());
            EXPECT_EQ(csv.size() - 1, plain_count(bytes, table));
            for (std::size_t row = 1; row < csv.size(); ++row) {
                EXPECT_EQ(stored[row - 1], csv[row]);
                std::istringstream columns(table.columns);
                std::size_t cell = table.keys;
                const auto key = [&](std::size_t i) {
                    return static_cast<std::size_t>(std::stoi(csv[row][i])) - 1;
                };
                const std::size_t record =
                    key(0) * table.rows_of_a_block + (table.keys == 2 ? key(1) : 0);
                for (std::string column; columns >> column; ++cell) {
                    const auto comma = column.find(',');
                    const std::size_t at =
                        record * table.length + static_cast<std::size_t>(std::stoi(column));
                    const std::string kind = column.substr(comma + 1);
                    if (kind == "-") continue;
                    const std::string found = plain_cell_at(bytes, at, kind, {size + 2, size + 5});
                    ASSERT_EQ(csv[row][cell], found) << column << " of " << row;
                    if (table.keys == 2 ||
                        kind.find_first_not_of("0123456789") != std::string::npos)
                        continue;
                    EXPECT_EQ(in_sheet[row][cell], kept_as_text(found));
                }
                EXPECT_EQ(cell, csv[row].size());
            }
        }
        sqlite3_close(opened);
    }
}

TEST(archive_export, ASpreadsheetNeitherComputesNorTurnsATextAndOneApostropheGoesAgain) {
    for (const char* kept : {"=1", "+39 02", "-1", "@a", "'a", "007", "1E5", "3-4", "1,5", "10%",
                             "80134560000142", "mar-12", "(7)", "12:30", "1 EUR"}) {
        EXPECT_EQ(kept_as_text(kept), "'" + std::string(kept));
    }
    for (const char* left :
         {"", "12", "20121", "GOM00001", "A-1", "Via 20 Settembre, 3", "0444a"}) {
        EXPECT_EQ(kept_as_text(left), left);
    }
    EXPECT_EQ(digits_of(1e5), "100000");
    EXPECT_EQ(digits_of(1e-7), "0.0000001");
}

TEST(archive_export, WhatIsMissingIsToldAndAnEarlierTargetStays) {
    const demo_folder folder(test::small_company);
    const test::scratch_folder out;
    const auto write = [&](const std::filesystem::path& into, bool english = false) {
        company_files company(folder.drive(), 7);
        csv_folder csv(into, true);
        const auto outcome = export_tables(company, csv, english, gaps_of(company));
        return csv.finish() ? outcome.missing.size() : 99;
    };
    EXPECT_EQ(write(out.path() / "csv"), 0U);
    for (const char* mine : {"csv/mio.txt", "csv/clienti miei.csv"}) {
        test::put(out.path() / mine, "mine");
        EXPECT_NE(csv_folder::obstacle(out.path() / "csv"), "");
        std::filesystem::remove(out.path() / mine);
    }
    write(out.path() / "english", true);
    EXPECT_EQ(csv_folder::obstacle(out.path() / "csv"), "");
    EXPECT_EQ(csv_folder::obstacle(out.path() / "english"), "");
    std::filesystem::remove_all(out.path() / "english");
    const test::scratch_folder own;
    test::put(own.path() / "mio.csv", "a;b");
    EXPECT_NE(csv_folder::obstacle(own.path()), "") << "lists of one's own";
    EXPECT_NE(sqlite_file::obstacle(own.path() / "mio.csv"), "");
    std::filesystem::create_symlink(out.path() / "csv", own.path() / "link");
    EXPECT_NE(csv_folder::obstacle(own.path() / "link"), "");
    EXPECT_NE(sqlite_file::obstacle(own.path() / "link"), "");
    const auto whole = test::files_under(out.path());
    {
        company_files company(folder.drive(), 7);
        csv_folder csv(out.path() / "csv", true);
        export_tables(company, csv, false, {});
    }
    EXPECT_EQ(test::files_under(out.path()), whole) << "an export that wasn't finished";
    std::filesystem::resize_file(folder.file("orc"), 119 * 200 * sizeof(rec_orc));
    std::filesystem::remove(folder.file("tab"));
    std::string zeros(20 * sizeof(rec_tot), '\0');
    EXPECT_EQ(write(out.path() / "csv"), 2U);
    EXPECT_EQ(parsed(test::bytes_of(out.path() / "csv/mancanze.csv"), ',').size(), 3U);
    EXPECT_EQ(csv_folder::obstacle(out.path() / "csv"), "") << "an incomplete one is one, too";
    std::ofstream(folder.file("tot"), std::ios::binary) << zeros;
    company_files emptied(folder.drive(), 7);
    EXPECT_GE(gaps_of(emptied).size(), 6U) << "counters of 0 over full files";
}

TEST(archive_show, TellsAnOrderByItsNumberAndEveryFieldByItsName) {
    const demo_folder folder(test::small_company);
    company_files company(folder.drive(), 7);
    const auto all = test::records_of<rec_orc>(folder.file("orc"));
    const rec_orc& head = all[4 * righe_blocco];
    const auto said = [&](const show_request& request) {
        std::ostringstream out;
        return show(company, request, out) ? out.str() : "none";
    };
    const std::string number(head.numero.trimmed());
    const std::string words = said({show_request::kind::orders, number});
    EXPECT_NE(words.find("Ordine " + number + " del"), std::string::npos);
    EXPECT_NE(words.find("imponibile"), std::string::npos);
    EXPECT_EQ(words, said({show_request::kind::orders, "5", true}));
    EXPECT_NE(said({show_request::kind::quotes, "1"}).find("\n  1: "), std::string::npos);
    const auto fields = nlohmann::json::parse(said({show_request::kind::orders, "5", true, true}));
    ASSERT_EQ(fields.size(), 200U);
    EXPECT_EQ(fields[0]["quantity"], double{head.quantita});
    EXPECT_EQ(fields[0].size(), 26U);
    EXPECT_EQ(said({show_request::kind::articles, "151"}), "none");
    EXPECT_EQ(said({show_request::kind::orders, "nessuno"}), "none");
}

}  // namespace
}  // namespace vantora::archive
