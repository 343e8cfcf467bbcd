#include <cmath>

#include "archive/repair.h"
#include "archive/survey.h"
#include "text/number_text.h"

namespace vantora::archive {

namespace {

// Ordered quantities ------------------------------------------------------------------------------

bool same_number(double one, double other) {
    return one == other || (std::isnan(one) && std::isnan(other));
}

repair_step set_ordered(const wrong_ordered_quantity& one, const masters& known) {
    return {known.article_named(one.articolo) + " (" + std::to_string(one.articolo) +
                "): ordinato dai clienti " + plain_text(one.stored) + ", diventa " +
                plain_text(one.open),
            "art", [one](const repair_tools& tools) {
                rec_art article;
                if (!tools.change.read(tools.records.art, one.articolo, article)) return false;
                if (!same_number(article.ordinato_clienti, one.stored)) return false;
                article.ordinato_clienti = one.open;
                return tools.change.write(tools.records.art, one.articolo, article);
            }};
}

}  // namespace

repair_plan plan_ordered_quantities(company_files& company) {
    const survey found = survey_company(company);
    repair_plan plan;
    plan.nothing = "Nessuna quantità ordinata è sbagliata di certo.";
    plan.refusal = found.doubt.articles.empty() ? found.doubt.orders : found.doubt.articles;
    if (found.known.unread_articles() > 0) plan.refusal = "non tutti gli articoli si leggono";
    if (!plan.refusal.empty()) return plan;
    for (const auto& one : found.open.compare(found.known)) {
        if (!one.odd_row) plan.steps.push_back(set_ordered(one, found.known));
    }
    return plan;
}

namespace {

// Doubled orders ----------------------------------------------------------------------------------

bool read_block(const archivi& records, int registrazione, std::vector<rec_orc>& rows) {
    rows.resize(static_cast<std::size_t>(righe_blocco));
    return records.orc.read_block(block_record(registrazione, 1), rows);
}

/// Byte for byte, but for the mark of deletion.
bool are_twins(std::vector<rec_orc> first, std::vector<rec_orc> later) {
    if (first.front().annullato == 1) return false;
    for (auto* rows : {&first, &later}) {
        for (rec_orc& row : *rows) row.annullato = 0;
    }
    const auto bytes = std::as_bytes(std::span(first));
    const auto others = std::as_bytes(std::span(later));
    return std::ranges::equal(bytes, others);
}

repair_step delete_twin(const twin& one, company_files& company, const masters& known) {
    rec_orc head;
    company.records().orc.read(block_record(one.registrazione, 1), head);
    return {
        document_named("ordine", head, one.registrazione, known) +
            ": doppione della registrazione " + std::to_string(one.of) +
            ", diventa eliminato senza toccare gli articoli",
        "orc", [one](const repair_tools& tools) {
            std::vector<rec_orc> first;
            std::vector<rec_orc> later;
            if (!read_block(tools.records, one.of, first) ||
                !read_block(tools.records, one.registrazione, later) || !are_twins(first, later)) {
                return false;
            }
            for (rec_orc& row : later) row.annullato = 1;
            return tools.change.write_block(tools.records.orc, block_record(one.registrazione, 1),
                                            std::span<const rec_orc>(later));
        }};
}

}  // namespace

repair_plan plan_doubled_orders(company_files& company) {
    const survey found = survey_company(company);
    repair_plan plan;
    plan.nothing = "Nessun ordine c'è due volte.";
    plan.refusal = found.doubt.orders_but_for_twins;
    if (!plan.refusal.empty()) return plan;
    for (const twin& one : found.twins) {
        plan.steps.push_back(delete_twin(one, company, found.known));
    }
    return plan;
}

namespace {

// Counters ----------------------------------------------------------------------------------------

std::string words_for(const wrong_counter& one, const survey& found) {
    const char* of = one.record == contatori::clienti ? "dei " : "degli ";
    const std::string words = std::string("contatore ") + of + counted_by(one.record) + ": " +
                              std::to_string(one.counted) + ", diventa " +
                              std::to_string(one.right);
    if (one.record != contatori::ordini || one.right < one.counted) return words;
    return words + ". Tornano:" + first_lines(found.coming_back, " aperti");
}

repair_step set_counter(const wrong_counter& one, const survey& found) {
    return {words_for(one, found), "tot", [one](const repair_tools& tools) {
                rec_tot counter;
                if (!tools.records.tot.read(one.record, counter) || counter.quanti != one.counted) {
                    return false;
                }
                counter.quanti = static_cast<std::int16_t>(one.right);
                return tools.change.write(tools.records.tot, one.record, counter);
            }};
}

}  // namespace

repair_plan plan_counters(company_files& company) {
    const survey found = survey_company(company);
    repair_plan plan;
    plan.nothing = "I contatori di clienti, articoli e ordini tornano.";
    for (const wrong_counter& one : found.wrong_counters) {
        plan.steps.push_back(set_counter(one, found));
    }
    if (!plan.steps.empty()) return plan;
    for (const std::string* doubt :
         {&found.doubt.customers, &found.doubt.articles, &found.doubt.orders}) {
        if (plan.refusal.empty()) plan.refusal = *doubt;
    }
    return plan;
}

}  // namespace vantora::archive
