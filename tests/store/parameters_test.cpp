#include "store/parameters.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <fstream>

#include "store/drive.h"
#include "support/faulty_files.h"
#include "support/scratch_folder.h"

namespace vantora {
namespace {

class parameters_test : public testing::Test {
 protected:
    parameters_test() { std::filesystem::create_directories(company); }

    void write(const std::filesystem::path& file, const std::string& content) {
        std::ofstream(file, std::ios::binary) << content;
    }
    parametri load() {
        parametri loaded;
        loaded.numero_azienda = 1;
        carica_parametri(loaded, port);
        return loaded;
    }
    static rec_gnr stored_in(const std::filesystem::path& where) {
        rec_gnr record;
        std::ifstream in(where / "vantora.gnr", std::ios::binary);
        in.read(reinterpret_cast<char*>(&record), sizeof record);
        return record;
    }
    rec_gnr stored() { return stored_in(company); }
    void store(const std::filesystem::path& where, const rec_gnr& record) {
        write(where / "vantora.gnr",
              std::string(reinterpret_cast<const char*>(&record), sizeof record));
    }
    static bool same(const rec_gnr& one, const rec_gnr& other) {
        return std::memcmp(&one, &other, sizeof one) == 0;
    }
    /// The report file, whole: margins, six groups, six lines, six lines.
    static std::vector<std::string> report_lines() {
        std::vector<std::string> lines = {"10,20,30,40,1"};
        for (const char* group : {"0", "1", "2", "3", "4", "5"}) {
            lines.emplace_back(*group == '0' ? "2" : "77");
            lines.push_back(std::string("Font") + group);
            lines.push_back(std::string("1") + group);
            lines.insert(lines.end(), {"1", "0", std::string("25") + group});
        }
        lines.insert(lines.end(),
                     {"a", "b", "c", "d", "e", "123", "1", "11", "12", "13", "14", "x"});
        return lines;
    }
    static std::string joined(const std::vector<std::string>& lines, std::size_t count) {
        std::string all;
        for (std::size_t i = 0; i < count; ++i) all += lines[i] + "\r\n";
        return all;
    }

