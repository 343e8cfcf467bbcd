#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <random>

#include "fulfil/fulfil_stage.h"
#include "store/text/number_text.h"

namespace vantora::test {
namespace {

/// The company's books, kept as a bookkeeper would: one step after the other, without a screen.
struct books {
    std::vector<rec_orc> rows;
    std::vector<rec_art> articles;
    std::vector<rec_mag> movements;
    std::vector<rec_bol> documents;
    rec_tot moved{};
    rec_tot documented{};

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

    std::vector<line> book(const std::vector<open_row>& worklist) {
        std::vector<line> lines;
        for (const open_row& marked : worklist) {
            rec_orc& row = rows[marked.record];
            if (!marked.star && marked.leaving == 0) continue;
            const int number = row.articolo;
            lines.push_back({marked.star ? 0 : number, marked.star ? 0 : marked.leaving, row.prezzo,
                             row.sc1, row.sc2});
            if (marked.star) continue;
            if (number >= 1 && number <= static_cast<int>(articles.size())) {
                rec_art& one = articles[static_cast<std::size_t>(number - 1)];
                one.ordinato_clienti = one.ordinato_clienti - marked.leaving;
                if (row.impegno.full() != "0") {
                    const double freed = std::min<double>(marked.leaving, one.impegnato);
                    one.giacenza = one.giacenza + freed;
                    one.impegnato = one.impegnato - freed;
                }
            }
            row.evaso = row.evaso + marked.leaving;
        }
        for (const open_row& listed : worklist) {
            const std::size_t head = listed.record / 200 * 200;
            double rest = 0;
            for (std::size_t i = head; i < head + 200; ++i)
                rest += rows[i].quantita - rows[i].evaso;
            if (rest <= 0) rows[head].evaso_flag = 1;
        }
        return lines;
    }

    void unload(const std::vector<line>& lines, int customer, const std::string& label, double when,
                const std::function<bool()>& anyway) {
        for (const line& one : lines) {
            if (one.quantity == 0 || one.article < 1) continue;
            if (one.article > static_cast<int>(articles.size())) continue;
            rec_art& from = articles[static_cast<std::size_t>(one.article - 1)];
            if (one.quantity > from.giacenza && !anyway()) continue;
            double net = one.price;
            for (const int percent : {one.sc1, one.sc2}) {
                net -= std::floor(net * percent + 0.51) / 100;
            }
            from.giacenza = from.giacenza - one.quantity;
            from.scaricato = from.scaricato + one.quantity;
            from.valore_scaricato = from.valore_scaricato + net * one.quantity;
            moved.quanti = static_cast<std::int16_t>(moved.quanti + 1);
            movements.push_back({text<8>("20240506"), text<40>(""), 1, text<12>(label), when,
                                 static_cast<std::int16_t>(one.article),
                                 static_cast<std::int16_t>(customer), one.quantity, net, 1, 0});
        }
        moved.modificato = 1;
    }

    void document(int customer, bool unloaded, double when) {
        documented.quanti = static_cast<std::int16_t>(documented.quanti + 1);
        documented.ultimo_numero = static_cast<std::int16_t>(documented.ultimo_numero + 1);
        documented.progressivo = documented.progressivo + 1;
        documents.push_back({documented.ultimo_numero, text<8>("20240506"), 0, text<15>(""),
                             text<36>(""), documented.progressivo, 0, when, 1, text<2>(""),
                             static_cast<std::int16_t>(customer),
                             static_cast<std::int16_t>(unloaded ? 0 : 1), 0, 0, 0});
    }
};

template <class Record>
std::string bytes_of(const std::vector<Record>& records) {
    return {reinterpret_cast<const char*>(records.data()), records.size() * sizeof(Record)};
}

std::string file_bytes(const std::filesystem::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
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

    void fulfil() {
        const int customer = 1 + below(2);
        stage_.open_worklist(customer);
        auto worklist = book_.worklist(customer);
        mark(worklist);
        if (below(6) == 0)
            return stage_.desk.dispatch([&] { stage_.app.mirorcr->bottone[0].click(); });
        stage_.book();
        auto lines = book_.book(worklist);
        mirorca& screen = *stage_.app.mirorca;
        if (!lines.empty() && below(3) == 0) {
            lines[0].quantity = below(100) - 10;
            stage_.desk.dispatch([&] {
                screen.quantita[0].set_text(std::to_string(static_cast<int>(lines[0].quantity)));
            });
        }
        const bool unload = below(4) != 0;
        stage_.desk.dispatch([&] { screen.scarica.set_on(unload); });
        answers_.clear();
        stage_.desk.dispatch([&] { screen.comando[1].click(); });
        std::size_t asked = 0;
        const double when = stage_.app.data_sistema;
        const std::string label = "DDT n." + std::to_string(book_.documented.ultimo_numero + 1);
        if (unload) {
            book_.unload(lines, customer, label, when, [&] { return answers_.at(asked++); });
        }
        if (answers_.at(asked)) book_.document(customer, unload, when);
    }

    void compare() {
        EXPECT_FALSE(stage_.desk.ended());
        const auto same = [&](const char* name, const std::string& kept) {
            const std::string found = file_bytes(stage_.company.file(name));
            const auto at = std::ranges::mismatch(found, kept).in1 - found.begin();
            EXPECT_TRUE(found == kept) << name << " differs at " << at;
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

 private:
    int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

    void mark(std::vector<books::open_row>& worklist) {
        const auto in_full = [&](books::open_row& row) {
            const rec_orc& open = book_.rows[row.record];
            row.leaving = open.quantita - open.evaso;
            row.star = row.leaving == 0;
        };
        for (std::size_t i = 0; i < worklist.size(); ++i) {
            const int shown = static_cast<int>(i) + 1;
            switch (below(6)) {
                case 0:
                    stage_.click(shown, mirorcr::ordine);
                    for (auto& row : worklist) {
                        if (row.record / 200 == worklist[i].record / 200) in_full(row);
                    }
                    break;
                case 1:
                    stage_.click(shown, mirorcr::da_evadere);
                    in_full(worklist[i]);
                    break;
                case 2: {
                    const int quarters = below(60) - 5;
                    stage_.type_quantity(shown, plain_text(quarters / 4.0));
                    worklist[i].leaving = quarters / 4.0;
                    worklist[i].star = false;
                    break;
                }
                case 3:
                    stage_.type_quantity(shown, "*");
                    worklist[i].leaving = 0;
                    worklist[i].star = true;
                    break;
                default:
                    break;
            }
        }
    }

    std::mt19937 random_;
    fulfil_stage stage_;
    books book_;
    std::vector<bool> answers_;
};

TEST(fulfil_sessions, LeaveTheBooksAsKeptByHand) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        session one(seed);
        for (int i = 0; i < 5; ++i) one.fulfil();
        one.compare();
        if (HasFailure()) return;
    }
}

}  // namespace
}  // namespace vantora::test
