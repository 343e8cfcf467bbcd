#include "store/parameters.h"

#include <gtest/gtest.h>

#include <cstring>

#include "store/drive.h"
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

}  // namespace
}  // namespace vantora
