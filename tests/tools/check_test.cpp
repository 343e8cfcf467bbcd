#include <gtest/gtest.h>

#include <cmath>
#include <nlohmann/json.hpp>
#include <random>

#include "archive/check.h"
#include "archive/lock_trial.h"
#include "archive/repair.h"
#include "archive/words.h"
#include "named_damages.h"
#include "store/station.h"
#include "support/faulty_files.h"
#include "support/long_sessions.h"

namespace vantora::archive {
namespace {

using test::damages;
using test::demo_folder;
using test::wrong;

using file_bytes = std::map<std::string, std::string>;

/// Makes one damage.
class random_damage {
 public:
    explicit random_damage(unsigned seed) : chance_(seed) {}

    void make(const demo_folder& company) {
        static constexpr const char* files[] = {"orc", "art", "cli", "tot", "mag",
                                                "bol", "prv", "src", "sra", "srb"};
        const auto file = company.file(files[below(10)]);
        std::string bytes = test::bytes_of(file);
        const std::size_t at = below(bytes.size());
        switch (below(4)) {
            case 0:
                bytes.resize(at);
                break;
            case 1:
                bytes.replace(at, std::min<std::size_t>(below(5000), bytes.size() - at), "");
                break;
            case 2:
                for (std::size_t i = at; i < std::min(at + below(3000), bytes.size()); ++i)
                    bytes[i] = 0;
                break;
            default:
                bytes[at] = static_cast<char>(bytes[at] ^ static_cast<char>(1U << below(8)));
        }
        test::put(file, bytes);
    }

