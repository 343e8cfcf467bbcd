#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "fulfil/fulfil_stage.h"
#include "text/code_page.h"
#include "text/number_text.h"

namespace vantora::test {
namespace {

/// The company's books, kept as a bookkeeper would: one step after the other, without a screen.
/// Writes can be made to fail, counted from 1.
struct books {
    std::vector<rec_orc> rows;
    std::vector<rec_art> articles;
    std::vector<rec_mag> movements;
    std::vector<rec_bol> documents;
    rec_tot moved{};
    rec_tot documented{};

    std::function<bool(int)> write_fails = [](int) { return false; };
    bool writes_struck = false;  ///< `write_fails` tells all that fail
    int writes = 0;
    int document_from = 0;  ///< so many came before its document

    struct open_row {
        std::size_t record;  // from 0
        bool star = false;
        double leaving = 0;
    };
    struct line {
        int article;
        double quantity;
        double price;
        int sc1;
        int sc2;
    };

    bool reaches_disk() { return !write_fails(++writes); }
    template <class Record>
    void write(Record& place, const Record& value) {
        if (reaches_disk()) place = value;
    }
    [[nodiscard]] bool holds(int article) const {
        return article >= 1 && article <= static_cast<int>(articles.size());
    }

    [[nodiscard]] std::vector<open_row> worklist(int customer) const {
        std::vector<open_row> open;
        for (std::size_t head = 0; head < rows.size(); head += 200) {
            const rec_orc& first = rows[head];
            if (first.cliente != customer || first.annullato != 0 || first.evaso_flag != 0)
                continue;
            for (std::size_t i = head; i < head + 200; ++i) {
                const bool text = rows[i].quantita == 0 && !rows[i].descrizione.trimmed().empty();
                if (rows[i].quantita > rows[i].evaso || text) open.push_back({i});
            }
        }
        return open;
    }

    /// Gives what leaves.
    std::vector<line> book(const std::vector<open_row>& worklist) {
        std::vector<line> lines;
        for (const open_row& marked : worklist) {
            if (!marked.star && marked.leaving == 0) continue;
            rec_orc row = rows[marked.record];
            lines.push_back({marked.star ? 0 : int{row.articolo}, marked.star ? 0 : marked.leaving,
                             row.prezzo, row.sc1, row.sc2});
            if (marked.star) continue;
            if (holds(row.articolo)) {
                rec_art& place = articles[static_cast<std::size_t>(row.articolo - 1)];
                rec_art one = place;
                one.ordinato_clienti = one.ordinato_clienti - marked.leaving;
                if (row.impegno.full() != "0") {
                    const double freed = std::min<double>(marked.leaving, one.impegnato);
                    one.giacenza = one.giacenza + freed;
                    one.impegnato = one.impegnato - freed;
                }
                write(place, one);
            }
            row.evaso = row.evaso + marked.leaving;
            write(rows[marked.record], row);
        }
        std::size_t seen = 0;  // orders up to here
        for (const open_row& listed : worklist) {
            const std::size_t head = listed.record / 200 * 200;
            if (head < seen) continue;
            seen = head + 200;
            double rest = 0;
            for (std::size_t i = head; i < head + 200; ++i)
                rest += rows[i].quantita - rows[i].evaso;
            rec_orc fulfilled = rows[head];
            fulfilled.evaso_flag = 1;
            if (rest <= 0) write(rows[head], fulfilled);
        }
        return lines;
    }

