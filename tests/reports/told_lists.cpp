#include "reports/told_lists.h"

#include <cmath>

#include "store/text/dates.h"
#include "store/text/number_text.h"
#include "store/values.h"

namespace vantora::test {

namespace {

constexpr std::size_t rows_max = 31999;

std::string quantity(double value) {
    return value == 0 ? "" : masked(value, "########0.#0");
}

std::string trim(std::string_view text) {
    return std::string(trimmed(text));
}

bool begins(std::string_view text, const std::string& with) {
    return upper(text).substr(0, with.size()) == with;
}

bool between(const std::string& key, const ui::text_box& from, const ui::text_box& to) {
    std::string low = upper(trimmed(from.text()));
    std::string high = upper(trimmed(to.text()));
    if (low.empty()) low = std::string(1, '\0');
    if (high.empty()) high = "\xFF";
    return key >= low && key <= high;
}

}  // namespace

void told_lists::begin(int columns, int least_rows) {
    rec_tot counter;
    files_.tot.read(contatori::articoli, counter);
    articles_ = counter.quanti;
    files_.tot.read(contatori::clienti, counter);
    customers_ = counter.quanti;
    files_.tot.read(contatori::ordini, counter);
    orders_ = counter.quanti;
    first_ = static_cast<int>(std::nearbyint(number_at_head(screen_.text1[0].text())));
    last_ = static_cast<int>(std::nearbyint(number_at_head(screen_.text1[1].text())));
    columns_ = columns;
    least_rows_ = static_cast<std::size_t>(least_rows);
    // Each build looks customers, articles and heads up afresh; the row goes on from build to
    // build.
    customer_ = {};
    article_ = {};
    head_ = {};
    rows_.clear();
}

void told_lists::begin_sheets(int least_rows) {
    begin(8, least_rows);
    if (first_ < 1) first_ = 1;
    if (last_ > orders_) last_ = orders_;
    if (last_ < first_) first_ = last_;
}

void told_lists::next() {
    rows_.emplace_back(static_cast<std::size_t>(columns_));
}

void told_lists::put(int col, const std::string& text) {
    rows_.back()[static_cast<std::size_t>(col)] = text;
}

grid_rows told_lists::end() {
    if (rows_.size() > rows_max) rows_.resize(rows_max);
    while (rows_.size() + 1 < least_rows_) next();
    return rows_;
}

std::string told_lists::name_of(int customer) {
    if (customer < 1 || customer > customers_) return "";
    files_.cli.read(customer, customer_);
    return trim(customer_.intestazione1.full());
}

std::string told_lists::text_of(bool article) {
    if (!article) {
        return trim(std::string(row_.descrizione.full()) + std::string(row_.descrizione2.full()));
    }
    files_.art.read(row_.articolo, article_);
    return trim(trim(article_.codice.full()) + " " + std::string(article_.descrizione.full()));
}

void told_lists::list_row(bool head, int order, int row, bool due_column) {
    const int shift = due_column ? 1 : 0;
    const std::string customer = name_of(row_.cliente);
    next();
    put(7 + shift, std::to_string((order - 1) * 200 + row));
    if (head) {
        put(8 + shift, std::to_string(order));
        put(0, trim(row_.numero.full()));
        put(1, date_text_of_stored(row_.data.full()));
        put(2, trim(row_.testo1.full()));
        if (due_column) put(3, date_text_of_stored(row_.data_evasione.full()));
        put(3 + shift, customer);
    }
    if (screen_.Combo2.chosen() == 1) {
        put(4 + shift, text_of(row_.articolo >= 1));
        put(5 + shift, quantity(row_.quantita));
        put(6 + shift, quantity(row_.evaso));
    }
}

grid_rows told_lists::order_list() {
    begin(9, 28);
    for (int i = first_; i <= last_; ++i) {
        bool shown = false;
        for (int j = 1; j <= (screen_.Combo2.chosen() == 1 ? 200 : 1); ++j) {
            files_.orc.read((i - 1) * 200 + j, row_);
            if (row_.quantita == 0 && trim(row_.descrizione.full()).empty()) continue;
            if (screen_.Combo1.chosen() == 1 && row_.quantita <= row_.evaso) continue;
            if (screen_.Combo1.chosen() == 2 && row_.quantita > row_.evaso) continue;
            list_row(!shown, i, j, false);
            shown = true;
        }
    }
    return end();
}

grid_rows told_lists::schedule() {
    begin(10, 28);
    const std::string from = stored_of_date_text(screen_.text2[0].text());
    const std::string to = stored_of_date_text(screen_.text2[1].text());
    for (int i = first_; i <= last_; ++i) {
        bool open = false;
        for (int j = 1; j <= 200 && !open; ++j) {
            files_.orc.read((i - 1) * 200 + j, row_);
            open = row_.quantita > row_.evaso;
        }
        if (!open) continue;
        bool shown = false;
        for (int j = 1; j <= (screen_.Combo2.chosen() == 1 ? 200 : 1); ++j) {
            files_.orc.read((i - 1) * 200 + j, row_);
            if (row_.quantita == 0 && trim(row_.descrizione.full()).empty()) continue;
            const std::string due(row_.data_evasione.full());
            if (due < from || due > to) continue;
            list_row(!shown, i, j, true);
            shown = true;
        }
    }
    return end();
}

double told_lists::net(double quantity) {
    const valuta in(parameters_);
    double a = arrotonda_valuta(row_.prezzo * quantity, in);
    a = a - percentuale_valuta(a, row_.sc1, in);
    a = a - percentuale_valuta(a, row_.sc2, in);
    return arrotonda_valuta(a, in);
}

grid_rows told_lists::valuation() {
    const valuta in(parameters_);
    begin(6, 28);
    double total = 0;
    for (int i = first_; i <= last_; ++i) {
        double ordered = 0;
        double fulfilled = 0;
        std::string text;
        for (int j = 1; j <= 200; ++j) {
            files_.orc.read((i - 1) * 200 + j, row_);
            if (j == 1) text = trim(row_.testo1.full());
            if (row_.quantita == 0) continue;
            ordered += net(row_.quantita);
            fulfilled += net(row_.evaso);
        }
        double value = ordered;
        if (screen_.Combo1.chosen() == 1) value = ordered - fulfilled;
        if (screen_.Combo1.chosen() == 2) value = fulfilled;
        if (value == 0) continue;
        const std::string customer = name_of(row_.cliente);
        next();
        put(5, std::to_string(i));
        put(0, trim(row_.numero.full()));
        put(1, date_text_of_stored(row_.data.full()));
        put(2, text);
        put(3, customer);
        put(4, formato_importo(value, in));
        total += value;
    }
    next();
    put(2, "Importo complessivo");
    put(4, formato_importo(total, in));
    return end();
}

bool told_lists::article_passes() {
    if (!between(upper(article_.codice.trimmed()), screen_.t_inizio, screen_.t_fine)) return false;
    const int category = screen_.Combo0.chosen();
    if (category != 0 && number_at_head(article_.categoria.full()) + 1 != category) return false;
    const std::string supplier = upper(trimmed(screen_.Text.text()));
    const std::string description = upper(trimmed(screen_.Text3.text()));
    if (!begins(article_.classe1.full(), supplier) && !begins(article_.classe2.full(), supplier) &&
        !begins(article_.classe3.full(), supplier)) {
        return false;
    }
    return begins(article_.descrizione.full(), description) && article_.eliminato == 0;
}

void told_lists::totals() {
    next();
    put(3, "Totale");
    put(5, quantity(ordered_));
    put(6, quantity(fulfilled_));
    next();
}

grid_rows told_lists::article_sheets() {
    begin_sheets(26);
    rec_sra entry;
    for (int k = 1; k <= articles_; ++k) {
        files_.sra.read(k, entry);
        files_.art.read(entry.numero, article_);
        if (!article_passes()) continue;
        ordered_ = fulfilled_ = 0;
        bool listed = false;
        for (int i = first_; i <= last_; ++i) {
            for (int j = 1; j <= 200; ++j) {
                files_.orc.read((i - 1) * 200 + j, row_);
                if (row_.articolo != entry.numero) continue;
                const std::string customer = name_of(row_.cliente);
                files_.orc.read((i - 1) * 200 + 1, head_);
                next();
                if (!listed) {
                    put(0, trim(trim(article_.codice.full()) + " " +
                                trim(article_.descrizione.full())));
                    put(7, std::to_string(entry.numero));
                }
                listed = true;
                put(1, trim(head_.numero.full()));
                put(2, date_text_of_stored(head_.data.full()));
                put(3, trim(head_.testo1.full()));
                put(4, customer);
                put(5, quantity(row_.quantita));
                put(6, quantity(row_.evaso));
                ordered_ += row_.quantita;
                fulfilled_ += row_.evaso;
            }
        }
        if (listed) totals();
    }
    return end();
}

grid_rows told_lists::customer_sheets() {
    begin_sheets(28);
    rec_src entry;
    for (int k = 1; k <= customers_; ++k) {
        files_.src.read(k, entry);
        files_.cli.read(entry.numero, customer_);
        const std::string name = trim(customer_.intestazione1.full());
        if (!between(upper(name), screen_.t_inizio, screen_.t_fine)) continue;
        if (customer_.eliminato != 0) continue;
        ordered_ = fulfilled_ = 0;
        bool listed = false;
        for (int i = first_; i <= last_; ++i) {
            files_.orc.read((i - 1) * 200 + 1, row_);
            if (row_.cliente != entry.numero) continue;
            for (int j = 1; j <= 200; ++j) {
                files_.orc.read((i - 1) * 200 + j, row_);
                if (trim(row_.descrizione.full()).empty() && row_.quantita == 0 &&
                    row_.prezzo == 0) {
                    continue;
                }
                next();
                put(0, listed ? "" : name);
                put(7, listed ? "" : std::to_string(entry.numero));
                listed = true;
                if (j == 1) {
                    put(1, trim(row_.numero.full()));
                    put(2, date_text_of_stored(row_.data.full()));
                    put(3, trim(row_.testo1.full()));
                }
                put(4, text_of(row_.articolo >= 1 && row_.articolo <= articles_));
                put(5, quantity(row_.quantita));
                put(6, quantity(row_.evaso));
                ordered_ += row_.quantita;
                fulfilled_ += row_.evaso;
            }
        }
        if (listed) totals();
    }
    return end();
}

}  // namespace vantora::test
