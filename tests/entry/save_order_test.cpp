#include "entry/save_order.h"

#include <gtest/gtest.h>

#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

testata_registrata head_of(const std::string& number, bool commit = false) {
    testata_registrata head;
    head.numero = number;
    head.data = "06/05/2024";
    head.data_evasione = "31/12/2024";
    head.cliente = 3;
    head.impegno = commit;
    return head;
}

riga_ordine line_of(std::int16_t article) {
    riga_ordine line;
    line.articolo = article;
    line.quantita = 4;
    return line;
}

constexpr double data_reg = 45418.5;

rec_art stocked() {
    rec_art one = article("A", "Articolo", 1);
    one.ordinato_clienti = 100.0;
    return one;
}

rec_orc row_of(archivi& files, int registrazione, int row) {
    rec_orc read;
    EXPECT_TRUE(files.orc.read(block_record(registrazione, row), read));
    return read;
}

rec_tot counter_of(archivi& files) {
    rec_tot counter;
    EXPECT_TRUE(files.tot.read(contatori::ordini, counter));
    return counter;
}

TEST(save_order, CountersTakeWhatFitsAndKeepTheRest) {
    const struct {
        int in_use;
        const char* number;
        int then_in_use;
        int then_last;
    } cases[] = {
        {0, "1", 1, 1},      {0, "abc", 1, 0},       {3, "7.5", 4, 8},   {3, "6.5", 4, 6},
        {3, "99999", 4, 55}, {32767, "9", 32767, 9}, {3, " 1 2", 4, 12}, {3, "", 4, 0},
    };
    for (const auto& one : cases) {
        small_company company;
        rec_tot before{};
        before.quanti = static_cast<std::int16_t>(one.in_use);
        before.modificato = 5;
        before.riservato_a = 6;
        before.ultimo_numero = 55;
        before.progressivo = 7.5F;
        company.files.tot.write(contatori::ordini, before);
        ASSERT_TRUE(
            salva_nuovo_ordine(company.files, head_of(one.number), data_reg, {}, 0).begun());
        const rec_tot after = counter_of(company.files);
        EXPECT_EQ(after.quanti, one.then_in_use) << one.number;
        EXPECT_EQ(after.ultimo_numero, one.then_last) << one.number;
        EXPECT_EQ(after.modificato, 5);
        EXPECT_EQ(after.riservato_a, 6);
        EXPECT_EQ(after.progressivo, 7.5F);
    }
}

/// A save on an archive of one order, over files that may fail.
struct save_bench {
    save_bench() {
        company.articles({stocked(), stocked(), stocked()});
        lines[1] = line_of(1);
        lines[2] = line_of(0);
        lines[3] = line_of(3);
        apri_archivi(files, faults, 1);
        salva_nuovo_ordine(files, head_of("1"), data_reg, {}, 3);
        faults.events.clear();
        faults.writes = 0;
    }
    write_outcome save() {
        return salva_nuovo_ordine(files, head_of("2", true), data_reg, lines, 3);
    }
    double ordered(int number) {
        rec_art read;
        company.files.art.read(number, read);
        return read.ordinato_clienti;
    }

    small_company company;
    drive real{company.drive()};
    faulty_files faults{real};
    archivi files;
    righe_ordine lines;
};

std::string extension(const std::string& path) {
    return path.substr(path.rfind('.') + 1);
}

TEST(save_order, EveryRowFollowsItsArticleAndTheCounterFollowsTheDisk) {
    save_bench bench;
    ASSERT_TRUE(bench.save().faults.none());
    std::vector<std::string> order;
    for (const auto& event : bench.faults.events) {
        order.push_back(extension(event.path) + (event.flush ? "!" : ""));
    }
    std::vector<std::string> expected = {"art", "orc", "orc", "art"};
    expected.insert(expected.end(), 198, "orc");
    for (const char* last : {"art!", "orc!", "tot", "tot!"}) expected.emplace_back(last);
    EXPECT_EQ(order, expected);
    EXPECT_EQ(bench.faults.events[1].offset, 200 * 284);
}

