#include "register/compattazione.h"

#include <gtest/gtest.h>

#include <random>

#include "scripted/small_company.h"
#include "store/drive.h"
#include "support/faulty_files.h"

namespace vantora::test {
namespace {

using bytes = std::string;

/// The states of an archive's orders, one letter each: o open, d deleted, f fulfilled, b both, l
/// deleted in its last row only.
/// Every row tells its block and number.
void write_archive(small_company& company, const std::string& states) {
    for (int i = 1; i <= static_cast<int>(states.size()); ++i) {
        const char state = states[static_cast<std::size_t>(i - 1)];
        std::vector<rec_orc> rows(righe_blocco);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            rows[row].numero = std::to_string(i);
            rows[row].descrizione = "riga " + std::to_string(row + 1);
            rows[row].annullato = static_cast<std::int16_t>(state == 'd' || state == 'b');
        }
        if (state == 'l') rows.back().annullato = 1;
        rows[0].evaso_flag = static_cast<std::int16_t>(state == 'f' || state == 'b');
        company.files.orc.write_block(block_record(i, 1), rows);
    }
    rec_tot counter{};
    counter.quanti = static_cast<std::int16_t>(states.size());
    counter.modificato = 7;
    counter.riservato_a = 9;
    counter.ultimo_numero = 123;
    counter.progressivo = 4.5F;
    company.files.tot.write(contatori::ordini, counter);
}

/// The pass as a person would do it by hand, record by record: an order whose head can't be read
/// stays; at a block that can't be read whole all stops, and the counter stays. So it
/// does behind so many blocks, when the next write fails or the process ends.
void compact_by_hand(archivi& files, rec_tot& counter, bool fulfilled_too, std::size_t blocks) {
    rec_orc row{};
    int gone = 0;
    for (int i = 1; i <= counter.quanti; ++i) {
        const bool read = files.orc.read(block_record(i, 1), row);
        if (read && (row.annullato == 1 || (fulfilled_too && row.evaso_flag == 1))) {
            ++gone;
        } else if (gone > 0) {
            if (blocks-- == 0) return;
            std::vector<rec_orc> rows(righe_blocco);
            for (int k = 1; k <= righe_blocco; ++k) {
                row = {};
                if (!files.orc.read(block_record(i, k), row)) return;
                rows[static_cast<std::size_t>(k - 1)] = row;
            }
            for (int k = 1; k <= righe_blocco; ++k) {
                files.orc.write(block_record(i - gone, k), rows[static_cast<std::size_t>(k - 1)]);
            }
        }
    }
    counter.quanti = static_cast<std::int16_t>(counter.quanti - gone);
    counter.riservato_a = 0;
    if (blocks > 0) files.tot.write(contatori::ordini, counter);
}

rec_tot counter_of(archivi& files) {
    return stored(files.tot, contatori::ordini);
}

/// An archive whose files note what happens to them and fail where a test wants it.
struct noted_archive {
    explicit noted_archive(const std::string& states) {
        write_archive(company, states);
        apri_archivi(files, faults, 1);
        counter = counter_of(files);
        faults.reads = 0;
    }
    change_outcome compact(bool fulfilled_too = false) {
        return compatta_archivio(
            files, fulfilled_too, [](int, int) {}, &unread);
    }

