#include <gtest/gtest.h>

#include <cmath>

#include "archive/repair.h"
#include "damaged.h"
#include "support/faulty_files.h"
#include "support/long_sessions.h"

namespace vantora::archive {
namespace {

using test::blocks_that_are;
using test::demo_folder;
using test::wrong;

/// In the order of the table of repairs.
struct repair_case {
    const char* name;
    const char* extension;  ///< of the file that it writes
    std::function<void(const demo_folder&)> damage;
};

const repair_case cases[] = {
    {"ordered", "art",
     [](auto& c) {
         for (const int number : {3, 9, 20}) {
             wrong("art", number, &rec_art::ordinato_clienti, std::nan(""))(c);
         }
     }},
    {"doubled", "orc",
     [](auto& c) {
         const auto open = blocks_that_are(c, true);
         test::copy_block(c, static_cast<std::size_t>(open[0]), 21);
         test::copy_block(c, static_cast<std::size_t>(open[1]), 22);
         wrong("tot", contatori::ordini, &rec_tot::quanti, std::int16_t{22})(c);
     }},
    {"indexes", "src",
     [](auto& c) {
         const auto first = test::records_of<rec_src>(c.file("src"))[0];
         test::change<rec_src>(c, "src", 2, [&](rec_src& e) { e = first; });
         std::filesystem::resize_file(c.file("srb"), 100);
     }},
    {"counters", "tot",
     [](auto& c) {
         wrong("tot", contatori::clienti, &rec_tot::quanti, std::int16_t{4})(c);
         wrong("tot", contatori::ordini, &rec_tot::quanti, std::int16_t{4})(c);
     }},
};

int lines_of_book = 0;

int run(const repair_case& one, file_port& files, bool yes, std::string* said = nullptr) {
    std::ostringstream out;
    const auto book = [](archivi& changed) { changed.book = [](auto&&...) { ++lines_of_book; }; };
    const int result =
        carry_out(repairs[&one - cases], {files, 7, [yes](bool) { return yes; }, out, book});
    if (said) *said = out.str();
    return result;
}

std::string copy_of(const demo_folder& company, const repair_case& one, int number = 1) {
    return test::bytes_of(company.file(one.extension).string() + ".copia" + std::to_string(number));
}

TEST(archive_repair, SetsRightWhatIsWrongAfterAYesAndLeavesACopyOfTheFile) {
    for (const repair_case& one : cases) {
        SCOPED_TRACE(one.name);
        const demo_folder company(test::tiny_company);
        const auto sound = test::files_under(company.drive());
        one.damage(company);
        const auto damaged = test::files_under(company.drive());
        const std::string file = test::bytes_of(company.file(one.extension));
        drive files(company.drive());
        EXPECT_EQ(run(one, files, false), 1);
        EXPECT_EQ(test::files_under(company.drive()), damaged);
        lines_of_book = 0;
        EXPECT_EQ(run(one, files, true), 0);
        EXPECT_EQ(lines_of_book, 1);
        EXPECT_EQ(copy_of(company, one), file);
        EXPECT_EQ(test::kinds_of(company), "");
        if (one.extension != std::string_view("tot") && one.extension != std::string_view("src")) {
            continue;
        }
        EXPECT_EQ(test::bytes_of(company.file(one.extension)),
                  sound.at(std::string("mirwin/mirwin/miraz0.007/vantora.") + one.extension));
    }
}

TEST(archive_repair, RefusesWhatItCannotBeSureOf) {
    const demo_folder company(test::tiny_company);
    wrong("art", 3, &rec_art::ordinato_clienti, 77.0)(company);
    std::string bytes = test::bytes_of(company.file("orc"));
    bytes.replace(5 * test::block_bytes, test::block_bytes, test::block_bytes, '\0');
    test::put(company.file("orc"), bytes);
    test::copy_block(company, static_cast<std::size_t>(blocks_that_are(company, true)[0]), 21);
    wrong("tot", contatori::ordini, &rec_tot::quanti, std::int16_t{21})(company);
    wrong("cli", 5, &rec_cli::intestazione1, "")(company);
    wrong("src", 5, &rec_src::numero, std::int16_t{4000})(company);
    const auto before = test::files_under(company.drive());
    drive files(company.drive());
    for (const repair_case& one : cases) {
        std::string said;
        EXPECT_EQ(run(one, files, true, &said), 1) << one.name;
        EXPECT_NE(said.find("Non si può riparare: "), std::string::npos) << said;
    }
    EXPECT_EQ(test::files_under(company.drive()), before);
}

/// Each record of the repaired file is the old or the new one, and its copy is whole or not there.
void expect_old_or_new(const demo_folder& company, const repair_case& one, const std::string& was,
                       const std::string& right, std::size_t record) {
    const std::string is = test::bytes_of(company.file(one.extension));
    const bool index = one.extension == std::string_view("src");
    for (std::size_t at = 0; at < is.size() && !index; at += record) {
        const std::string now = is.substr(at, record);
        EXPECT_TRUE(now == was.substr(at, record) || now == right.substr(at, record)) << at;
    }
    EXPECT_TRUE(!index || is == was || is == right);
    const std::string copy = copy_of(company, one);
    EXPECT_TRUE(copy.empty() || copy == was);
}

TEST(archive_repair, EndedOrRefusedAnywhereLeavesTheOldOrTheNewAndGoesOnNextTime) {
    for (const repair_case& one : cases) {
        SCOPED_TRACE(one.name);
        const std::size_t record = one.extension == std::string_view("orc")   ? test::block_bytes
                                   : one.extension == std::string_view("art") ? sizeof(rec_art)
                                                                              : sizeof(rec_tot);
        const demo_folder damaged(test::tiny_company);
        one.damage(damaged);
        const demo_folder whole(damaged);
        const std::string was = test::bytes_of(whole.file(one.extension));
        {
            drive files(whole.drive());
            ASSERT_EQ(run(one, files, true), 0);
        }
        const std::string right = test::bytes_of(whole.file(one.extension));
        // At some of the writes, and at fewer of the very many reads.
        enum { ended, refused, unread };
        const test::sampled for_good(2);
        for (const int how : {ended, refused, unread}) {
            bool failed = true;
            const test::sampled faults_tried(how == unread ? 291 : 3);
            for (std::size_t n = faults_tried.first; failed; n += faults_tried.step) {
                SCOPED_TRACE(n);
                const demo_folder company(damaged);
                drive real(company.drive());
                test::faulty_files faults(real);
                failed = false;
                int result = 3;
                if (how == ended) {
                    faults.writes_before_crash = n;
                } else {
                    faults.fail_at(n, (n + for_good.first) % 2 == 0, failed);
                }
                if (how == refused) {
                    faults.read_fails = nullptr;
                    faults.open_fails = [any = faults.open_fails](const std::string& path) {
                        const bool written = path.find("copia") != std::string::npos ||
                                             path.find("riparazione") != std::string::npos ||
                                             path.find(".sr") != std::string::npos;
                        return written && any(path);
                    };
                }
                try {
                    result = run(one, faults, true);
                    EXPECT_TRUE(result == 0 || result == 1 || result == 3);
                } catch (const test::crash&) {
                    failed = true;
                }
                expect_old_or_new(company, one, was, right, record);
                const std::string left = test::bytes_of(company.file(one.extension));
                std::string said;
                EXPECT_EQ(run(one, real, true, &said), 0);
                EXPECT_TRUE(result != 3 || left == was || left == right ||
                            said.find("Mancano ancora:") != std::string::npos);
                EXPECT_EQ(test::bytes_of(company.file(one.extension)), right);
            }
        }
    }
}

}  // namespace
}  // namespace vantora::archive
