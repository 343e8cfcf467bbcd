#include "archive/check_order.h"

#include <algorithm>
#include <cmath>

#include "archive/line_check.h"
#include "text/int16.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

std::string row_named(std::size_t number) {
    return "riga " + std::to_string(number) + ": ";
}

}  // namespace

void order_check::tell(gravity how_bad, const char* kind, std::string what, std::string advice) {
    int& last = last_told_[kind];
    if (last == registrazione_) return;
    last = registrazione_;
    told_.push_back({how_bad, kind, document_named("ordine", *head_, registrazione_, found_.known),
                     std::move(what), std::move(advice)});
}

void order_check::look_at(int registrazione, order_rows used, const block_facts& facts) {
    registrazione_ = registrazione;
    head_ = &used.front();
    if (facts.empty) {
        ++problems_.lost;
        told_.push_back({gravity::error, "order-lost",
                         "ordine alla registrazione " + std::to_string(registrazione),
                         "il suo posto è vuoto: un ordine è andato perduto",
                         "Nessuna riparazione lo riporta: cercarlo in una copia di vantora.orc o "
                         "nelle carte."});
        return;
    }
    check_rows_agree(used, facts);
    check_marks(*head_, 1);
    if (facts.deleted) return;
    check_head(*head_);
    check_lines(used, facts.control_bytes);
    if (facts.in_use) note_number(*head_);
}

void order_check::tell_twin(int registrazione, order_rows used, int of, bool half) {
    registrazione_ = registrazione;
    head_ = &used.front();
    tell(gravity::error, "order-doubled",
         "è lo stesso ordine della registrazione " + std::to_string(of) +
             (half ? ", segnato eliminato solo in parte" : ", byte per byte"),
         "Una compattazione è stata interrotta: «repair doubled-orders» segna eliminato il "
         "doppione. Non eliminarlo a mano: le quantità degli articoli cambierebbero.");
}

void order_check::check_rows_agree(order_rows order, const block_facts& facts) {
    if (facts.whole) return;
    if (problems_.mixed++ == 0) first_mixed_ = registrazione_;
    if (facts.half_deleted) {
        return tell(gravity::error, "order-half-deleted", "alcune righe sono eliminate e altre no",
                    "Un'eliminazione è stata interrotta: confrontare l'ordine con le carte e con "
                    "le quantità ordinate dei suoi articoli.");
    }
    tell(gravity::error, "order-mixed",
         "dalla riga " + std::to_string(first_foreign_row(order) + 1) +
             " in poi le righe sono di un altro ordine o di un salvataggio precedente",
         "Un salvataggio è stato interrotto: aprire l'ordine, confrontarlo con le carte, "
         "salvarlo.");
}

void order_check::check_head(const rec_orc& head) {
    const masters& known = found_.known;
    if (found_.doubt.customers.empty()) {
        const rec_cli* customer = known.customer(head.cliente);
        if (head.cliente < 1 || head.cliente > known.customers()) {
            tell(gravity::error, "order-no-customer",
                 "non c'è il cliente numero " + std::to_string(head.cliente),
                 "Aprire l'ordine e scegliere il cliente.");
        } else if (customer && customer->eliminato == 1 && head.evaso_flag != 1) {
            tell(gravity::note, "order-of-deleted-customer",
                 "l'ordine è aperto e il cliente è eliminato",
                 "Se la merce non parte più, eliminare l'ordine.");
        }
    }
    if (!is_stored_date(head.data.full()) || !is_stored_date(head.data_evasione.full())) {
        tell(gravity::error, "order-date", "la data dell'ordine o della consegna non è una data",
             "Aprire l'ordine e riscrivere le date.");
    }
    if (any_has_controls(
            {head.numero.full(), head.testo1.full(), head.testo2.full(), head.testo3.full()})) {
        tell(gravity::warning, "order-text",
             "il numero o la descrizione contiene caratteri che non si scrivono",
             "Aprire l'ordine e riscrivere i riferimenti.");
    }
}

