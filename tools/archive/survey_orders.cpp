#include <algorithm>
#include <map>
#include <unordered_map>

#include "archive/check_order.h"
#include "archive/survey.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

/// The blocks of the file in one pass, and what they say of the counter.
class orders_survey {
 public:
    orders_survey(company_files& company, survey& into)
        : company_(company),
          into_(into),
          check_(into, company.counter(contatori::ordini).ultimo_numero),
          behind_(into.known.articles()),
          counted_(into.orders_counted) {}

    void read_all(const progress& tell) {
        const int all = std::max(counted_, std::min(into_.orders_held, blocks_read_most));
        facts_.resize(static_cast<std::size_t>(all) + 1);
        prints_.reserve(facts_.size());
        saves_.reserve(facts_.size());
        const int unread = scan_blocks(
            company_.records().orc, all,
            [&](int registrazione, order_rows order) {
                if (tell && registrazione % 64 == 1) tell("vantora.orc", registrazione, all);
                const order_rows used = order.first(facts(registrazione).used);
                if (registrazione <= counted_) {
                    take_counted(registrazione, used);
                } else {
                    take_behind(registrazione, used);
                }
            },
            [this](std::int64_t first, order_rows order) {
                const int registrazione = static_cast<int>(first / righe_blocco) + 1;
                if (registrazione > into_.orders_held) return;
                facts(registrazione) = facts_of(order);
            });
        if (tell_unread(company_.records().orc, unread * righe_blocco, into_.all)) {
            doubt("non tutti gli ordini si possono leggere");
        }
    }

    void judge_counter() {
        if (!into_.doubt.orders.empty()) return;
        if (into_.orders_held < counted_) return judge_short_file();
        if (further_.empty()) return;
        const int right = proven_count();
        if (further_.size() == 1 && further_.front() == counted_ + 1) return tell_unfinished(right);
        if (says_only_counted()) return;
        into_.all.push_back(
            {gravity::error, "counter-low", counter,
             "dice " + std::to_string(counted_) + ", ma dietro ci sono altri " +
                 std::to_string(further_.size()) + " ordini aperti",
             right > 0 ? "Non salvare ordini nuovi: cancellerebbero questi. Riportarli con «repair "
                         "counters»."
                       : "Non salvare ordini nuovi: cancellerebbero questi. Se siano ordini veri o "
                         "resti vecchi non si può dire con certezza: confrontarli con le carte, o "
                         "rimettere vantora.tot da una copia."});
        doubt("il contatore degli ordini è più basso degli ordini nel file");
        propose(right);
    }

    void tell_orders() {
        check_.tell_all(facts_, into_.all);
        const block_problems& found = check_.problems();
        if (found.lost > 0) doubt("manca un ordine dentro al conto");
        if (found.mixed > 0) doubt("un ordine ha righe di un altro");
        if (found.no_article > 0) doubt("una riga d'ordine porta a un articolo che non c'è");
        if (found.twice_changed > 0) doubt("lo stesso ordine c'è due volte, con differenze");
        if (into_.twins.empty() || !into_.doubt.orders.empty()) return;
        into_.doubt.orders = "degli ordini ci sono due volte («repair doubled-orders»)";
    }

 private:
    static constexpr int blocks_read_most = 65534;
    static constexpr const char* counter = "contatore degli ordini (vantora.tot, 14)";

    void doubt(const char* why) {
        for (std::string* one : {&into_.doubt.orders, &into_.doubt.orders_but_for_twins}) {
            if (one->empty()) *one = why;
        }
    }

    block_facts& facts(int registrazione) {
        return facts_[static_cast<std::size_t>(registrazione)];
    }

    void take_counted(int registrazione, order_rows used) {
        if (registrazione > into_.orders_held) return;
        const block_facts& its = facts(registrazione);
        into_.open.add(used);
        if (const int first = earlier_twin(registrazione, its); first > 0) {
            into_.twins.push_back({registrazione, first});
            check_.tell_twin(registrazione, used, first, its.half_deleted);
        } else {
            check_.look_at(registrazione, used, its);
        }
    }

    /// The live order that a block is a copy of; 0 if it is none.
    int earlier_twin(int registrazione, const block_facts& its) {
        if (!its.in_use) return 0;
        if (its.saved != 0) saves_.emplace(its.saved, registrazione);
        const auto [first, is_new] = prints_.emplace(its.print, registrazione);
        if (is_new) return 0;
        if (!facts(first->second).whole || facts(first->second).deleted) {
            first->second = registrazione;
            return 0;
        }
        return (its.whole && !its.deleted) || its.half_deleted ? first->second : 0;
    }

