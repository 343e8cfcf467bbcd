#include <gtest/gtest.h>

#include <map>

#include "fulfil/fulfil_stage.h"
#include "scripted/problems.h"

namespace vantora::test {
namespace {

// What a fulfilment leaves behind that ends in its midst. The order has three rows: five pieces of
// A1, which were committed, two of no article, three of A2.

enum class road { booking, unloading, document };

struct fault_stage : fulfil_stage {
    explicit fault_stage(road which) : taken(which) {
        order(1, 1, {{1, 5}, {0, 2, 0, "sfuso"}, {2, 3}}, true);
        for (const auto& [number, ordered] : {std::pair{1, 5}, {2, 3}, {3, 0}}) {
            rec_art one = article_now(number);
            one.ordinato_clienti = ordered;
            files.art.write(number, one);
        }
        company.counter(contatori::magazzino, 9);
        company.counter(contatori::documenti_trasporto, 7, 41);
        run();
        open_worklist(1);
        click(1, mirorcr::ordine);
        if (taken == road::booking) return;
        book();
        if (taken == road::document) desk.dispatch([&] { app.mirorca->scarica.toggle(); });
    }
    /// Takes the road; true if the process ended in its midst.
    bool go() {
        first_write = faults.writes;
        first_read = faults.reads;
        if (taken == road::booking) book();
        if (taken == road::unloading) confirm({false});
        if (taken == road::document) confirm({true, false, false});
        return desk.ended() && desk.ended()->message == "Errore imprevisto";
    }
    /// What the files say, in the words of those who look into them.
    std::string left() {
        const auto article = [&](int number) {
            const rec_art one = article_now(number);
            return std::to_string(static_cast<int>(one.ordinato_clienti)) + "/" +
                   std::to_string(static_cast<int>(one.giacenza)) + "/" +
                   std::to_string(static_cast<int>(one.impegnato)) + " ";
        };
        std::string text = "A1 " + article(1) + "A2 " + article(2) + "evaso ";
        for (int row = 1; row <= 3; ++row) {
            text += std::to_string(static_cast<int>(row_now(1, row).evaso)) + " ";
        }
        if (row_now(1, 1).evaso_flag == 1) text += "EVASO ";
        const auto size = [&](const char* file) {
            return static_cast<int>(std::filesystem::file_size(company.file(file)));
        };
        text += "movimenti " + std::to_string(std::max(size("mag") / 94 - 9, 0)) + " contati " +
                std::to_string(counter_now(contatori::magazzino).quanti - 9);
        text += " DDT " + std::to_string(counter_now(contatori::documenti_trasporto).ultimo_numero);
        if (size("bol") > 0) text += " registrato";
        const auto b = company.file("x").parent_path() / "b1";
        if (std::filesystem::exists(b) && std::filesystem::file_size(b) > 0) text += " copia";
        // The archive's own check sees what is out of step.
        const std::string found = problems(*this);
        if (!found.empty()) text += " guasti " + std::to_string(std::ranges::count(found, '\n'));
        return text;
    }
    [[nodiscard]] std::size_t writes() const { return faults.writes - first_write; }
    [[nodiscard]] std::size_t reads() const { return faults.reads - first_read; }

