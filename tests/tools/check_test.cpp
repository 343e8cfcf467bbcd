#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "archive/check_report.h"
#include "archive/repair.h"
#include "damaged.h"
#include "support/sampled.h"

namespace vantora::archive {
namespace {

using test::blocks_that_are;
using test::demo_folder;
using test::wrong;

using kinds = std::vector<std::string>;
using file_bytes = std::map<std::string, std::string>;

struct damage {
    const char* name;
    kinds found;
    std::function<void(const demo_folder&)> make;
};

std::int64_t open_row(const demo_folder& c) {
    return block_record(blocks_that_are(c, true).front(), 1);
}

template <class Field, class Value>
auto wrong_line(Field rec_orc::*field, Value value) {
    return [=](const demo_folder& c) { wrong("orc", open_row(c), field, value)(c); };
}

template <class Field, class Value>
auto wrong_order(Field rec_orc::*field, Value value) {
    return [=](const demo_folder& c) {
        const std::int64_t first = open_row(c);
        for (int row = 0; row < 200; ++row) wrong("orc", first + row, field, value)(c);
    };
}

auto cut(const char* extension, int bytes) {
    return [=](const demo_folder& c) {
        std::filesystem::resize_file(
            c.file(extension),
            std::filesystem::file_size(c.file(extension)) - static_cast<std::uintmax_t>(bytes));
    };
}

auto count(int record, int says) {
    return wrong("tot", record, &rec_tot::quanti, static_cast<std::int16_t>(says));
}

void zero_block(const demo_folder& c, std::int64_t block) {
    std::string bytes = test::bytes_of(c.file("orc"));
    const auto at = static_cast<std::size_t>(block - 1) * test::block_bytes;
    bytes.replace(at, test::block_bytes, test::block_bytes, '\0');
    test::put(c.file("orc"), bytes);
}

const damage damages[] = {
    {"whole and part of an order missing", {"file-short"}, cut("orc", 57000)},
    {"counter of orders too low", {"counter-low"}, count(contatori::ordini, 8)},
    {"counter of orders too high", {"counter-high"}, count(contatori::ordini, 30)},
    {"an unfinished save is a note",
     {},
     [](auto& c) {
         const auto last = blocks_that_are(c, true).back();
         std::filesystem::resize_file(c.file("orc"),
                                      static_cast<std::size_t>(last) * test::block_bytes);
         count(contatori::ordini, static_cast<int>(last) - 1)(c);
     }},
    {"copies behind the counter are nothing", {}, [](auto& c) { test::copy_block(c, 5, 21); }},
    {"counter of customers", {"counter-wrong"}, count(contatori::clienti, 9)},
    {"counter of articles", {"counter-wrong"}, count(contatori::articoli, 3000)},
    {"negative counter", {"counter-negative"}, count(contatori::preventivi, -5)},
    {"quotes behind", {"quotes-behind"}, count(contatori::preventivi, 0)},
    {"no counters", {"counters-empty"}, [](auto& c) { test::put(c.file("tot"), ""); }},
    {"no customers", {"file-missing"}, [](auto& c) { std::filesystem::remove(c.file("cli")); }},
    {"a folder for a file",
     {"file-missing"},
     [](auto& c) {
         std::filesystem::remove(c.file("art"));
         std::filesystem::create_directory(c.file("art"));
     }},
    {"two spellings",
     {"two-spellings"},
     [](auto& c) { test::put(c.file("orc").parent_path() / "VANTORA.Orc", ""); }},
    {"an order doubled",
     {"order-doubled"},
     [](auto& c) {
         test::copy_block(c, static_cast<std::size_t>(blocks_that_are(c, true).back()), 21);
         count(contatori::ordini, 21)(c);
     }},
    {"an order lost", {"order-lost"}, [](auto& c) { zero_block(c, blocks_that_are(c, true)[2]); }},
    {"an order mixed",
     {"order-mixed"},
     [](auto& c) { wrong("orc", open_row(c) + 150, &rec_orc::numero, "altro")(c); }},
    {"bytes lost in the middle",
     {"file-short", "orders-shifted"},
     [](auto& c) {
         const std::string bytes = test::bytes_of(c.file("orc"));
         const auto at = 3 * test::block_bytes + 150;
         test::put(c.file("orc"), bytes.substr(0, at) + bytes.substr(at + 7));
     }},
    {"a quote doubled",
     {"quote-doubled"},
     [](auto& c) {
         std::string bytes = test::bytes_of(c.file("prv"));
         bytes.replace(test::block_bytes, test::block_bytes, bytes, 0, test::block_bytes);
         test::put(c.file("prv"), bytes);
     }},
    {"a repair interrupted",
     {"repair-unfinished"},
     [](auto& c) { test::put(c.file("riparazione-counters"), ""); }},
    {"no such customer", {"order-no-customer"}, wrong_order(&rec_orc::cliente, std::int16_t{999})},
    {"no such article", {"line-no-article"}, wrong_line(&rec_orc::articolo, std::int16_t{999})},
    {"no quantity", {"line-no-number"}, wrong_line(&rec_orc::quantita, std::nan(""))},
    {"no VAT code", {"line-vat-code"}, wrong_line(&rec_orc::iva, std::int16_t{25})},
    {"discount", {"line-discount"}, wrong_line(&rec_orc::sc2, std::int16_t{101})},
    {"a terminal's command", {"line-text"}, wrong_line(&rec_orc::descrizione, "\x1B[2J")},
    {"mark of commitment", {"order-mark"}, wrong_order(&rec_orc::impegno, "x")},
    {"mark of deletion", {"order-mark"}, wrong_order(&rec_orc::annullato, std::int16_t{2})},
    {"more fulfilled than its article says",
     {"committed-too-high", "ordered-quantity"},
     wrong_line(&rec_orc::evaso, 5000.0)},
    {"ordered", {"ordered-quantity"}, wrong("art", 9, &rec_art::ordinato_clienti, 1e6)},
    {"committed too much", {"committed-too-high"}, wrong("art", 9, &rec_art::impegnato, 1e6)},
    {"committed below 0", {"committed-negative"}, wrong("art", 9, &rec_art::impegnato, -1.0)},
    {"stock is no number", {"figure-no-number"}, wrong("art", 2, &rec_art::giacenza, std::nan(""))},
    {"stock beyond reason", {"figure-absurd"}, wrong("art", 2, &rec_art::giacenza, 1e13)},
    {"unloaded without a movement",
     {"movement-missing"},
     [](auto& c) {
         test::change<rec_art>(c, "art", 5, [](rec_art& a) { a.scaricato = a.scaricato + 1; });
     }},
    {"movement of no article",
     {"movement-no-article"},
     wrong("mag", 7, &rec_mag::articolo, std::int16_t{0})},
    {"movements behind",
     {"records-behind"},
     [](auto& c) {
         std::ofstream(c.file("mag"), std::ios::app) << std::string(2 * sizeof(rec_mag), ' ');
     }},
    {"document of no date", {"document-date"}, wrong("bol", 3, &rec_bol::data, "20240230")},
    {"document number twice",
     {"document-number-twice"},
     wrong("bol", 4, &rec_bol::numero, std::int16_t{3})},
    {"last document",
     {"last-document-low"},
     wrong("tot", contatori::documenti_trasporto, &rec_tot::ultimo_numero, std::int16_t{4})},
    {"last order",
     {"last-number-low"},
     wrong("tot", contatori::ordini, &rec_tot::ultimo_numero, std::int16_t{4})},
    {"a b file beyond",
     {"text-files-beyond"},
     [](auto& c) { test::put(c.file("orc").parent_path() / "b30000", ""); }},
    {"quote of no customer", {"quote-mixed"}, wrong("prv", 1, &rec_prv::cliente, std::int16_t{9})},
    {"index out of order",
     {"index-order", "index-other-key"},
     wrong("sra", 5, &rec_sra::chiave, "!")},
    {"a name lost, which the index has",
     {"customer-nameless"},
     wrong("cli", 5, &rec_cli::intestazione1, "")},
    {"layout too short",
     {"table-short"},
     [](auto& c) { std::filesystem::resize_file(c.file("lyo"), 100); }},
    {"no parameters", {"table-missing"}, [](auto& c) { std::filesystem::remove(c.file("gnr")); }},
};

TEST(archive_check, FindsEachDamageOnceAndNothingThatFollowsFromItAndWritesNothing) {
    constexpr int sizes[][3] = {{120, 150, 90}, {0, 10, 0}, {0, 0, 10}, {1, 1, 1}, {20, 0, 3}};
    for (const auto& [orders, articles, customers] : sizes) {
        const demo_folder sound(
            {.numero_azienda = 7, .orders = orders, .articles = articles, .customers = customers});
        EXPECT_EQ(test::kinds_of(sound, true), kinds{}) << orders;
    }
    const demo_folder tiny(test::tiny_company);
    for (const damage& one : damages) {
        const demo_folder company(tiny);
        one.make(company);
        const auto before = test::files_under(company.drive());
        EXPECT_EQ(test::kinds_of(company), one.found) << one.name;
        EXPECT_EQ(test::files_under(company.drive()), before) << one.name;
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
    EXPECT_EQ(report({.all = true}).second, "Ditta 7\nL'archivio è in ordine.\n");
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

// Random damage: what was right before stays right, whatever is found and repaired ----------------

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
        switch (below(6)) {
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
            case 3: {
                const auto from = static_cast<std::size_t>(below(20)) + 1;
                test::copy_block(company, from, 21 + below(3));
                count(contatori::ordini, 21)(company);
                return;
            }
            case 4:
                count(static_cast<int>(below(20)) + 1,
                      static_cast<int>(below(40000)) - 5000)(company);
                return;
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
        if (was == damaged.end() || is == after.end()) return name + " is gone";
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

TEST(archive_check, NoRepairOfARandomDamageSpoilsWhatWasRight) {
    const demo_folder sound(test::tiny_company);
    const auto original = test::files_under(sound.drive());
    const test::sampled seeds(15);
    for (std::size_t seed = seeds.first; seed < 100; seed += seeds.step) {
        const demo_folder company(sound);
        random_damage(static_cast<unsigned>(seed)).make(company);
        const auto damaged = test::files_under(company.drive());
        const auto found = test::kinds_of(company, true);
        const auto has = [&found](const char* kind) { return std::ranges::count(found, kind) > 0; };
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
        drive files(company.drive());
        std::ostringstream said;
        const repair_request request{files, 7, [](bool certain) { return certain; }, said};
        repair_counters(request);
        repair_doubled_orders(request);
        repair_indexes(request);
        if (!other_rows) repair_ordered_quantities(request);
        EXPECT_EQ(spoilt(original, damaged, test::files_under(company.drive())), "") << seed << '\n'
                                                                                     << said.str();
    }
}

}  // namespace
}  // namespace vantora::archive