    void take_behind(int registrazione, order_rows used) {
        const block_facts& its = facts(registrazione);
        // What a compaction left behind it may have been edited since in its new place.
        if (!its.live() || prints_.contains(its.print)) return;
        if (its.saved != 0 && saves_.contains(its.saved)) return;
        further_.push_back(registrazione);
        behind_.add(used);
        names_.push_back(document_named("ordine", used.front(), registrazione, into_.known));
    }

    /// Whether the articles' figures are those of certain orders, as far as the ones behind the
    /// counter touch them.
    bool figures_say(const open_quantities& orders) const {
        bool any = false;
        for (int number = 1; number <= behind_.articles(); ++number) {
            const rec_art* article = into_.known.article(number);
            if (!article || behind_.open_of(number) == 0) continue;
            if (!orders.explains(number, article->ordinato_clienti)) return false;
            any = true;
        }
        return any;
    }
    bool says_only_counted() const { return figures_say(into_.open); }

    /// The count that the figures of the articles prove, with nothing but orders up to there, saved
    /// one after the other; 0 if there is none.
    int proven_count() {
        if (!into_.doubt.articles.empty() || check_.problems().any() || !into_.twins.empty()) {
            return 0;
        }
        if (says_only_counted() || !figures_say(into_.open.plus(behind_))) return 0;
        double day = counted_ > 0 ? facts(counted_).day_saved : 1;
        int right = counted_;
        for (int next = counted_ + 1; next < static_cast<int>(facts_.size()); ++next) {
            const block_facts& its = facts(next);
            if (!its.in_use || !its.whole || its.day_saved < day) break;
            if (prints_.contains(its.print) || saves_.contains(its.saved)) break;
            day = its.day_saved;
            right = next;
        }
        return right >= further_.back() && right <= 32767 ? right : 0;
    }

    void propose(int right) {
        if (right == 0) return;
        into_.wrong_counters.push_back({contatori::ordini, counted_, right});
        into_.coming_back = names_;
    }

    void tell_unfinished(int right) {
        const bool moved = figures_say(into_.open.plus(behind_)) && !says_only_counted();
        into_.all.push_back(
            {gravity::note, "save-unfinished", counter,
             "dietro all'ultimo c'è un ordine salvato a metà: " + names_.front(),
             right > 0 ? "Se manca, riportarlo con «repair counters» prima di salvarne un altro."
                       : "Se manca, scriverlo di nuovo."});
        propose(right);
        if (!moved) return;
        for (int number = 1; number <= behind_.articles(); ++number) {
            if (behind_.touches(number)) into_.open.leave_out(number);
        }
    }

    void judge_short_file() {
        const int held = into_.orders_held;
        const std::string numbers =
            "dice " + std::to_string(counted_) + ", nel file ce ne sono " + std::to_string(held);
        const bool by_numbers = held > 0 && last_number_is_that_of_block(held);
        if (by_numbers && !check_.problems().any() && into_.doubt.articles.empty() &&
            into_.open.compare(into_.known).empty()) {
            into_.all.push_back({gravity::error, "counter-high", counter,
                                 numbers + ", e i loro articoli e l'ultimo numero tornano",
                                 "Mettere a posto il contatore con «repair counters»."});
            propose(held);
        } else {
            into_.all.push_back({gravity::error, "file-short", "vantora.orc",
                                 "il contatore degli ordini " + numbers,
                                 "Gli ordini che mancano si leggono vuoti. Non salvare niente; "
                                 "rimettere vantora.orc da una copia."});
        }
        doubt("il file vantora.orc è più corto di quanto dice il contatore");
    }

    bool last_number_is_that_of_block(int registrazione) {
        rec_orc head;
        return company_.records().orc.read(block_record(registrazione, 1), head) &&
               whole_number_text(head.numero.trimmed()) ==
                   static_cast<double>(company_.counter(contatori::ordini).ultimo_numero);
    }

    company_files& company_;
    survey& into_;
    order_check check_;
    open_quantities behind_;
    int counted_;
    std::vector<block_facts> facts_;
    std::unordered_map<std::uint64_t, int> prints_;  ///< of counted blocks
    std::unordered_map<std::uint64_t, int> saves_;   ///< their moments
    std::vector<int> further_;                       ///< live ones behind the counter
    std::vector<std::string> names_;                 ///< how they are named
};

}  // namespace

void survey_orders(company_files& company, survey& into, const progress& tell) {
    constexpr std::int64_t block_length = righe_blocco * std::int64_t{sizeof(rec_orc)};
    if (!into.doubt.orders.empty()) {
        into.doubt.orders_but_for_twins = into.doubt.orders;
        return;
    }
    into.orders_counted = company.count(contatori::ordini);
    into.orders_held = static_cast<int>(
        std::min<std::int64_t>(65535, company.length_of("orc").value_or(0) / block_length));
    orders_survey orders(company, into);
    orders.read_all(tell);
    orders.judge_counter();
    orders.tell_orders();
}

}  // namespace vantora::archive