void order_check::check_marks(const rec_orc& row, std::size_t number) {
    const std::string_view committed = row.impegno.full();
    if (row.annullato != 0 && row.annullato != 1) {
        tell(gravity::warning, "order-mark",
             row_named(number) + "il segno di eliminato vale " + std::to_string(row.annullato) +
                 " invece di 0 o 1",
             "L'ordine conta come non eliminato: aprirlo e salvarlo, o eliminarlo.");
    }
    if (row.evaso_flag != 0 && row.evaso_flag != 1) {
        tell(gravity::warning, "order-mark",
             row_named(number) + "il segno di evaso vale " + std::to_string(row.evaso_flag) +
                 " invece di 0 o 1",
             "L'ordine conta come aperto: aprirlo e salvarlo.");
    }
    if (committed != "0" && committed != "1") {
        tell(gravity::warning, "order-mark",
             row_named(number) + "il segno dell'impegno non è né 0 né 1",
             "Aprire l'ordine, vedere se la merce è impegnata, salvarlo.");
    }
}

void order_check::check_lines(order_rows order, bool controls) {
    double open = 0;
    bool has_quantity = false;
    bool any_odd = false;
    const bool articles_known = found_.doubt.articles.empty();
    const bool order_open = order.front().evaso_flag != 1;
    for (std::size_t row = 0; row < order.size(); ++row) {
        const rec_orc& line = order[row];
        const auto tell_line = [&](gravity how_bad, const char* kind, std::string what,
                                   const char* advice) {
            if (std::string_view(kind) == no_such_article) ++problems_.no_article;
            tell(how_bad, kind, row_named(row + 1) + what, advice);
        };
        check_line(line, found_.known.articles(), articles_known,
                   controls && has_controls_in_texts(line), tell_line);
        check_marks(line, row + 1);
        check_fulfilled(line, row + 1);
        if (beyond_reason(line.quantita) || beyond_reason(line.evaso)) continue;
        any_odd = any_odd || is_odd(line.quantita, line.evaso);
        has_quantity = has_quantity || line.quantita != 0;
        open += line.quantita - line.evaso;
        if (!order_open || !articles_known || line.quantita <= line.evaso) continue;
        const rec_art* article = found_.known.article(line.articolo);
        if (article && article->eliminato != 0) {
            tell(gravity::note, "line-of-deleted-article",
                 row_named(row + 1) + "l'" + found_.known.article_named(line.articolo) +
                     " è eliminato",
                 "Se non si consegna più, togliere la riga dall'ordine.");
        }
    }
    if (!any_odd) check_balance(order.front(), open, has_quantity);
}

void order_check::check_fulfilled(const rec_orc& line, std::size_t number) {
    const double quantity = line.quantita;
    const double done = line.evaso;
    if (!std::isfinite(done)) {
        return tell(gravity::error, "line-no-number",
                    row_named(number) + "la quantità evasa non è un numero",
                    "Aprire l'ordine e riscrivere la riga.");
    }
    if (quantity == 0 || done == 0 || !std::isfinite(quantity)) return;
    if (beyond_reason(done)) {
        tell(gravity::error, "line-absurd",
             row_named(number) + "la quantità evasa è fuori da ogni misura",
             "Aprire l'ordine e riscrivere l'evaso.");
    } else if ((done < 0) != (quantity < 0)) {
        tell(gravity::note, "line-fulfilled-backwards",
             row_named(number) + "l'evaso (" + plain_text(done) +
                 ") ha il segno contrario dell'ordinato (" + plain_text(quantity) + ")",
             "Se non è un reso, aprire l'ordine e correggere l'evaso.");
    } else if (std::abs(done) > std::abs(quantity)) {
        tell(gravity::note, "line-fulfilled-beyond",
             row_named(number) + "evaso " + plain_text(done) + " di " + plain_text(quantity) +
                 " ordinati",
             "Se non si è consegnato di più, aprire l'ordine e correggere l'evaso.");
    }
}