    void unload(const std::vector<line>& lines, int customer, const std::string& label, double when,
                const std::function<bool()>& anyway) {
        rec_tot counter = moved;
        for (const line& one : lines) {
            if (one.quantity == 0 || !holds(one.article)) continue;
            rec_art& place = articles[static_cast<std::size_t>(one.article - 1)];
            rec_art from = place;
            if (one.quantity > from.giacenza && !anyway()) continue;
            double net = one.price;
            for (const int percent : {one.sc1, one.sc2}) {
                net -= std::floor(net * percent + 0.51) / 100;
            }
            from.giacenza = from.giacenza - one.quantity;
            from.scaricato = from.scaricato + one.quantity;
            from.valore_scaricato = from.valore_scaricato + net * one.quantity;
            write(place, from);
            counter.quanti = static_cast<std::int16_t>(counter.quanti + 1);
            if (!reaches_disk()) continue;
            movements.push_back({text<8>("20240506"), text<40>(""), 1, text<12>(label), when,
                                 static_cast<std::int16_t>(one.article),
                                 static_cast<std::int16_t>(customer), one.quantity, net, 1, 0});
        }
        counter.modificato = 1;
        write(moved, counter);
    }

    void document(int customer, bool unloaded, double when) {
        rec_tot counter = documented;
        counter.quanti = static_cast<std::int16_t>(counter.quanti + 1);
        counter.ultimo_numero = static_cast<std::int16_t>(counter.ultimo_numero + 1);
        counter.progressivo = counter.progressivo + 1;
        const rec_tot before = documented;
        if (!reaches_disk()) return;
        documented = counter;
        if (!reaches_disk()) return write(documented, before);
        documents.push_back({counter.ultimo_numero, text<8>("20240506"), 0, text<15>(""),
                             text<36>(""), counter.progressivo, 0, when, 1, text<2>(""),
                             static_cast<std::int16_t>(customer),
                             static_cast<std::int16_t>(unloaded ? 0 : 1), 0, 0, 0});
        reaches_disk();  // its copy for other programs
    }
};

template <class Record>
std::string bytes_of(const std::vector<Record>& records) {
    return {reinterpret_cast<const char*>(records.data()), records.size() * sizeof(Record)};
}

class session {
 public:
    explicit session(unsigned seed) : random_(seed) {
        for (int block = 1; block <= 5; ++block) {
            std::vector<order_line> lines;
            for (int i = below(6); i >= 0; --i) {
                const double quantity = below(5) == 0 ? 0 : (below(120) - 10) / 2.0;
                lines.push_back({below(6) - 1, quantity, below(4) == 0 ? quantity / 2 : 0,
                                 below(5) == 0 ? "" : "merce"});
            }
            stage_.order(block, 1 + below(2), lines, below(2) == 0);
            // Any mark but "0" commits.
            if (below(3) == 0) stage_.change_row(block, 1, [](rec_orc& row) { row.impegno = ""; });
        }
        book_.rows.resize(1000);
        book_.articles.resize(3);
        stage_.company.files.orc.read_block(1, book_.rows);
        stage_.company.files.art.read_block(1, book_.articles);
        stage_.front.decide = [this] {
            answers_.push_back(below(2) == 0);
            return answers_.back();
        };
        stage_.run();
    }

    using faults = std::function<void(faulty_files&, books&)>;

    void fulfil() {
        open();
        if (below(6) == 0)
            return stage_.desk.dispatch([&] { stage_.app.mirorcr->bottone[0].click(); });
        book();
        confirm();
    }
    /// Marks what a customer gets.
    void open() {
        customer_ = 1 + below(2);
        stage_.open_worklist(customer_);
        worklist_ = book_.worklist(customer_);
        mark();
    }
    void book(const faults& strike = nullptr) {
        under(strike, [&] { stage_.app.mirorcr->bottone[1].click(); });
        lines_ = book_.book(worklist_);
    }
    void confirm(const faults& strike = nullptr) {
        mirorca& screen = *stage_.app.mirorca;
        if (!lines_.empty() && below(3) == 0) {
            lines_[0].quantity = below(100) - 10;
            stage_.desk.dispatch(
                [&] { screen.quantita[0].set_text(plain_text(lines_[0].quantity)); });
        }
        const bool unload = below(4) != 0;
        stage_.desk.dispatch([&] { screen.scarica.set_on(unload); });
        answers_.clear();
        under(strike, [&] { screen.comando[1].click(); });
        std::size_t asked = 0;
        const auto answer = [&] { return asked < answers_.size() && answers_[asked++]; };
        const double when = stage_.app.data_sistema;
        const std::string label = "DDT n." + std::to_string(book_.documented.ultimo_numero + 1);
        if (unload) book_.unload(lines_, customer_, label, when, answer);
        book_.document_from = book_.writes;
        if (answer()) book_.document(customer_, unload, when);
    }