TEST(save_order, ACrashLeavesNoCountedOrderWithoutItsStockMovements) {
    // 2 articles, 200 rows, 1 counter
    for (std::size_t writes = 0; writes <= 203; ++writes) {
        save_bench bench;
        bench.faults.writes_before_crash = writes;
        bool crashed = false;
        try {
            bench.save();
        } catch (const crash&) {
            crashed = true;
        }
        EXPECT_EQ(crashed, writes < 203);
        const rec_tot counter = counter_of(bench.company.files);
        EXPECT_EQ(counter.quanti, writes < 203 ? 1 : 2) << "after " << writes << " writes";
        EXPECT_EQ(counter.ultimo_numero, writes < 203 ? 1 : 2);
        EXPECT_EQ(row_of(bench.company.files, 1, 1).numero.trimmed(), "1")
            << "the order before is unharmed";
        // A row on the disk has its article's movement there too.
        const auto size = std::filesystem::file_size(bench.company.file("orc"));
        const auto rows = static_cast<std::int64_t>(size / 284) - 200;
        if (rows >= 1) {
            EXPECT_EQ(bench.ordered(1), 104) << "after " << writes << " writes";
        }
        if (rows >= 3) {
            EXPECT_EQ(bench.ordered(3), 104) << "after " << writes << " writes";
        }

        // The next order takes the same block and the archive is whole again.
        if (!crashed) continue;
        bench.faults.writes_before_crash = 1000;
        ASSERT_TRUE(salva_nuovo_ordine(bench.files, head_of("3"), data_reg, {}, 3).begun());
        EXPECT_EQ(counter_of(bench.company.files).quanti, 2);
        EXPECT_EQ(row_of(bench.company.files, 2, 1).numero.trimmed(), "3");
        EXPECT_EQ(row_of(bench.company.files, 2, 3).articolo, 0);
    }
}

TEST(save_order, FailedWritesArePassedOverAndUnreadableArticlesLeftAlone) {
    save_bench bench;
    bench.faults.read_fails = [](const std::string& path, std::int64_t offset, std::size_t) {
        return extension(path) == "art" && offset == 0;
    };
    bench.faults.write_fails = [](const std::string& path, std::int64_t offset) {
        return extension(path) == "orc" && offset == block_record(2, 2) * 284 - 284;
    };
    bench.faults.flush_fails = [](const std::string& path) { return extension(path) == "tot"; };
    EXPECT_EQ(bench.save().faults.names(), "vantora.art, vantora.orc, vantora.tot");
    EXPECT_EQ(bench.ordered(1), 100);
    EXPECT_EQ(bench.ordered(3), 104);
    EXPECT_EQ(counter_of(bench.company.files).quanti, 2);
    EXPECT_EQ(row_of(bench.company.files, 2, 2).numero.full(), std::string(10, '\0'));
    EXPECT_EQ(row_of(bench.company.files, 2, 3).articolo, 3);
}

TEST(save_order, WhatStandsInTheWayIsNamedAndNothingIsWritten) {
    enum class way { unreadable, negative, read_only, full };
    const struct {
        const char* file;
        way how;
    } cases[] = {{"tot", way::unreadable}, {"tot", way::negative},  {"tot", way::read_only},
                 {"art", way::read_only},  {"orc", way::read_only}, {"orc", way::full}};
    for (const auto& one : cases) {
        save_bench bench;
        const auto hit = [&one](const std::string& path, way how) {
            return how == one.how && extension(path) == one.file;
        };
        bench.faults.read_fails = [&](auto& path, auto, auto) {
            return hit(path, way::unreadable);
        };
        bench.faults.read_only = [&](auto& path) { return hit(path, way::read_only); };
        bench.faults.room_lacks = [&](auto& path, std::int64_t end) {
            return hit(path, way::full) && end == 400 * 284;
        };
        if (one.how == way::negative) bench.company.counter(contatori::ordini, -1);
        const write_outcome outcome = bench.save();
        EXPECT_FALSE(outcome.begun());
        EXPECT_EQ(outcome.obstacle(), std::string("vantora.") + one.file);
        EXPECT_TRUE(bench.faults.events.empty());
    }
}

}  // namespace
}  // namespace vantora::test
