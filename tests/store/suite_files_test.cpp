#include "store/parameters.h"

#include <gtest/gtest.h>

#include <cstring>

#include "store/drive.h"
#include "store/suite_table.h"
#include "store/text_reader.h"
#include "support/faulty_files.h"
#include "support/file_bytes.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

using test::put;

std::string bytes(const rec_gnr& record) {
    return {reinterpret_cast<const char*>(&record), sizeof record};
}

/// The report file, whole: margins, six groups, six lines, six lines.
std::vector<std::string> report_lines() {
    std::vector<std::string> lines = {"10,20,30,40,1"};
    for (const std::string group : {"0", "1", "2", "3", "4", "5"}) {
        lines.insert(lines.end(), {group == "0" ? "2" : "77", "Font" + group, "1" + group, "1", "0",
                                   "25" + group});
    }
    lines.insert(lines.end(), {"a", "b", "c", "d", "e", "123", "1", "11", "12", "13", "14", "x"});
    return lines;
}

class parameters_test : public testing::Test {
 protected:
    parameters_test() { std::filesystem::create_directories(company); }

    parametri load(file_port& from) {
        parametri loaded;
        loaded.numero_azienda = 1;
        carica_parametri(loaded, from);
        return loaded;
    }
    parametri load() { return load(port); }
    auto report_table(const std::vector<std::string>& lines) {
        std::string content;
        for (const std::string& line : lines) content += line + "\r\n";
        put(general / "vantora.tbl", content);
        return load().tabella_stampa;
    }
    rec_gnr stored() {
        rec_gnr record;
        const std::string content = test::bytes_of(own);
        std::memcpy(&record, content.data(), std::min(content.size(), sizeof record));
        return record;
    }

    test::scratch_folder folder;
    std::filesystem::path general = folder.path() / "mirwin/mirwin";
    std::filesystem::path company = general / "miraz0.001";
    std::filesystem::path own = company / "vantora.gnr";
    std::filesystem::path shared = general / "vantora.gnr";
    drive port{folder.path()};
};

TEST_F(parameters_test, CurrencySettingsFallBackTogether) {
    const struct {
        const char* content;
        const char* mode;
        const char* price_decimals;
        const char* seventh;
    } cases[] = {{nullptr, "1", "2", "9"},
                 {"", "1", "2", "9"},
                 {"0,1,\"A\",\"B\"", "1", "2", "9"},
                 {"0,1,\"A\",\"B\",3\r\n", "0", "3", "9"},
                 {"2,1,A,B,4\r\nsesta\r\nsettima\r\n", "1", "4", "settima"},
                 {"0\r\n1\r\nA\r\nB\r\n5\r\nsesta\r\n7\r\n", "0", "5", "7"},
                 {"x,1,A,B,2\r\n\r\n\r\n", "0", "2", ""}};
    for (const auto& one : cases) {
        if (one.content) put(general / "vantora.eur", one.content);
        const parametri loaded = load();
        EXPECT_EQ(loaded.parametri_valuta[1], one.mode) << (one.content ? one.content : "none");
        EXPECT_EQ(loaded.parametri_valuta[5], one.price_decimals);
        EXPECT_EQ(loaded.parametri_valuta[11], one.seventh);
    }
}

