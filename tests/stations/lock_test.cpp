#include <gtest/gtest.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <set>
#include <sstream>

#include "archive/repair.h"
#include "entry/import_picker.h"
#include "entry/order_station.h"
#include "fulfil/mirorca.h"
#include "fulfil/mirorcc.h"
#include "fulfil/mirorcr.h"
#include "store/suite_paths.h"

namespace vantora::test {
namespace {

/// Looks at the lock of company 1, and of the file, as another program would, whenever one of its
/// files is written.
class lookout {
 public:
    explicit lookout(const std::filesystem::path& root)
        : other_(root), counters_(other_.open_records(company_path(1, "tot"))) {
        watching = this;
    }
    lookout(const lookout&) = delete;
    lookout& operator=(const lookout&) = delete;
    ~lookout() { watching = nullptr; }

    [[nodiscard]] bool locked() const { return counters_->locked_by().has_value(); }
    void see_write(int descriptor) {
        std::error_code failed;
        const std::string path =
            std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), failed);
        const auto name = path.rfind("/vantora.");
        if (name == std::string::npos) return;
        const std::string extension = path.substr(name + 9);
        written.insert(extension);
        const auto own = other_.open_records(company_path(1, extension));
        if (!locked() || !own->locked_by()) unlocked.insert(extension);
    }

    static inline lookout* watching = nullptr;
    std::set<std::string> written;
    std::set<std::string> unlocked;

 private:
    drive other_;
    std::unique_ptr<file> counters_;
};

}  // namespace
}  // namespace vantora::test

/// Takes the place of the system's own in this program.
extern "C" ssize_t pwrite(int descriptor, const void* bytes, size_t size, off_t offset) {
    using vantora::test::lookout;
    if (lookout::watching) lookout::watching->see_write(descriptor);
    return ::syscall(SYS_pwrite64, descriptor, bytes, size, offset);
}

namespace vantora::test {
namespace {

struct command {
    const char* name;
    std::set<std::string> writes;
    int boxes;  ///< that it opens at least
    std::function<void(order_station&)> prepare;
    std::function<void(order_station&)> work;
};

void open_worklist(order_station& at) {
    at.app.mirorc->bottone[mirorc::fulfilment].click();
    at.app.mirorcc->bottone.click();
    at.app.mirorcr->elenco.click_cell(1, mirorcr::ordine);
}

const command commands[] = {
    {"a new order", {"art", "orc", "tot"}, 1, [](auto&) {}, [](auto& at) { at.take_order(); }},
    {"a new order with imported lines",
     {"art", "orc", "tot"},
     1,
     [](auto& at) {
         at.desk.dispatch([&] {
             at.app.mirorc->bottone[mirorc::nuovo_ordine].click();
             at.app.mirorcx->bottone.click();
         });
         at.front.meanwhile = [&] { at.app.mirpref->elenco.click_cell(1, 0); };
         at.desk.dispatch([&] { at.app.mirorcs->comando[mirorcs::importa_ordine].click(); });
     },
     [](auto& at) { at.desk.dispatch([&] { at.app.mirorcs->comando[conferma].click(); }); }},
    {"an edit",
     {"art", "orc"},
     1,
     [](auto& at) { at.open(1); },
     [](auto& at) { at.save_opened(); }},
    {"a deletion",
     {"art", "orc"},
     1,
     [](auto& at) { at.open(1); },
     [](auto& at) { at.delete_opened(); }},
    {"a booking",
     {"art", "orc"},
     0,
     [](auto& at) { at.desk.dispatch([&] { open_worklist(at); }); },
     [](auto& at) {
         at.desk.dispatch([&] { at.app.mirorcr->bottone[mirorcr::conferma].click(); });
     }},
    {"an unloading that asks, and its transport document",
     {"art", "bol", "mag", "tot"},
     5,
     [](auto& at) {
         at.desk.dispatch([&] {
             open_worklist(at);
             at.app.mirorcr->bottone[mirorcr::conferma].click();
             at.app.mirorca->quantita[0].set_text("1000");
             at.app.mirorca->quantita[1].set_text("1000");
         });
     },
     [](auto& at) { at.desk.dispatch([&] { at.app.mirorca->comando[conferma].click(); }); }},
    {"a compaction", {"orc", "tot"}, 2, [](auto&) {}, [](auto& at) { at.compact(); }},
    {"a repair",
     {"art"},
     1,
     [](auto&) {},
     [](auto& at) {
         std::ostringstream said;
         const auto confirmed = [&](bool) {
             at.front.at_box();
             return true;
         };
         archive::carry_out(archive::repairs[0], {at.real, 1, confirmed, said});
     }},
};

TEST(lock, IsHeldAtEveryWriteOfEveryCommandAndAtNoBox) {
    for (const command& one : commands) {
        SCOPED_TRACE(one.name);
        order_company company;
        for (const int block : {1, 2, 3}) company.order(block, 1, {{1, 5}, {2, 3}});
        delete_order(company, 3);
        company.order(4, 1, {{1, 5}});
        change_stored(company.files.art, 3, [](rec_art& a) { a.ordinato_clienti = 77; });
        order_station at(company);
        one.prepare(at);

        lookout seen(company.drive());
        int boxes = 0;
        at.front.at_box = [&] {
            ++boxes;
            EXPECT_FALSE(seen.locked()) << "while something is asked";
        };
        at.front.decide = [&] {
            const std::string& asked = at.front.told.back();
            return asked.starts_with("Stampare il documento") || !asked.starts_with("Stampa");
        };
        one.work(at);
        // A repair's copies and its mark are files of its own.
        for (auto* names : {&seen.written, &seen.unlocked}) {
            std::erase_if(*names, [](const std::string& name) {
                return name.find(".copia") != name.npos || name.starts_with("riparazione-");
            });
        }
        EXPECT_EQ(seen.written, one.writes);
        EXPECT_EQ(seen.unlocked, std::set<std::string>());
        EXPECT_GE(boxes, one.boxes);
        EXPECT_FALSE(seen.locked());
    }
}

}  // namespace
}  // namespace vantora::test