void order_check::check_balance(const rec_orc& head, double open, bool has_quantity) {
    const bool closed = head.evaso_flag == 1;
    if (closed && open > 0) {
        tell(gravity::note, "order-closed-early", "conta come evaso con quantità ancora aperte",
             "Se il resto deve ancora partire, togliere il segno nell'ordine.");
    } else if (!closed && has_quantity && open <= 0) {
        tell(gravity::note, "order-not-closed",
             "non ha più niente di aperto e non conta come evaso",
             "Segnarlo nell'ordine, o lasciare che lo chiuda la prossima evasione.");
    }
}

void order_check::note_number(const rec_orc& head) {
    const std::string year(head.data.full().substr(0, 4));
    const auto [first, is_new] =
        numbers_.emplace(year + '/' + std::string(head.numero.trimmed()), registrazione_);
    if (!is_new) {
        std::string& list = repeated_[first->first];
        if (list.empty()) list = std::to_string(first->second);
        list += ", " + std::to_string(registrazione_);
    }
    given_.last_was_in(year);
    const int number = to_int16(number_at_head(head.numero.full())).value_or(0);
    if (number != 0) given_.add(year, number);
}

void order_check::tell_repeated_numbers() {
    for (const auto& [number, list] : repeated_) {
        told_.push_back({gravity::note, "order-number-twice",
                         "ordine " + words_of(std::string_view(number).substr(5)) + " del " +
                             words_of(std::string_view(number).substr(0, 4)),
                         "lo stesso numero hanno le registrazioni " + list,
                         "Se non è voluto, cambiarlo in tutti meno uno."});
    }
}

// The moment of a save goes through edits and compactions: who has another's is the same order.
void order_check::tell_changed_twins(const std::vector<block_facts>& facts) {
    std::unordered_map<std::uint64_t, std::size_t> first;
    for (std::size_t block = 1; block < facts.size(); ++block) {
        const block_facts& its = facts[block];
        if (static_cast<int>(block) > found_.orders_counted) break;
        if (its.saved == 0 || !its.in_use || its.deleted || !its.whole) continue;
        const auto [place, is_new] = first.emplace(its.saved, block);
        if (is_new || facts[place->second].print == its.print) continue;
        ++problems_.twice_changed;
        told_.push_back({gravity::warning, "order-twice-changed",
                         "ordini alle registrazioni " + std::to_string(place->second) + " e " +
                             std::to_string(block),
                         "sono lo stesso ordine, salvato nello stesso momento, con differenze",
                         "Una compattazione è stata interrotta e uno dei due è stato cambiato: "
                         "vedere quale vale prima di toccare l'altro."});
    }
}

/// Bytes that came or went in the middle shift all rows behind them.
bool order_check::told_shifted(findings& into) const {
    constexpr int few = 3;
    const int behind = found_.orders_counted - first_mixed_ + 1;
    if (problems_.mixed <= few || problems_.mixed * 2 < behind) return false;
    into.push_back({gravity::error, "orders-shifted", "vantora.orc",
                    "dalla registrazione " + std::to_string(first_mixed_) + " in poi le righe di " +
                        std::to_string(problems_.mixed) +
                        " ordini non stanno insieme: nel file mancano o avanzano dei byte",
                    "Non salvare niente; rimettere vantora.orc da una copia."});
    return true;
}

void order_check::tell_all(const std::vector<block_facts>& facts, findings& into) {
    if (told_shifted(into)) return;
    tell_changed_twins(facts);
    tell_repeated_numbers();
    if (found_.doubt.orders.empty()) {
        given_.tell_last(last_number_, "last-number-low",
                         "contatore degli ordini (vantora.tot, 14)", "ordine", told_);
    }
    into.append(told_);
}

}  // namespace vantora::archive