    std::vector<std::string> unread;
    small_company company;
    drive real{company.drive()};
    faulty_files faults{real};
    archivi files;
    rec_tot counter;
};

/// Two copies of one random archive: one compacted by the program, one by hand, with the same
/// faults; both must hold the same bytes.
TEST(compattazione, LeavesTheSameBytesAsMovingRecordByRecord) {
    std::mt19937 random(7);
    for (int round = 0; round < 40; ++round) {
        const std::size_t orders = random() % 9;
        std::string states;
        for (std::size_t i = 0; i < orders; ++i) states += "oodfbl"[random() % 6];
        const bool fulfilled_too = random() % 2 == 0;
        const bool short_file = random() % 3 == 0;
        const std::size_t written = random() % 2 == 0 ? random() % 4 : 1000;
        const bool ends = random() % 2 == 0;
        const std::int64_t bad_record = random() % 3 == 0   ? random() % 1800 + 1
                                        : random() % 2 == 0 ? random() % 9 * 200 + 1
                                                            : 0;
        const auto touches_bad_record = [&](const std::string& path, std::int64_t offset,
                                            std::size_t size) {
            const std::int64_t bad = (bad_record - 1) * 284;
            return bad_record > 0 && path.ends_with("orc") && offset <= bad &&
                   bad < offset + static_cast<std::int64_t>(size);
        };

        bytes results[2];
        for (const bool by_hand : {false, true}) {
            noted_archive one(states);
            if (short_file && orders > 0) {
                std::filesystem::resize_file(one.company.file("orc"), orders * 56800 - 30000);
            }
            one.faults.read_fails = touches_bad_record;
            if (by_hand) {
                compact_by_hand(one.files, one.counter, fulfilled_too, written);
            } else {
                std::size_t writes = 0;
                one.faults.write_fails = [&](auto&, auto) {
                    if (writes++ != written) return false;
                    if (ends) throw crash{};
                    return true;
                };
                try {
                    const bool whole = one.compact(fulfilled_too).how == change_outcome::done;
                    EXPECT_EQ(whole, counter_of(one.company.files).riservato_a == 0);
                    const auto of_bad = static_cast<std::size_t>(bad_record) / 200;
                    const bool kept = bad_record % 200 == 1 && of_bad < orders;
                    EXPECT_TRUE(!whole || one.unread.size() == (kept ? 1U : 0U));
                    EXPECT_TRUE(!whole || !kept ||
                                one.unread[0].ends_with(std::to_string(of_bad + 1)));
                } catch (const crash&) {
                    EXPECT_TRUE(ends);
                }
            }
            results[by_hand ? 1 : 0] = one.company.content("orc") + one.company.content("tot");
        }
        EXPECT_EQ(results[0], results[1])
            << states << " " << fulfilled_too << " " << bad_record << " " << written << " " << ends;
    }
}

TEST(compattazione, FlushesTheBlocksBeforeTheCounter) {
    const std::string orc = "\\mirwin\\mirwin\\miraz0.001\\vantora.orc";
    const std::string tot = "\\mirwin\\mirwin\\miraz0.001\\vantora.tot";
    const file_event counted{tot, 13 * 12, 12, false};
    const file_event safe{tot, 0, 0, true};
    noted_archive gap("odoo");
    gap.compact();
    EXPECT_EQ(gap.faults.events, (std::vector<file_event>{{orc, 56800, 56800, false},
                                                          {orc, 2 * 56800, 56800, false},
                                                          {orc, 0, 0, true},
                                                          counted,
                                                          safe}));
    noted_archive whole("oof");
    whole.compact();
    EXPECT_EQ(whole.faults.events, (std::vector<file_event>{counted, safe}));
    EXPECT_EQ(whole.faults.reads, 1U + 3) << "the counter and the head row of each block";
    noted_archive refused("odoo");
    refused.faults.flush_fails = [&](const std::string& path) { return path == orc; };
    EXPECT_EQ(refused.compact().files, "vantora.orc");
    EXPECT_EQ(counter_of(refused.files).quanti, 4);
    refused.faults.flush_fails = [&](const std::string& path) { return path == tot; };
    EXPECT_EQ(refused.compact().files, "vantora.tot");
    refused.faults.events.clear();
    refused.faults.read_only = refused.faults.flush_fails;
    EXPECT_EQ(refused.compact().files, "vantora.tot");
    EXPECT_TRUE(refused.faults.events.empty());
}

}  // namespace
}  // namespace vantora::test