TEST_F(parameters_test, AReportFileMayEndAnywhere) {
    using table = const std::array<voce_stampa, 31>&;
    const struct {
        std::size_t lines;  ///< that must be there
        double otherwise;
        double read;
        double (*setting)(table);
    } settings[] = {{1, 30, 10, [](table t) -> double { return t[0].margine_sinistro; }},
                    {1, 950, 20, [](table t) -> double { return t[0].margine_destro; }},
                    {1, 950, 40, [](table t) -> double { return t[0].margine_basso; }},
                    {1, 2, 1, [](table t) -> double { return t[0].stile; }},
                    {37, 14, 11, [](table t) -> double { return t[1].corpo_carattere; }},
                    {37, 9, 15, [](table t) -> double { return t[5].corpo_carattere; }},
                    {37, 0, 1, [](table t) -> double { return t[5].grassetto; }},
                    {37, 0, 255, [](table t) { return t[5].colore; }},
                    {37, 240, 190, [](table t) -> double { return t[0].altezza; }},
                    {43, 16777215, 123, [](table t) { return t[0].sfondo; }},
                    {44, 0, 1, [](table t) -> double { return t[1].stile; }},
                    {45, 0, 11, [](table t) -> double { return t[1].altezza; }},
                    {46, 0, 12, [](table t) -> double { return t[2].altezza; }},
                    {47, 0, 13, [](table t) { return t[1].sfondo; }},
                    {48, 0, 14, [](table t) { return t[2].sfondo; }}};
    const auto lines = report_lines();
    for (std::size_t kept = 0; kept <= lines.size(); ++kept) {
        const auto read = report_table({lines.begin(), lines.begin() + long(kept)});
        EXPECT_EQ(read[1].nome_carattere, kept >= 37 ? "Font1" : "Arial") << kept;
        for (const auto& one : settings) {
            EXPECT_EQ(one.setting(read), kept >= one.lines ? one.read : one.otherwise) << kept;
        }
    }
}

TEST_F(parameters_test, NumbersBeyondSixteenBitsCountAsUnreadable) {
    const auto with = [&](std::size_t line, const char* value) {
        auto lines = report_lines();
        lines[line] = value;
        return report_table(lines);
    };
    EXPECT_EQ(with(0, "40000,20,30,40,1")[0].margine_sinistro, 30);
    EXPECT_EQ(with(0, "40000,20,30,40,1")[1].nome_carattere, "Font1");
    EXPECT_EQ(with(1, "30000")[0].altezza, 0) << "the height doesn't fit";
    EXPECT_EQ(with(1 + 3 * 6, "99999")[1].nome_carattere, "Font1") << "counts for nothing";
}

TEST_F(parameters_test, TheFirstStartOfACompanyMakesItsParameters) {
    const rec_gnr record = load().gnr;
    EXPECT_EQ(test::bytes_of(own), bytes(record));
    EXPECT_EQ(record.formato_gnr.full(), "9");
    EXPECT_EQ(record.aggiorna_elenco.full(), "1");
    EXPECT_EQ(record.righe_alternate.full(), "1");
    EXPECT_EQ(record.riservato_be.full(), "1");
    EXPECT_EQ(record.codice_iva_base.full(), "01");
    EXPECT_EQ(record.colore_riga_pari, 16579315);
    EXPECT_EQ(record.vista_registro, 0);
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "mirwin/PDF"));
}

TEST_F(parameters_test, TheGeneralTemplateServesAsACompanysFirstParameters) {
    rec_gnr record;
    record.riservato_bd = "modello";
    record.codice_iva_base = "77";
    put(shared, bytes(record));
    load();
    EXPECT_EQ(stored().riservato_bd.trimmed(), "modello");
    EXPECT_EQ(stored().formato_gnr.full(), "9");
    EXPECT_EQ(stored().codice_iva_base.full(), "77") << "not repaired on this path";
    EXPECT_EQ(test::bytes_of(shared), bytes(record)) << "the template stays";
}

TEST_F(parameters_test, ParametersAreRepairedAndNothingElseIsTouched) {
    rec_gnr record;
    record.riservato_bd = "di altri";
    record.riservato_bl = "anche questo";
    record.formato_gnr = "9";
    record.righe_alternate = "0";
    const std::pair<const char*, const char*> cases[] = {{"00", "01"}, {"25", "01"}, {"24", "24"},
                                                         {"  ", "01"}, {"-1", "01"}, {"07", "07"}};
    for (const auto& [code, repaired] : cases) {
        record.codice_iva_base = code;
        put(own, bytes(record));
        load();
        record.codice_iva_base = repaired;
        EXPECT_EQ(test::bytes_of(own), bytes(record)) << code;
    }
    record.formato_gnr = "8";
    put(own, bytes(record));
    load();
    EXPECT_EQ(stored().righe_alternate.full(), "1");
    EXPECT_EQ(stored().riservato_bd.trimmed(), "di altri");
}