    road taken;
    std::size_t first_write = 0;
    std::size_t first_read = 0;
};

/// What is left after the first writes of a road, in order; the last entry is the whole road.
const std::map<road, std::vector<std::string>>& promised() {
    static const std::string quiet = "movimenti 0 contati 0 DDT 41";
    static const std::string booked = "A1 0/104/0 A2 0/103/1 evaso 5 2 3 EVASO ";
    static const std::map<road, std::vector<std::string>> all = {
        {road::booking,
         {"A1 5/100/4 A2 3/100/4 evaso 0 0 0 " + quiet,
          // out of the articles' orders, the row still open: to be seen, and put right by hand
          "A1 0/104/0 A2 3/100/4 evaso 0 0 0 " + quiet + " guasti 1",
          "A1 0/104/0 A2 3/100/4 evaso 5 0 0 " + quiet,
          "A1 0/104/0 A2 3/100/4 evaso 5 2 0 " + quiet,
          "A1 0/104/0 A2 0/103/1 evaso 5 2 0 " + quiet + " guasti 1",
          // fulfilled in full, not yet marked so
          "A1 0/104/0 A2 0/103/1 evaso 5 2 3 " + quiet,
          // booked, not unloaded
          booked + quiet}},
        {road::unloading,
         {booked + quiet,
          // out of stock without a movement
          "A1 0/99/0 A2 0/103/1 evaso 5 2 3 EVASO " + quiet,
          // moved, not counted: the next movement takes its place
          "A1 0/99/0 A2 0/103/1 evaso 5 2 3 EVASO movimenti 1 contati 0 DDT 41",
          "A1 0/99/0 A2 0/100/1 evaso 5 2 3 EVASO movimenti 1 contati 0 DDT 41",
          "A1 0/99/0 A2 0/100/1 evaso 5 2 3 EVASO movimenti 2 contati 0 DDT 41",
          "A1 0/99/0 A2 0/100/1 evaso 5 2 3 EVASO movimenti 2 contati 2 DDT 41"}},
        {road::document,
         {booked + quiet,
          // the number is drawn, its document isn't there
          booked + "movimenti 0 contati 0 DDT 42",
          // the document is there, without its copy for other programs
          booked + "movimenti 0 contati 0 DDT 42 registrato",
          booked + "movimenti 0 contati 0 DDT 42 registrato copia"}}};
    return all;
}

TEST(fulfil_faults, AProcessThatEndsLeavesWhatWasWrittenInTheToldOrder) {
    for (const auto& [which, states] : promised()) {
        for (std::size_t writes = 0; writes < states.size(); ++writes) {
            fault_stage stage(which);
            stage.faults.writes_before_crash = stage.faults.writes + writes;
            EXPECT_EQ(stage.go(), writes + 1 < states.size());
            EXPECT_EQ(stage.left(), states[writes]) << "after " << writes << " writes";
        }
    }
}

TEST(fulfil_faults, BookingAndUnloadingEndTheProgramAtTheFirstFault) {
    for (const road which : {road::booking, road::unloading}) {
        fault_stage whole(which);
        whole.go();
        const auto& states = promised().at(which);
        const std::size_t reads = whole.reads();
        const std::size_t writes = whole.writes();
        for (std::size_t n = 0; n < reads + writes; ++n) {
            for (const bool once : {true, false}) {
                if (!once && n % 4 != 0) continue;  // a fault for good hardly differs
                fault_stage stage(which);
                std::size_t seen = 0;
                const auto hit = [&](std::size_t at) {
                    const std::size_t now = seen++;
                    return once ? now == at : now >= at;
                };
                if (n < reads) {
                    stage.faults.read_fails = [&](const std::string&, auto, auto) {
                        return hit(n);
                    };
                } else {
                    stage.faults.write_fails = [&](const std::string&, auto) {
                        return hit(n - reads);
                    };
                }
                stage.go();
                SCOPED_TRACE(std::to_string(n) + (once ? " once" : " for good"));
                // Without its counter an unloading doesn't begin. Only the list of the register
                // reads behind the last write, and passes faults over.
                if (!stage.desk.ended()) {
                    const bool begun = which == road::booking || n > 0;
                    EXPECT_EQ(stage.writes(), begun ? writes : 0);
                    EXPECT_EQ(stage.left(), begun ? states.back() : states.front());
                    continue;
                }
                EXPECT_EQ(stage.desk.ended()->message,
                          "Errore di run-time: un archivio non si lascia leggere o scrivere");
                EXPECT_FALSE(stage.app.archives.orc.is_open());
                EXPECT_EQ(stage.left(), states[stage.writes()]);
            }
        }
    }
}

TEST(fulfil_faults, ADocumentPassesOverWhatFails) {
    const std::string booked = "A1 0/104/0 A2 0/103/1 evaso 5 2 3 EVASO movimenti 0 contati 0 ";
    const struct {
        const char* file;
        bool reads;
        const char* left;
    } cases[] = {{"tot", true, "DDT 41"},
                 {"tot", false, "DDT 41 registrato copia"},
                 {"bol", false, "DDT 42 copia"},
                 {"b1", false, "DDT 42 registrato"}};
    for (const auto& one : cases) {
        fault_stage stage(road::document);
        const auto hits = [&](const std::string& path) { return path.ends_with(one.file); };
        if (one.reads) {
            stage.faults.read_fails = [&](const std::string& path, auto, auto) {
                return hits(path);
            };
        } else {
            stage.faults.write_fails = [&](const std::string& path, auto) { return hits(path); };
        }
        stage.go();
        stage.faults.read_fails = nullptr;
        EXPECT_FALSE(stage.desk.ended());
        EXPECT_EQ(stage.left(), booked + one.left) << one.file;
        EXPECT_EQ(stage.desk.active()->name(), one.reads ? "mirorca" : "mirorc");
    }
    fault_stage stage(road::document);
    std::filesystem::create_directory(stage.company.file("x").parent_path() / "b1");
    stage.go();
    EXPECT_FALSE(stage.desk.ended());
    EXPECT_EQ(stage.counter_now(contatori::documenti_trasporto).quanti, 8);
}

TEST(fulfil_faults, TheCountersFollowTheDisk) {
    fault_stage stage(road::unloading);
    stage.faults.events.clear();
    stage.go();
    std::string order;
    for (const auto& event : stage.faults.events) {
        order += event.path.substr(event.path.rfind('.') + 1) + (event.flush ? "! " : " ");
    }
    EXPECT_EQ(order, "art mag art mag art! mag! tot tot! ");
}

TEST(fulfil_faults, AFullCounterOfMovementsEndsTheProgramAfterTheArticle) {
    fault_stage stage(road::unloading);
    stage.company.counter(contatori::magazzino, 32767);
    stage.go();
    EXPECT_EQ(stage.desk.ended()->message, "Errore di run-time '6': Overflow");
    EXPECT_EQ(stage.article_now(1).giacenza, 99);
    EXPECT_EQ(stage.article_now(2).giacenza, 103);
}

}  // namespace
}  // namespace vantora::test