    void compare() {
        const auto same = [&](const char* name, const std::string& kept) {
            const std::string found = stage_.company.content(name);
            EXPECT_TRUE(found == kept)
                << name << " differs at " << std::ranges::mismatch(found, kept).in1 - found.begin();
        };
        same("orc", bytes_of(book_.rows));
        same("art", bytes_of(book_.articles));
        same("mag", bytes_of(book_.movements));
        same("bol", bytes_of(book_.documents));
        const auto counter = [&](int number) {
            return bytes_of(std::vector{stage_.counter_now(number)});
        };
        EXPECT_EQ(counter(contatori::magazzino), bytes_of(std::vector{book_.moved}));
        EXPECT_EQ(counter(contatori::documenti_trasporto), bytes_of(std::vector{book_.documented}));
    }
    [[nodiscard]] const auto& ended() const { return stage_.desk.ended(); }
    [[nodiscard]] const books& kept() const { return book_; }
    [[nodiscard]] bool orders_open() const { return stage_.app.archives.orc.is_open(); }

 private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    /// Does something while files may fail; where the program stops, the books stop.
    template <class Work>
    void under(const faults& strike, const Work& work) {
        const std::size_t writes_before = stage_.faults.writes;
        const ui::form* screen = stage_.desk.active();
        book_.writes = 0;
        if (strike) strike(stage_.faults, book_);
        stage_.desk.dispatch(work);
        if (!ended() && (stage_.desk.active() != screen || book_.writes_struck)) return;
        book_.write_fails = [made = stage_.faults.writes - writes_before](int n) {
            return static_cast<std::size_t>(n) > made;
        };
    }

    void mark() {
        const auto in_full = [&](books::open_row& row) {
            const rec_orc& open = book_.rows[row.record];
            row.leaving = open.quantita - open.evaso;
            row.star = row.leaving == 0;
        };
        for (books::open_row& row : worklist_) {
            const int shown = static_cast<int>(&row - worklist_.data()) + 1;
            const int how = below(6);
            if (how == 0) {
                stage_.click(shown, mirorcr::ordine);
                for (auto& one : worklist_) {
                    if (one.record / 200 == row.record / 200) in_full(one);
                }
            } else if (how == 1) {
                stage_.click(shown, mirorcr::da_evadere);
                in_full(row);
            } else if (how == 2) {
                row.leaving = (below(60) - 5) / 4.0;
                row.star = false;
                stage_.type_quantity(shown, plain_text(row.leaving));
            } else if (how == 3) {
                row.leaving = 0;
                row.star = true;
                stage_.type_quantity(shown, "*");
            }
        }
    }

    std::mt19937 random_;
    fulfil_stage stage_;
    books book_;
    int customer_ = 0;
    std::vector<books::open_row> worklist_;
    std::vector<books::line> lines_;
    std::vector<bool> answers_;
};

TEST(fulfil_sessions, LeaveTheBooksAsKeptByHand) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        session one(seed);
        for (int i = 0; i < 5; ++i) one.fulfil();
        one.compare();
        EXPECT_FALSE(one.ended());
        if (HasFailure()) return;
    }
}

/// The file that refused is named.
bool names_archive(const std::string& message) {
    const std::string head = "Errore di run-time: l'archivio vantora.";
    return message.starts_with(head) &&
           message.substr(head.size() + 3) == " non si lascia leggere o scrivere";
}