TEST_F(parameters_test, AFirstStartThatFailsIsMadeGoodByTheNext) {
    const std::string others = "di altri moduli";
    for (const bool has_template : {false, true}) {
        test::faulty_files faults(port);
        bool failed = true;
        for (std::size_t fault = 0; failed; ++fault) {
            std::filesystem::remove(own);
            if (has_template) put(shared, others);
            faults.fail_at(fault / 2, fault % 2 == 1, failed);
            EXPECT_EQ(load(faults).gnr.formato_gnr.full(), "9");
            load();
            EXPECT_EQ(stored().formato_gnr.full(), "9");
            for (const auto& one : {own, shared}) {
                EXPECT_TRUE(!has_template || test::bytes_of(one).starts_with(others)) << fault;
            }
        }
    }
}

TEST_F(parameters_test, WhatCantBeReadIsNeverWrittenOver) {
    rec_gnr others;
    others.riservato_bd = "di altri moduli";
    test::faulty_files faults(port);
    for (const bool is_own : {true, false}) {
        std::filesystem::remove(own);
        put(is_own ? own : shared, bytes(others));
        faults.read_fails = [is_own](auto& path, auto&&...) {
            return path.ends_with("gnr") && is_own == (path.find("miraz") != path.npos);
        };
        parametri loaded = load(faults);
        EXPECT_EQ(loaded.gnr.codice_iva_base.full(), "01");
        EXPECT_EQ(loaded.gnr.colore_riga_pari, 16579315);
        loaded.gnr.vista_registro = std::int16_t{12};
        salva_parametri(loaded, faults);
        EXPECT_EQ(test::bytes_of(is_own ? own : shared), bytes(others));
        EXPECT_EQ(std::filesystem::exists(own), is_own);
        // As soon as it can be read all is as usual.
        load();
        EXPECT_EQ(stored().riservato_bd.trimmed(), "di altri moduli");
        EXPECT_EQ(stored().formato_gnr.full(), "9");
    }
}

/// Lines of a group in each of the fifteen sections, and how many groups there are.
struct section {
    int groups;
    int lines;
};
constexpr section sections[] = {{8, 4},  {8, 3},  {9, 2}, {9, 2}, {30, 2}, {9, 2}, {40, 1}, {40, 1},
                                {30, 5}, {40, 6}, {8, 4}, {8, 3}, {8, 2},  {8, 2}, {30, 2}};

/// A whole table file in which every line tells its section, group and line: "s10 g3 l2".
std::vector<std::string> telling_lines() {
    std::vector<std::string> lines;
    for (int s = 1; s <= 15; ++s) {
        for (int g = 1; g <= sections[s - 1].groups; ++g) {
            for (int l = 1; l <= sections[s - 1].lines; ++l) {
                lines.push_back("s" + std::to_string(s) + " g" + std::to_string(g) + " l" +
                                std::to_string(l));
            }
        }
    }
    return lines;
}

std::string content_of(const std::vector<std::string>& lines) {
    std::string content;
    for (const std::string& line : lines) content += line + "\r\n";
    return content;
}

tabella_suite read(const std::string& content) {
    const test::scratch_folder folder;
    test::put(folder.path() / "mirwin/mirwin/miraz0.001/vantora.tab", content);
    drive files(folder.path());
    return read_suite_table(files, 1);
}