 private:
    std::size_t below(std::size_t bound) { return bound == 0 ? 0 : chance_() % bound; }
    std::mt19937 chance_;
};

/// Whether any counted row says something else of the articles than it did.
bool rows_say_otherwise(const std::string& now, const std::string& before) {
    for (std::size_t at = 0; at + sizeof(rec_orc) <= std::min(now.size(), before.size());
         at += sizeof(rec_orc)) {
        for (const auto& [from, size] :
             {std::pair<std::size_t, std::size_t>{140, 2}, {184, 8}, {200, 8}, {282, 2}}) {
            if (now.compare(at + from, size, before, at + from, size) != 0) return true;
        }
    }
    return false;
}

/// Right figures that aren't any longer: "vantora.art at 139".
std::string spoilt(const file_bytes& original, const file_bytes& damaged, const file_bytes& after) {
    for (const auto& [name, bytes] : original) {
        const auto was = damaged.find(name);
        const auto is = after.find(name);
        if (was == damaged.end()) continue;
        if (is == after.end()) return name + " is gone";
        if (is->second == was->second || is->second == bytes) continue;
        for (std::size_t i = 0; i < std::min({bytes.size(), was->second.size(), is->second.size()});
             ++i) {
            if (was->second[i] != bytes[i] || is->second[i] == bytes[i]) continue;
            if (name.ends_with(".art") && i % sizeof(rec_art) >= 147 && i % sizeof(rec_art) < 155) {
                double right = 0;
                double now = 0;
                const std::size_t at = i / sizeof(rec_art) * sizeof(rec_art) + 147;
                std::memcpy(&right, &bytes[at], sizeof right);
                std::memcpy(&now, &is->second[at], sizeof now);
                if (std::abs(right - now) < 1e-6) continue;
            }
            return name + " at " + std::to_string(i);
        }
    }
    return {};
}

file_bytes files_of(const demo_folder& company) {
    return test::files_under(company.drive());
}

/// With `--yes`; what they say.
std::string repair_all(const demo_folder& company, bool quantities_too = true) {
    drive files(company.drive());
    std::ostringstream said;
    const repair_request request{files, 7, [](bool certain) { return certain; }, said};
    // The ordered quantities, first of the table, last.
    for (const std::size_t which : {3, 1, 2, 0}) {
        if (which > 0 || quantities_too) carry_out(repairs[which], request);
    }
    return said.str();
}

TEST(archive_check, FindsEachDamageOnceAndNothingThatFollowsFromItAndWritesNothing) {
    constexpr int sizes[][3] = {{120, 150, 90}, {0, 10, 0}, {0, 0, 10}, {1, 1, 1}, {20, 0, 3}};
    for (const auto& [orders, articles, customers] : sizes) {
        const demo_folder sound(
            {.numero_azienda = 7, .orders = orders, .articles = articles, .customers = customers});
        EXPECT_EQ(test::kinds_of(sound), "") << orders;
    }
    const auto seed = std::random_device()();
    test::dice.seed(seed);
    SCOPED_TRACE(seed);
    const demo_folder tiny(test::tiny_company);
    const auto original = files_of(tiny);
    const test::sampled repaired(3);
    std::size_t tried = 0;
    for (const test::damage& one : damages) {
        SCOPED_TRACE(one.name);
        const demo_folder company(tiny);
        one.make(company);
        const bool repairs = ++tried % repaired.step == repaired.first;
        const auto before = repairs ? files_of(company) : file_bytes();
        EXPECT_EQ(test::kinds_of(company), one.found);
        if (!repairs) continue;
        EXPECT_EQ(files_of(company), before);
        repair_all(company);
        EXPECT_EQ(spoilt(original, before, files_of(company)), "");
    }
}

TEST(archive_check, TellsTenOfAHundredAlikeAndNoControlByteAndKeepsQuietIfAsked) {
    const demo_folder company(test::tiny_company);
    const auto report = [&company](check_request request) {
        std::ostringstream said;
        const int result = report_check(company.drive(), 7, request, said, nullptr);
        return std::pair(result, said.str());
    };
    EXPECT_EQ(report({.quiet = true}), std::pair(0, std::string()));
    EXPECT_TRUE(
        report({.all = true}).second.starts_with("Ditta 7\nL'archivio è in ordine.\nI blocchi "));
    {
        drive other(company.drive());
        const auto tot = other.open_records(company_path(7, "tot"));
        ASSERT_EQ(tot->try_lock(), lock_answer::held);
        const std::string said = report({}).second;
        EXPECT_NE(said.find(without_controls(this_station())), std::string::npos) << said;
        EXPECT_NE(said.find("sta scrivendo"), std::string::npos);
    }
    for (int number = 1; number <= 30; ++number) {
        wrong("art", number, &rec_art::codice, "\x1B\x9D\x7F\x81")(company);
    }
    const auto [result, said] = report({.quiet = true});
    EXPECT_EQ(result, 1);
    EXPECT_NE(said.find("... e altri 19 casi come questi"), std::string::npos);
    EXPECT_EQ(said.find_first_of("\x1B\x7F"), std::string::npos);
    EXPECT_EQ(said.find("\xC2\x81"), std::string::npos) << "a control byte in UTF-8";
    const auto json = nlohmann::json::parse(report({.json = true}).second);
    EXPECT_EQ(json[10]["more"], 19);
    EXPECT_EQ(json[0]["gravity"], "warning");
}

TEST(archive_check, LocksAreTriedOnAFileOfTheirOwnAndWhatIsNotKnownIsSaid) {
    const demo_folder company(test::tiny_company);
    const auto before = files_of(company);
    drive real(company.drive());
    test::faulty_files files(real);
    EXPECT_EQ(try_locks(files, 7).kind, locks_work);
    for (const auto& [answer, kind] : {std::pair(lock_answer::unknown, "locks-missing"),
                                       {lock_answer::held, "locks-useless"},
                                       {lock_answer::refused, "locks-not-tried"}}) {
        files.lock_answers = answer;
        EXPECT_EQ(try_locks(files, 7).kind, kind);
    }
    files.open_fails = [](const std::string&) { return true; };
    EXPECT_EQ(try_locks(files, 7).kind, "locks-not-tried");
    EXPECT_EQ(files_of(company), before);
    const auto on = [](const char* type, const char* options) {
        return judge_locks(lock_answer::held, lock_answer::busy, type, options);
    };
    EXPECT_EQ(on("cifs", "rw,vers=3.1.1,nobrl").kind, "locks-local");
    EXPECT_EQ(on("nfs", "rw,local_lock=all").kind, "locks-local");
    EXPECT_NE(on("nfs4", "rw,local_lock=none").what.find("da una sola"), std::string::npos);
}

TEST(archive_check, NoRepairOfARandomDamageSpoilsWhatWasRight) {
    const demo_folder sound(test::tiny_company);
    const auto original = files_of(sound);
    const test::sampled seeds(15);
    for (std::size_t seed = seeds.first; seed < 100; seed += seeds.step) {
        const demo_folder company(sound);
        random_damage(static_cast<unsigned>(seed)).make(company);
        const auto damaged = files_of(company);
        const auto found = test::kinds_of(company);
        const auto has = [&found](const char* kind) {
            return (found + " ").find(std::string(kind) + " ") != std::string::npos;
        };
        const auto touched = [&](const std::string& extension) {
            const std::string name = "mirwin/mirwin/miraz0.007/vantora." + extension;
            return damaged.at(name) != original.at(name);
        };
        const std::string orders = "mirwin/mirwin/miraz0.007/vantora.orc";
        // A plausible quantity that came out of a damage is a quantity.
        const bool other_rows = rows_say_otherwise(damaged.at(orders), original.at(orders));
        EXPECT_TRUE(!has("ordered-quantity") || touched("art") || other_rows) << seed;
        EXPECT_TRUE(touched("tot") ||
                    (!has("counter-low") && !has("counter-high") && !has("counter-wrong")))
            << seed;
        const std::string said = repair_all(company, !other_rows);
        EXPECT_EQ(spoilt(original, damaged, files_of(company)), "") << seed << '\n' << said;
    }
}

}  // namespace
}  // namespace vantora::archive