/// Every read and write fails in turn, writes from there on too, or the process ends at it. Booking
/// and unloading end the program at the first fault; what was written before it stands. A document
/// passes over what can't be written.
TEST(fulfil_sessions, AFaultLeavesTheStepsThatWereDone) {
    enum fault { end, write_once, writes, read_once };
    const auto try_out = [](unsigned seed, bool booking, fault kind, int n) {
        int count = 0;
        const auto fails = [=](int at) { return kind == writes ? at >= n : at == n; };
        const auto strike = [&](faulty_files& faults, books& book) {
            if (kind == read_once) {
                faults.read_fails = [&](auto&&...) { return fails(++count); };
            } else {
                faults.write_fails = [&](const std::string& path, auto) {
                    if (path.ends_with("rto") || !fails(++count)) return false;
                    if (kind == end) throw crash{};
                    return true;
                };
                book.write_fails = fails;
                book.writes_struck = true;
            }
        };
        SCOPED_TRACE(std::to_string(seed) + (booking ? " booking " : " confirmed ") +
                     std::to_string(kind) + " " + std::to_string(n));
        session one(seed);
        one.open();
        if (booking) {
            one.book(strike);
        } else {
            one.book();
            one.confirm(strike);
        }
        one.compare();
        if (kind == write_once && count >= n) {
            EXPECT_EQ(one.ended().has_value(), booking || n <= one.kept().document_from);
        }
        if (one.ended()) {
            const std::string& message = one.ended()->message;
            EXPECT_TRUE(kind == end ? message == "Errore imprevisto" : names_archive(message))
                << message;
            EXPECT_FALSE(one.orders_open());
        }
        return count >= n;
    };
    for (const unsigned seed : {3, 6}) {
        for (const bool booking : {true, false}) {
            for (const fault kind : {end, write_once, writes, read_once}) {
                for (int n = 1; try_out(seed, booking, kind, n); ++n) {
                    if (HasFailure()) return;
                }
            }
        }
    }
}

TEST(fulfil_sessions, WhatStandsInTheWayIsNamedAndTheWindowStays) {
    fulfil_stage stage;
    stage.order(1, 1, {{1, 5}});
    stage.run();
    stage.open_worklist(1);
    stage.click(1, mirorcr::ordine);
    for (const char* file : {"tot", "orc"}) {
        stage.faults.read_fails = [=](auto& path, auto&&...) { return path.ends_with(file); };
        stage.book();
        EXPECT_EQ(stage.desk.active()->name(), "mirorcr");
    }
    stage.faults.read_fails = nullptr;
    stage.book();
    stage.faults.room_lacks = [](auto& path, auto) { return path.ends_with("bol"); };
    stage.confirm({true});
    EXPECT_EQ(stage.desk.active()->name(), "mirorca");
    stage.faults.room_lacks = nullptr;
    stage.confirm({true, false, false});
    EXPECT_EQ(stage.article_now(1).scaricato, 5) << "goods leave once, however often confirmed";
    EXPECT_EQ(stage.desk.active()->name(), "mirorc");
    const auto way = [](const std::string& rest) {
        return from_utf8("Impossibile leggere o scrivere il file vantora." + rest);
    };
    EXPECT_EQ(stage.front.told,
              (std::vector{way("tot: nulla è stato salvato."), way("orc: nulla è stato salvato."),
                           way("bol: il documento non è stato registrato.")}));
}

TEST(fulfil_sessions, CountersAndDocumentsFollowTheDisk) {
    for (const bool full : {false, true}) {
        fulfil_stage stage;
        stage.order(1, 1, {{1, 5}, {2, 3}});
        if (full) stage.counter(contatori::magazzino, 32767);
        stage.run();
        stage.open_worklist(1);
        stage.click(1, mirorcr::ordine);
        stage.book();
        stage.confirm({true, false, false});
        std::string order;
        for (const auto& event : stage.faults.events) {
            order += event.path.substr(event.path.find_last_of(".\\") + 1);
            order += event.flush ? "! " : " ";
        }
        const std::string booked = "art orc art orc orc art! orc! ";
        const std::string left = "art mag art mag art! mag! tot tot! tot bol tot! bol! b1 b1! ";
        EXPECT_EQ(order, full ? booked : booked + left);
        EXPECT_EQ(stage.desk.active()->name(), full ? "mirorca" : "mirorc");
    }
}

}  // namespace
}  // namespace vantora::test