TEST(suite_table, EverySectionIsFoundAtItsPlace) {
    const tabella_suite table = read(content_of(telling_lines()));
    for (const int code : {1, 8, 9, 16}) {
        const std::string group = " g" + std::to_string((code - 1) % 8 + 1) + " l1";
        EXPECT_EQ(table.iva.aliquota_iva[code], (code <= 8 ? "s1" : "s11") + group);
        if (code < 9) continue;
        EXPECT_EQ(table.iva.descrizione_iva[code], "s13" + group);
    }
    EXPECT_EQ(table.iva.descrizione_iva[0], "s3 g1 l1");
    EXPECT_EQ(table.iva.descrizione_iva[8], "s3 g9 l1");
    ASSERT_EQ(table.pagamenti.size(), 60U);
    EXPECT_EQ(table.pagamenti[29], "s5 g30 l1");
    EXPECT_EQ(table.pagamenti[30], "s15 g1 l1");
    EXPECT_EQ(table.pagamenti[59], "s15 g30 l1");
    ASSERT_EQ(table.vettori.size(), 40U);
    EXPECT_EQ(table.causali[39], "s10 g40 l1");
    EXPECT_EQ(table.aspetti[39], "s10 g40 l2");
    EXPECT_EQ(table.vettori[39], (vettore{"s10 g40 l3", "s10 g40 l4", "s10 g40 l5"}));
}

TEST(suite_table, VatEntriesReadAsTheListShowsThem) {
    tabella_iva iva;
    iva.aliquota_iva[4] = "22";
    iva.descrizione_iva[2] = "Esente";
    const auto entries = vat_entries(iva);
    ASSERT_EQ(entries.size(), 24U);
    EXPECT_EQ(entries[0] + entries[3] + entries[13] + entries[23],
              "01 Iva %04 Iva 22%14 Esente24 ");
}

using texts = std::vector<std::string>;

TEST(text_reader, LinesAndItemsEndInEachOfTheThreeWays) {
    const struct {
        const char* content;
        texts lines;
        texts items;
    } cases[] = {{"a\r\nb\rc\nd", {"a", "b", "c", "d"}, {"a", "b", "c", "d"}},
                 {"\r\n\r\n", {"", ""}, {"", ""}},
                 {"a\n\nb", {"a", "", "b"}, {"a", "", "b"}},
                 {"", {}, {}},
                 {" \"x\", y \r\n", {" \"x\", y "}, {"x", "y"}},
                 {"1, 2 ,3\r\n4", {"1, 2 ,3", "4"}, {"1", "2", "3", "4"}},
                 {"\"a, b\" dropped,c", {"\"a, b\" dropped,c"}, {"a, b", "c"}},
                 {"  \" kept \"\r\nx", {"  \" kept \"", "x"}, {" kept ", "x"}},
                 {"\"never closed\r\nx", {"\"never closed", "x"}, {"never closed\r\nx"}},
                 {",,\n", {",,"}, {"", "", ""}},
                 {"a\"b\",c", {"a\"b\",c"}, {"a\"b\"", "c"}}};
    for (const auto& one : cases) {
        texts lines;
        texts items;
        text_reader by_line(one.content);
        for (std::string line; by_line.line(line);) lines.push_back(line);
        text_reader by_item(one.content);
        for (std::string item; by_item.item(item);) items.push_back(item);
        EXPECT_EQ(lines, one.lines) << one.content;
        EXPECT_EQ(items, one.items) << one.content;
    }
}

TEST(text_reader, TheRestBehindAnItemIsItsLineOrTheNextOne) {
    text_reader reader("item,rest, of it\nitem\nnext\nlast");
    std::string text;
    ASSERT_TRUE(reader.item(text));
    ASSERT_TRUE(reader.line(text));
    EXPECT_EQ(text, "rest, of it");
    ASSERT_TRUE(reader.item(text));
    ASSERT_TRUE(reader.line(text));
    EXPECT_EQ(text, "next");
    double number = 9;
    EXPECT_TRUE(reader.line(text));
    EXPECT_FALSE(reader.item(number) || reader.line(text) || reader.item(text));
    EXPECT_EQ(number, 9) << "what isn't there leaves the variable";
    EXPECT_EQ(text, "last");
}

}  // namespace
}  // namespace vantora