    test::scratch_folder folder;
    std::filesystem::path general = folder.path() / "mirwin/mirwin";
    std::filesystem::path company = general / "miraz0.001";
    drive port{folder.path()};
};

TEST_F(parameters_test, CurrencySettingsFallBackTogether) {
    struct {
        const char* content;
        const char* mode;
        const char* price_decimals;
        const char* seventh;
    } cases[] = {
        {nullptr, "1", "2", "9"},
        {"", "1", "2", "9"},
        {"0,1,\"A\",\"B\"", "1", "2", "9"},
        {"0,1,\"A\",\"B\",3\r\n", "0", "3", "9"},
        {"2,1,A,B,4\r\nsesta\r\nsettima\r\n", "1", "4", "settima"},
        {"0\r\n1\r\nA\r\nB\r\n5\r\nsesta\r\n7\r\n", "0", "5", "7"},
        {"x,1,A,B,2\r\n\r\n\r\n", "0", "2", ""},
    };
    for (const auto& one : cases) {
        if (one.content) write(general / "vantora.eur", one.content);
        const parametri loaded = load();
        EXPECT_EQ(loaded.parametri_valuta[1], one.mode) << (one.content ? one.content : "none");
        EXPECT_EQ(loaded.parametri_valuta[5], one.price_decimals);
        EXPECT_EQ(loaded.parametri_valuta[11], one.seventh);
    }
}

TEST_F(parameters_test, AReportFileMayEndAnywhere) {
    const auto lines = report_lines();
    for (std::size_t kept = 0; kept <= lines.size(); ++kept) {
        write(general / "vantora.tbl", joined(lines, kept));
        const parametri loaded = load();
        const auto& table = loaded.tabella_stampa;
        const bool margins = kept >= 1;
        const bool fonts = kept >= 1 + 36;
        const bool background = kept >= 1 + 36 + 6;
        EXPECT_EQ(table[0].margine_destro, margins ? 20 : 950) << kept;
        EXPECT_EQ(table[1].nome_carattere, fonts ? "Font1" : "Arial") << kept;
        EXPECT_EQ(table[1].corpo_carattere, fonts ? 11 : 14) << kept;
        EXPECT_EQ(table[3].corpo_carattere, fonts ? 13 : 9) << kept;
        EXPECT_EQ(table[0].altezza, fonts ? 190 : 240) << kept;
        EXPECT_EQ(table[0].sfondo, background ? 123 : 16777215) << kept;
        EXPECT_EQ(table[2].altezza, kept >= 1 + 36 + 6 + 3 ? 12 : 0) << kept;
    }
    write(general / "vantora.tbl", joined(lines, lines.size()));
    const auto table = load().tabella_stampa;
    const int whole[] = {table[0].margine_sinistro, table[0].margine_basso, table[0].stile,
                         table[5].corpo_carattere,  table[5].grassetto,     table[1].stile,
                         table[1].altezza};
    const int expected[] = {10, 40, 1, 15, 1, 1, 11};
    EXPECT_TRUE(std::ranges::equal(whole, expected)) << testing::PrintToString(whole);
    EXPECT_EQ(table[5].colore, 255);
    EXPECT_EQ(table[1].sfondo, 13);
    EXPECT_EQ(table[2].sfondo, 14);
}

TEST_F(parameters_test, NumbersBeyondSixteenBitsCountAsUnreadable) {
    const auto with = [&](std::size_t line, const char* value) {
        auto lines = report_lines();
        lines[line] = value;
        write(general / "vantora.tbl", joined(lines, lines.size()));
        return load().tabella_stampa;
    };
    EXPECT_EQ(with(0, "40000,20,30,40,1")[0].margine_sinistro, 30);
    EXPECT_EQ(with(1, "30000")[0].altezza, 0) << "the height doesn't fit";
    EXPECT_EQ(with(1 + 3 * 6, "99999")[1].nome_carattere, "Font1") << "counts for nothing";
}

TEST_F(parameters_test, TheFirstStartOfACompanyMakesItsParameters) {
    const parametri loaded = load();
    const rec_gnr record = stored();
    EXPECT_TRUE(same(record, loaded.gnr));
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
    store(general, record);
    load();
    EXPECT_EQ(stored().riservato_bd.trimmed(), "modello");
    EXPECT_EQ(stored().formato_gnr.full(), "9");
    EXPECT_EQ(stored().codice_iva_base.full(), "77") << "not repaired on this path";
    EXPECT_TRUE(same(stored_in(general), record)) << "the template stays";
}

TEST_F(parameters_test, ParametersAreRepairedAndNothingElseIsTouched) {
    const std::pair<const char*, const char*> cases[] = {{"00", "01"}, {"25", "01"}, {"24", "24"},
                                                         {"  ", "01"}, {"-1", "01"}, {"07", "07"}};
    for (const auto& [code, repaired] : cases) {
        rec_gnr record;
        record.riservato_bd = "di altri";
        record.riservato_bl = "anche questo";
        record.formato_gnr = "9";
        record.righe_alternate = "0";
        record.codice_iva_base = code;
        store(company, record);
        load();
        record.codice_iva_base = repaired;
        EXPECT_TRUE(same(stored(), record)) << code;
    }
    rec_gnr old;
    old.formato_gnr = "8";
    old.codice_iva_base = "04";
    old.riservato_bd = "resta";
    store(company, old);
    load();
    EXPECT_EQ(stored().righe_alternate.full(), "1");
    EXPECT_EQ(stored().riservato_bd.trimmed(), "resta");
}

TEST_F(parameters_test, ShortLongAndStrangeFilesDoNoHarm) {
    for (const std::size_t size : {0U, 1U, 183U, 345U, 5000U}) {
        write(company / "vantora.gnr", std::string(size, 'x'));
        EXPECT_EQ(load().gnr.formato_gnr.full(), "9") << size;
        EXPECT_EQ(load().gnr.codice_iva_base.full(), "01") << size;
    }
    std::filesystem::remove(company / "vantora.gnr");
    std::filesystem::create_directory(company / "vantora.gnr");
    EXPECT_EQ(load().gnr.formato_gnr.full(), "9");
    std::filesystem::remove_all(company);
    EXPECT_EQ(load().gnr.formato_gnr.full(), "9") << "no folder to save in";
}

TEST_F(parameters_test, HeadingLinesThatAreMissingStayEmpty) {
    write(company / "vantora.int", "Ditta\r\nVia Po 1\r\n");
    parametri loaded = load();
    EXPECT_EQ(loaded.intestazione_ditta[1], "Ditta");
    EXPECT_EQ(loaded.intestazione_ditta[2], "Via Po 1");
    EXPECT_EQ(loaded.intestazione_ditta[3], "");
    std::filesystem::remove(company / "vantora.int");
    carica_parametri(loaded, port);
    EXPECT_EQ(loaded.intestazione_ditta[1], "") << "loading again rebuilds everything";
}

TEST_F(parameters_test, AFirstStartThatFailsIsMadeGoodByTheNext) {
    for (const bool writes : {false, true}) {
        test::faulty_files faults(port);
        const auto refuses = [](auto&&...) { return true; };
        if (writes) faults.write_fails = refuses;
        if (!writes) faults.open_fails = refuses;
        parametri loaded;
        loaded.numero_azienda = 1;
        carica_parametri(loaded, faults);
        EXPECT_EQ(loaded.gnr.codice_iva_base.full(), "01");
        EXPECT_EQ(loaded.gnr.formato_gnr.full(), "9");
        load();
        EXPECT_EQ(stored().formato_gnr.full(), "9");
        std::filesystem::remove(company / "vantora.gnr");
    }
}

TEST_F(parameters_test, WhatCantBeReadIsNeverWrittenOver) {
    rec_gnr others;
    others.riservato_bd = "di altri moduli";
    others.vista_registro = std::int16_t{2};
    test::faulty_files faults(port);
    const std::pair<std::filesystem::path, std::string> cases[] = {
        {company, "\\mirwin\\mirwin\\miraz0.001\\vantora.gnr"},
        {general, "\\mirwin\\mirwin\\vantora.gnr"}};
    for (const auto& [where, path] : cases) {
        std::filesystem::remove(company / "vantora.gnr");
        store(where, others);
        faults.read_fails = [&path = path](auto& read, auto&&...) { return read == path; };
        parametri loaded;
        loaded.numero_azienda = 1;
        carica_parametri(loaded, faults);
        EXPECT_EQ(loaded.gnr.codice_iva_base.full(), "01");
        EXPECT_EQ(loaded.gnr.colore_riga_pari, 16579315);
        loaded.gnr.vista_registro = std::int16_t{12};
        salva_parametri(loaded, faults);
        EXPECT_TRUE(same(stored_in(where), others));
        EXPECT_EQ(std::filesystem::file_size(where / "vantora.gnr"), sizeof others);
        EXPECT_EQ(std::filesystem::exists(company / "vantora.gnr"), where == company);
        // As soon as it can be read all is as usual.
        faults.read_fails = nullptr;
        carica_parametri(loaded, faults);
        EXPECT_EQ(stored().riservato_bd.trimmed(), "di altri moduli");
        EXPECT_EQ(stored().formato_gnr.full(), "9");
    }
}

}  // namespace
}  // namespace vantora
